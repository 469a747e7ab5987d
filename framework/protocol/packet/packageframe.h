// Where each field of a frame lies.
#pragma once

#include "framework/protocol/packet/bytes.h"

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
} // namespace VASK
