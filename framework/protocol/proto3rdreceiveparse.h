// What the device reports, turned into values of items. Keeps the tables of the device's inputs, which the
// send path and the engine look up.
#pragma once

#include "framework/protocol/inputtable.h"

namespace VASK
{
class Proto3rdReceiveParse
{
public:
    /// Every input, numbered in the order in which the device lists them.
    static InputTable inputSourceCode;
    /// The inputs that take an EDID, numbered from 0.
    static InputTable EDIDSourceCode;
    /// The inputs that can take part in a mosaic, by the numbers of its arrangement.
    static InputTable MosaicSourceCode;
};
} // namespace VASK
