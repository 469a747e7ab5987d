#include "emulator/model/crops.h"

#include "emulator/model/block.h"
#include "emulator/model/inputs.h"
#include "emulator/model/layers.h"

namespace crops
{
namespace
{
constexpr quint32 firstRecord = firstRegister + 0x14;
constexpr quint32 layerStride = 132;
constexpr quint32 inputStride = 16;
constexpr int croppedInputs = 8; ///< one of the synchronisation reference would reach into the next layer
constexpr int pipInputs = 6;

// Offsets in a crop record.
constexpr int offsetOn = 2, offsetX = 3, offsetY = 5, offsetWidth = 7, offsetHeight = 9;

constexpr int inputsOf(int layer)
{
    return layer == 0 ? croppedInputs : pipInputs;
}

/// What the panel has written it knows.
RegisterRow rowOf(int layer)
{
    return {recordAddress(layer, 0), int(inputStride), inputsOf(layer), inputStride, obey::store};
}

QString textOf(const Crop &crop)
{
    return QString("%1x%2 at %3,%4").arg(crop.width).arg(crop.height).arg(crop.x).arg(crop.y);
}

/// The crop that a layer shows, on or off, and those that wait for another input.
QStringList describe(const Registers &registers)
{
    QStringList shown, waiting;
    for (int layer = 0; layer < layers::count; ++layer) {
        const QString name = layers::nameOf(layer);
        const int source = layers::read(registers, layer).input;
        for (int input = 0; input < inputsOf(layer); ++input) {
            const Crop crop = read(registers, layer, input);
            if (input == source)
                shown.append("crop of " + name + ": " + onOff(crop.on) + ", " + textOf(crop));
            else if (crop.on)
                waiting.append(name + " of " + inputs::nameOf(input) + ": " + textOf(crop));
        }
    }
    return shown + waiting;
}
} // namespace

quint32 recordAddress(int layer, int input)
{
    return firstRecord + layerStride * quint32(layer) + inputStride * quint32(input);
}

Crop read(const Registers &registers, int layer, int input)
{
    const Block block(registers.read(recordAddress(layer, input), recordLength), recordLength);
    return {block.u8(offsetOn) == 1, block.u16(offsetX), block.u16(offsetY), block.u16(offsetWidth),
            block.u16(offsetHeight)};
}

Reports reportShown(const Registers &registers)
{
    Reports list;
    for (int layer = 0; layer < layers::count; ++layer) {
        const int input = layers::read(registers, layer).input;
        if (input < inputsOf(layer)) {
            const quint32 address = recordAddress(layer, input);
            list.append({address, registers.read(address, recordLength)});
        }
    }
    return list;
}
} // namespace crops

Subject cropsSubject()
{
    return {"crops",
            {crops::rowOf(0), crops::rowOf(1), crops::rowOf(2)},
            [](const Registers &) {
                return Reports(); // the flash tells them at the start
            },
            crops::describe};
}
