#!/bin/sh -e
# Sets the brightness of the running panel to 63 % and waits until it is stored. fpdctl has to be in the PATH.
fpdctl go 屏幕亮度
fpdctl key ok
fpdctl knob right 3
fpdctl wait text 63%
fpdctl wait value ScreenBrightness 63
