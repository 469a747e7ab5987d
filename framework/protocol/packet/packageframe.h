// Where each field of a frame lies, and reading of little-endian numbers from bytes that may be too few.
#pragma once

#include <QByteArray>

namespace VASK
{
/// Offsets in a frame, in bytes.
enum FrameOffset : int {
    FRAME_Header = 0,
    FRAME_AckCode = 2,
    FRAME_SerialNum = 3,
    FRAME_Source = 4,
    FRAME_Destination = 5,
    FRAME_DeviceType = 6,
    FRAME_Port = 7,
    FRAME_BoardIndex = 8, ///< u16
    FRAME_ProtoType = 10,
    FRAME_PackageType = 11,
    FRAME_Address = 12,     ///< u32, the two halves below as one
    FRAME_LowAddress = 12,  ///< u16
    FRAME_HighAddress = 14, ///< u16
    FRAME_Length = 16,      ///< u16
    FRAME_Data = 18,
};
constexpr int frameChecksumSize = 2;
/// Size of a frame without data.
constexpr int frameOverhead = FRAME_Data + frameChecksumSize;

/// The first two bytes of what this side sends, and of what the device answers.
inline const QByteArray requestHeader = QByteArrayLiteral("\x55\xAA");
inline const QByteArray replyHeader = QByteArrayLiteral("\xAA\x55");

/// Little-endian number of width bytes at the offset; bytes past the end count as 0.
inline unsigned int littleEndianAt(const QByteArray &bytes, int offset, int width)
{
    unsigned int number = 0;
    for (int i = 0; i < width && offset + i < bytes.size(); ++i)
        number |= static_cast<unsigned int>(static_cast<unsigned char>(bytes[offset + i])) << (8 * i);
    return number;
}

/// Puts a number of width bytes at the offset, where there must be room for it.
inline void putLittleEndian(QByteArray &bytes, int offset, int width, unsigned int number)
{
    for (int i = 0; i < width; ++i)
        bytes[offset + i] = static_cast<char>(number >> (8 * i));
}
} // namespace VASK
