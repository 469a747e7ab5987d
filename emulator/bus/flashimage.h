// The device's parameter flash: the snapshot that the panel reads at start. A new image holds a plausible
// device; a register that the flash mirrors is followed. Main thread.
#pragma once

#include <QByteArray>
#include <QString>

class FlashImage
{
public:
    explicit FlashImage(const QString &stateFolder);

    /// Makes the image if there is none.
    bool install();
    QByteArray read(quint32 address, int length) const;
    bool write(quint32 address, const QByteArray &bytes);

    /// Where the flash mirrors a register, -1 if it does not.
    static qint64 mirrorAddress(quint8 deviceType, quint32 registerAddress);

private:
    QString m_file;
};
