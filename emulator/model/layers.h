// The three layers: what each shows, where and in which order. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace layers
{
constexpr int count = 3;

struct Layer {
    bool shown = false;
    int input = 0; ///< number in the device's list
    int priority = 0;
    int x = 0, y = 0, width = 0, height = 0;
    int opacity = 100; ///< percent
};

Layer read(const Registers &registers, int layer);
/// The record of a layer as the flash and the reports hold it.
QByteArray record(const Layer &layer);
constexpr int recordLength = 48;
quint32 recordAddress(int layer);
const char *nameOf(int layer);
/// The windows that stand otherwise than the panel has written them. That it was told of one is not enough:
/// it may have been switched off before it stored that.
Reports reportUnknown(const Registers &registers);
} // namespace layers
