#include "emulator/bus/flashimage.h"

#include "emulator/bus/plausibledevice.h"
#include "emulator/diskimage.h"
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

/// Says that the image is of this device.
constexpr quint32 markAddress = 0xDFFF00;
constexpr char mark[] = "fpd device 1";

/// Registers whose bytes stand in the flash in the same order. Where two rows hold a register, the first
/// counts.
constexpr Mirror mirrors[] = {
    // What the panel reads at start.
    {sender, 0x13000000, 161, 0x2000}, // device
    {sender, 0x13020000, 160, 0xE800}, // windows of the live record
    {sender, 0x13024000, 412, 0xEE00}, // crops of the live record
    {sender, 0x13030000, 28, 0x12600}, // load area
    {sender, 0x13040003, 6, 0xF603},   // output
    {sender, 0x13040010, 16, 0xF600},  // the same once more
    {sender, 0x13041401, 6, 0xF60A},   // output of the software configuration
    {sender, 0x13042007, 1, 0x2F00},   // output mode
    {sender, 0x13050000, 160, 0xEA00}, // pictures of the live record
    {sender, 0x13120000, 53, 0x10600}, // input backup
    {sender, 0x02000039, 1, 0x2400},   // 3D switch
    {sender, 0x02000041, 2, 0x2401},   // 3D eye priority and format
    {sender, 0x02000089, 4, 0x2403},   // 3D starts of the right eye
    {emitter, 0x02000001, 1, 0x2407},  // 3D emitter
    {emitter, 0x02000002, 3, 0x2408},  // 3D signal delay
    // What the device keeps for itself.
    {sender, 0x13010001, 9 * 32, 0xE00000}, // input records
    {sender, 0x13060000, 48, 0xE00200},     // input mosaic
    {sender, 0x13411000, 64, 0xE00300},     // OSD
    {sender, 0xF0010001, 9 * 32, 0xE00400}, // what was plugged in last
    {sender, 0x13412000, 8, 0xE00380},      // OSD pictures
    {sender, 0x02000000, 0x200, 0xE01000},  // ports and switches of the sending card
    {sender, 0x02100006, 4, 0xE01200},      // cabinet size
    {sender, 0x02810000, 0x300, 0xE01400},  // screen configuration
    {receiver, 0x02000000, 48, 0xE01800},   // receiving cards
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

FlashImage::FlashImage(const QString &stateFolder) : m_image(stateFolder + hostlink::flashFile) {}

QString FlashImage::install()
{
    if (!m_image.exists()) {
        const QString fault = make();
        if (!fault.isEmpty())
            return fault;
    }
    if (!bytes() || read(markAddress, int(sizeof mark)) != QByteArray(mark, sizeof mark))
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
        write(markAddress, QByteArray(mark, sizeof mark));
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
