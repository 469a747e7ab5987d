#!/usr/bin/env python3
# Sets the brightness to 63 % on a panel of its own and looks whether the device was told.
import frontpanel

with frontpanel.start() as panel:
    panel.go("屏幕亮度")
    panel.key("ok")
    panel.knob("right", 3)
    panel.wait_text("63%")
    panel.key("ok")
    panel.wait_value("ScreenBrightness", "63")
    assert [write["bytes"] for write in panel.written() if write["address"] == "02000001"][-1] == "a0"
    print("63 %")
