#include "emulator/bus/flashimage.h"

#include "emulator/bus/flashmap.h"
#include "emulator/bus/plausibledevice.h"
#include "emulator/host/diskimage.h"
#include "emulator/model/registermap.h"
#include "fpd_hostlink.h"

#include <algorithm>

namespace
{
struct Mirror {
    quint8 deviceType;
    quint32 registerAddress;
    quint32 length;
    quint32 flashAddress;
};

constexpr quint8 sender = 0;
constexpr quint8 receiver = 1;
constexpr quint8 emitter = 4;

constexpr char mark[] = "fpd device 1";

/// Registers whose bytes stand in the flash in the same order. Where two rows hold a register, the first
/// counts.
constexpr Mirror mirrors[] = {
    // What the panel reads at start.
    {sender, 0x13000000, flashmap::deviceLength, flashmap::device},
    {sender, 0x13020000, flashmap::windowsLength, flashmap::live + flashmap::windowsOffset},
    {sender, 0x13024000, flashmap::cropsLength, flashmap::live + flashmap::cropsOffset},
    {sender, 0x13030000, 28, flashmap::loadArea},
    {sender, 0x13040003, 6, flashmap::output + 3},
    {sender, 0x13040010, flashmap::outputLength, flashmap::output}, // the same once more
    {sender, 0x13041401, 6, flashmap::output + 10},                 // of the software configuration
    {sender, 0x13042007, 1, flashmap::outputMode},
    {sender, 0x13050000, flashmap::picturesLength, flashmap::live + flashmap::picturesOffset},
    {sender, 0x13120000, 53, flashmap::inputBackup},
    {sender, 0x02000039, 1, flashmap::stereo},     // switch
    {sender, 0x02000041, 2, flashmap::stereo + 1}, // eye priority and format
    {sender, 0x02000089, 4, flashmap::stereo + 3}, // starts of the right eye
    {emitter, 0x02000001, 1, flashmap::emitter},
    {emitter, 0x02000002, 3, flashmap::emitter + 1}, // signal delay
    // What the device keeps for itself.
    {sender, 0x13010001, 9 * 32, flashmap::own},                          // input records
    {sender, 0x13060000, 48, flashmap::own + 0x200},                      // input mosaic
    {sender, osdRegister, 64, flashmap::own + 0x300},                     // OSD
    {sender, 0xF0010001, 9 * 32, flashmap::own + 0x400},                  // what was plugged in last
    {sender, osdPictureRegister, osdPictureCount, flashmap::own + 0x380}, // OSD pictures
    {sender, 0xF0020010, 3 * 48, flashmap::own + 0x600}, // windows as the panel has written them
    {sender, 0x02000000, 0x200, flashmap::own + 0x1000}, // ports and switches of the sending card
    {sender, cabinetRegister, cabinetLength, flashmap::own + 0x1200}, // cabinet size
    {sender, 0x02810000, 0x300, flashmap::own + 0x1400},              // screen configuration
    {receiver, 0x02000000, 48, flashmap::own + 0x1800},               // receiving cards
};

/// HDCP and audio of the inputs: 16 registers an input, two bytes an input in the flash.
constexpr quint32 inputRegisters = 0x13019004;
constexpr quint32 inputStride = 16;
constexpr quint32 inputCount = 8;

qint64 inputMirror(quint32 registerAddress)
{
    if (registerAddress < inputRegisters)
        return -1;
    const quint32 input = (registerAddress - inputRegisters) / inputStride;
    const quint32 field = (registerAddress - inputRegisters) % inputStride;
    const bool isHdcp = field == 0 && input == 0; // one byte for all inputs
    const bool isAudio = field == 1 && input < inputCount;
    return isHdcp || isAudio ? qint64(flashmap::inputSwitches) + field + 2 * input : -1;
}
} // namespace

FlashImage::FlashImage(const QString &stateFolder) : m_image(stateFolder + hostlink::flashFile) {}

QString FlashImage::install()
{
    if (!m_image.exists()) {
        const QString fault = make();
        if (!fault.isEmpty())
            return fault;
    }
    if (!bytes() || read(flashmap::mark, int(sizeof mark)) != QByteArray(mark, sizeof mark))
        return "cannot use " + m_image.fileName() + ": " +
               (m_image.isOpen() ? "it is no flash image of this device; without it the next start makes one"
                                 : m_image.errorString());
    return reserve(m_image, hostlink::flashSize);
}

QString FlashImage::make()
{
    const QString name = m_image.fileName();
    m_image.setFileName(name + ".new");
    QString fault;
    if (!m_image.open(QIODevice::ReadWrite | QIODevice::Truncate))
        fault = "cannot write " + m_image.fileName() + ": " + m_image.errorString();
    else
        fault = reserve(m_image, hostlink::flashSize);
    if (fault.isEmpty()) {
        for (const FlashPiece &piece : plausibleDevice())
            write(piece.address, piece.bytes);
        write(flashmap::mark, QByteArray(mark, sizeof mark));
        m_bytes = nullptr; // goes with the file's closing
        if (!m_image.rename(name))
            fault = "cannot write " + name + ": " + m_image.errorString();
    }
    if (!fault.isEmpty())
        m_image.remove();
    m_image.setFileName(name);
    return fault;
}

QByteArray FlashImage::read(quint32 address, int length) const
{
    const quint32 size = hostlink::flashSize;
    if (!bytes() || address >= size || length < 0)
        return QByteArray();
    return QByteArray(m_bytes + address, int(qMin(quint32(length), size - address)));
}

bool FlashImage::write(quint32 address, const QByteArray &written)
{
    if (quint64(address) + quint64(written.size()) > hostlink::flashSize || !bytes())
        return false;
    std::copy(written.begin(), written.end(), m_bytes + address);
    return true;
}

char FlashImage::byte(quint32 address) const
{
    return bytes() && address < hostlink::flashSize ? m_bytes[address] : '\0';
}

char *FlashImage::bytes() const
{
    if (m_bytes)
        return m_bytes;
    if (!m_image.isOpen() && (!m_image.exists() || !m_image.open(QIODevice::ReadWrite)))
        return nullptr;
    if (m_image.size() == qint64(hostlink::flashSize))
        m_bytes = reinterpret_cast<char *>(m_image.map(0, hostlink::flashSize));
    return m_bytes;
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
