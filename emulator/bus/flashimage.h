// The device's parameter flash: the snapshot that the panel reads at start, and behind it what the device
// keeps for itself. A new image holds a plausible device; a register that the flash mirrors is followed. Main
// thread.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

class FlashImage
{
public:
    explicit FlashImage(const QString &stateFolder);

    /// Makes the image if there is none. Empty, or what went wrong.
    QString install();
    QByteArray read(quint32 address, int length) const;
    bool write(quint32 address, const QByteArray &bytes);
    /// One byte, 0 beyond the end.
    char byte(quint32 address) const;

    /// Where the flash mirrors a register, -1 if it does not.
    static qint64 mirrorAddress(quint8 deviceType, quint32 registerAddress);

private:
    /// Under another name first, so that an image is whole or not there.
    QString make();
    /// The image in memory, or null; the panel sees at once what is written there.
    char *bytes() const;

    mutable QFile m_image;
    mutable char *m_bytes = nullptr;
};
