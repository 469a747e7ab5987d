#include "emulator/model/pictures.h"

#include "emulator/model/block.h"
#include "emulator/model/inputs.h"

namespace pictures
{
namespace
{
constexpr quint32 firstRecord = 0x13050000;
constexpr int recordLength = 20;
constexpr int allRecords = 8; ///< with those that nothing is shown of

// Offsets in a picture record.
constexpr int offsetCode = 0, offsetBrightness = 1, offsetContrast = 2, offsetSaturation = 4, offsetHue = 5,
              offsetFullRange = 19;
constexpr int lastByInput = 6; ///< last byte of the values that are written by the number of the input

constexpr int inputOfRecord[count] = {inputs::hdmi1, inputs::hdmi2, inputs::dvi, inputs::dvi2, inputs::sdi};

int recordOfInput(int input)
{
    for (int record = 0; record < count; ++record) {
        if (inputOfRecord[record] == input)
            return record;
    }
    return -1;
}

quint32 recordAddress(int record)
{
    return firstRecord + recordLength * quint32(record);
}

/// Into the record of the input that is meant: the number of an input for a single value, the code of the
/// input in a whole record, and else the number of the record.
Reports obeyPicture(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const int offset = int(write.address - row.addressOf(member));
    const bool isWhole = write.bytes.size() == recordLength;
    int record = member;
    if (isWhole)
        record = recordOfInput(inputs::byCode(quint8(write.bytes[offsetCode])));
    else if (offset >= offsetBrightness && offset <= lastByInput)
        record = recordOfInput(member);
    if (record < 0)
        record = member;
    // A whole record brings the picture back to its middle; the range is no part of that.
    registers.write(recordAddress(record) + quint32(offset),
                    isWhole ? write.bytes.left(offsetHue + 2) : write.bytes);
    return {};
}

QStringList describe(const Registers &registers)
{
    QStringList lines;
    for (int record = 0; record < count; ++record) {
        const Picture picture = read(registers, record);
        lines.append(QString("%1: brightness %2, contrast %3, saturation %4, hue %5, %6 range")
                         .arg(inputs::nameOf(inputOfRecord[record]))
                         .arg(picture.brightness)
                         .arg(picture.contrast)
                         .arg(picture.saturation)
                         .arg(picture.hue)
                         .arg(picture.fullRange ? "full" : "limited"));
    }
    return lines;
}
} // namespace

int inputOf(int record)
{
    return inputOfRecord[record];
}

Picture read(const Registers &registers, int record)
{
    const Block block(registers.read(recordAddress(record), recordLength), recordLength);
    return {block.u8(offsetBrightness), block.u8(offsetContrast), block.u8(offsetSaturation),
            qint16(block.u16(offsetHue)), block.u8(offsetFullRange) != 0};
}

QByteArray bytes(int record, const Picture &picture)
{
    return Block(recordLength)
        .u8(offsetCode, inputs::codeOf(inputOfRecord[record]))
        .u8(offsetBrightness, picture.brightness)
        .u8(offsetContrast, picture.contrast)
        .u8(offsetSaturation, picture.saturation)
        .u16(offsetHue, picture.hue)
        .u8(offsetFullRange, picture.fullRange);
}

Reports reportAll(const Registers &registers)
{
    Reports list;
    for (int record = 0; record < count; ++record)
        list.append({recordAddress(record), registers.read(recordAddress(record), recordLength)});
    return list;
}
} // namespace pictures

Subject picturesSubject()
{
    return {"pictures",
            {{pictures::recordAddress(0), pictures::recordLength, pictures::allRecords,
              pictures::recordLength, pictures::obeyPicture}},
            pictures::reportAll,
            pictures::describe};
}
