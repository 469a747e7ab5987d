// The message of the device's bus: a header of 28 bytes, little-endian, in front of a packet. Header and
// packet are put together and taken apart here. No thread of its own.
#pragma once

#include <QByteArray>

namespace VASK
{
/// Offsets in the header, in bytes.
enum IpcOffset : int {
    IPC_Source = 0,         ///< u32, task identifier
    IPC_Constant = 4,       ///< u32, 1
    IPC_WholeSize = 8,      ///< u32, header and payload
    IPC_Reserved1 = 12,     ///< u32
    IPC_Reserved2 = 16,     ///< u32
    IPC_SmallLabel = 20,    ///< i16
    IPC_LargeLabel = 22,    ///< i16
    IPC_PayloadLength = 24, ///< u32
    IPC_Payload = 28,
};
constexpr int ipcHeaderSize = IPC_Payload;

/// What a message is about.
enum LargeLabel : short {
    LABEL_Progress = 7, ///< a firmware update
    LABEL_Packet = 28,
    LABEL_UsbDisk = 29,
};
enum SmallLabel : short {
    LABEL_PacketAnswered = 0,
    LABEL_PacketSent = 1, ///< also what this side puts on its own messages
    LABEL_ProgressCount = 4,
    LABEL_ProgressDone = 5,
    LABEL_UsbDiskBackup = 4,
    LABEL_UsbDiskNet = 5,
};

class IpcHeaderInfo
{
public:
    /// The payload stays the caller's and must outlive this object.
    IpcHeaderInfo(const QByteArray *payload, quint32 payloadLength, quint32 source, quint32 constant,
                  quint32 reserved1, quint32 reserved2, quint16 smallLabel, quint16 largeLabel);
    explicit IpcHeaderInfo(const QByteArray *payload = nullptr);

    /// Puts the whole message into the output. False without a payload or with one too short for a packet.
    bool AssembleMessage(QByteArray &message);
    /// Puts the payload of a message in front of what the output holds. False for a message too short for a
    /// packet.
    bool UnpackMessage(const char *message, int length, QByteArray &payload) const;

private:
    quint32 m_source = 0;
    quint32 m_constant = 0;
    quint32 m_wholeSize = 0;
    quint32 m_reserved1 = 0;
    quint32 m_reserved2 = 0;
    quint16 m_smallLabel = 0;
    quint16 m_largeLabel = 0;
    quint32 m_payloadLength = 0;
    const QByteArray *m_payload = nullptr;
};

/// A received message, taken apart. Fields that the message is too short for are 0.
struct IpcMessage {
    short largeLabel = 0;
    short smallLabel = 0;
    QByteArray payload; ///< as long as the header says, as far as there are bytes
};
IpcMessage parseIpcMessage(const QByteArray &message);
/// Does a message hold its header and all of the payload that the header speaks of?
bool isWholeIpcMessage(const void *message, unsigned int length);
/// Length of a whole message by its own header.
int ipcMessageLength(const void *message);
} // namespace VASK
