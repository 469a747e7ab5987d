#include "emulator/bus/flashimage.h"

#include "emulator/bus/plausibledevice.h"
#include "fpd_hostlink.h"

#include <QFile>

namespace
{
struct Mirror {
    quint8 deviceType;
    quint32 registerAddress;
    quint32 length;
    quint32 flashAddress;
};

constexpr quint8 sender = 0;
constexpr quint8 emitter = 4;

/// Registers whose bytes stand in the flash in the same order.
constexpr Mirror mirrors[] = {
    {sender, 0x13000000, 161, 0x2000}, // device
    {sender, 0x13020000, 160, 0xE800}, // windows of the live record
    {sender, 0x13024000, 412, 0xEE00}, // crops of the live record
    {sender, 0x13030000, 28, 0x12600}, // load area
    {sender, 0x13040007, 2, 0xF607},   // output rate
    {sender, 0x13040010, 16, 0xF600},  // output
    {sender, 0x13042007, 1, 0x2F00},   // output mode
    {sender, 0x13050000, 160, 0xEA00}, // pictures of the live record
    {sender, 0x13120000, 53, 0x10600}, // input backup
    {sender, 0x02000039, 1, 0x2400},   // 3D switch
    {sender, 0x02000041, 2, 0x2401},   // 3D eye priority and format
    {sender, 0x02000089, 4, 0x2403},   // 3D starts of the right eye
    {emitter, 0x02000001, 1, 0x2407},  // 3D emitter
    {emitter, 0x02000002, 3, 0x2408},  // 3D signal delay
};

/// HDCP and audio of the inputs: 16 registers an input, two bytes an input in the flash.
constexpr quint32 inputRegisters = 0x13019004;
constexpr quint32 inputStride = 16;
constexpr quint32 inputCount = 8;
constexpr quint32 inputFlash = 0x15630;

qint64 inputMirror(quint32 registerAddress)
{
    if (registerAddress < inputRegisters)
        return -1;
    const quint32 input = (registerAddress - inputRegisters) / inputStride;
    const quint32 field = (registerAddress - inputRegisters) % inputStride;
    const bool isHdcp = field == 0 && input == 0; // one byte for all inputs
    const bool isAudio = field == 1 && input < inputCount;
    return isHdcp || isAudio ? qint64(inputFlash) + field + 2 * input : -1;
}
} // namespace

FlashImage::FlashImage(const QString &stateFolder) : m_file(stateFolder + hostlink::flashFile) {}

bool FlashImage::install()
{
    QFile image(m_file);
    if (image.exists() && image.size() == qint64(hostlink::flashSize))
        return true;
    if (!image.open(QIODevice::ReadWrite) || !image.resize(0) || !image.resize(hostlink::flashSize))
        return false;
    for (const FlashPiece &piece : plausibleDevice()) {
        image.seek(piece.address);
        image.write(piece.bytes);
    }
    return true;
}

QByteArray FlashImage::read(quint32 address, int length) const
{
    QFile image(m_file);
    if (!image.open(QIODevice::ReadOnly) || !image.seek(address))
        return QByteArray();
    return image.read(length);
}

bool FlashImage::write(quint32 address, const QByteArray &bytes)
{
    QFile image(m_file);
    if (quint64(address) + quint64(bytes.size()) > hostlink::flashSize || !image.open(QIODevice::ReadWrite))
        return false;
    return image.seek(address) && image.write(bytes) == bytes.size();
}

qint64 FlashImage::mirrorAddress(quint8 deviceType, quint32 registerAddress)
{
    for (const Mirror &mirror : mirrors) {
        if (mirror.deviceType == deviceType && registerAddress >= mirror.registerAddress &&
            registerAddress - mirror.registerAddress < mirror.length)
            return qint64(mirror.flashAddress) + (registerAddress - mirror.registerAddress);
    }
    return deviceType == sender ? inputMirror(registerAddress) : -1;
}
