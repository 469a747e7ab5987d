#include "emulator/model/layers.h"

#include "emulator/model/block.h"
#include "emulator/model/inputs.h"

namespace layers
{
namespace
{
constexpr quint32 firstRecord = 0x13020010;
/// The windows as the panel has written them, record by record: the device's own notes, which no panel asks
/// for.
constexpr quint32 firstKnownRecord = 0xF0020010;
constexpr quint32 sendingCardStart = 0x020001F0; ///< x and y of the one window of a sending card
constexpr int startLength = 8;

// Offsets in a layer's record.
constexpr int offsetShown = 0, offsetInput = 2, offsetPriority = 3, offsetCode = 4, offsetX = 5, offsetY = 9,
              offsetWidth = 13, offsetHeight = 17, offsetOpacity = 47;
constexpr int sourceLength = 3;

quint32 knownAddress(int layer)
{
    return firstKnownRecord + recordLength * quint32(layer);
}

/// The panel knows what it has written. Told of it, it would take the window for one that somebody else has
/// moved, and end what it had scaled by a rule.
Reports nothingToTell(Registers &registers, int layer)
{
    registers.write(knownAddress(layer), registers.read(recordAddress(layer), recordLength));
    return {};
}

/// A source comes as number and code with an empty byte between them, where the record keeps the priority.
Reports obeyLayer(Registers &registers, const RegisterRow &row, int layer, const Write &write)
{
    const quint32 address = recordAddress(layer);
    if (write.address == address + offsetInput && write.bytes.size() == sourceLength) {
        registers.setU8(address + offsetInput, write.bytes[0]);
        registers.setU8(address + offsetCode, write.bytes[sourceLength - 1]);
    } else {
        obey::store(registers, row, layer, write);
    }
    return nothingToTell(registers, layer);
}

Reports obeySendingCardStart(Registers &registers, const RegisterRow &, int, const Write &write)
{
    registers.write(recordAddress(0) + offsetX, write.bytes.left(startLength));
    return nothingToTell(registers, 0);
}

QStringList describe(const Registers &registers)
{
    QStringList lines;
    for (int number = 0; number < count; ++number) {
        const Layer layer = read(registers, number);
        lines.append(
            QString("%1: %2, %3, %4x%5 at %6,%7, priority %8, opacity %9%")
                .arg(QString(nameOf(number)), onOff(layer.shown), QString(inputs::nameOf(layer.input)))
                .arg(layer.width)
                .arg(layer.height)
                .arg(layer.x)
                .arg(layer.y)
                .arg(layer.priority)
                .arg(layer.opacity));
    }
    return lines;
}
} // namespace

Layer read(const Registers &registers, int number)
{
    const Block block(registers.read(recordAddress(number), recordLength), recordLength);
    Layer layer;
    layer.shown = block.u8(offsetShown) != 0;
    layer.input = block.u8(offsetInput);
    layer.priority = block.u8(offsetPriority);
    layer.x = block.i32(offsetX);
    layer.y = block.i32(offsetY);
    layer.width = block.i32(offsetWidth);
    layer.height = block.i32(offsetHeight);
    layer.opacity = block.u8(offsetOpacity);
    return layer;
}

QByteArray record(const Layer &layer)
{
    return Block(recordLength)
        .u8(offsetShown, layer.shown)
        .u8(offsetInput, layer.input)
        .u8(offsetPriority, layer.priority)
        .u8(offsetCode, inputs::codeOf(layer.input))
        .i32(offsetX, layer.x)
        .i32(offsetY, layer.y)
        .i32(offsetWidth, layer.width)
        .i32(offsetHeight, layer.height)
        .u8(offsetOpacity, layer.opacity);
}

Reports reportUnknown(const Registers &registers)
{
    Reports list;
    for (int layer = 0; layer < count; ++layer) {
        const QByteArray window = registers.read(recordAddress(layer), recordLength);
        if (window != registers.read(knownAddress(layer), recordLength))
            list.append({recordAddress(layer), window});
    }
    return list;
}

quint32 recordAddress(int layer)
{
    return firstRecord + recordLength * quint32(layer);
}

const char *nameOf(int layer)
{
    constexpr const char *names[count] = {"main layer", "PIP 1", "PIP 2"};
    return names[layer];
}
} // namespace layers

Subject layersSubject()
{
    return {"layers",
            {{layers::recordAddress(0), layers::recordLength, layers::count, layers::recordLength,
              layers::obeyLayer},
             {layers::sendingCardStart, layers::startLength, 1, 0, layers::obeySendingCardStart}},
            layers::reportUnknown,
            layers::describe};
}
