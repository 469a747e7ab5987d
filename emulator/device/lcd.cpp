#include "emulator/device/lcd.h"

#include "fpd_hostlink.h"

#include <QThread>
#include <atomic>

namespace
{
constexpr int longestWaitMs = 200; ///< for a writer that died in the middle of a change

quint64 counter(const uchar *memory)
{
    return reinterpret_cast<const std::atomic<quint64> *>(memory + hostlink::lcdBytes)->load();
}
} // namespace

Lcd::Lcd(const QString &stateFolder) : m_file(stateFolder + hostlink::lcdFile)
{
    if (m_file.open(QIODevice::ReadOnly) && m_file.size() == hostlink::lcdFileSize)
        m_memory = m_file.map(0, hostlink::lcdFileSize);
}

quint64 Lcd::changes() const
{
    return m_memory ? counter(m_memory) / 2 : 0;
}

qint64 Lcd::changedNs() const
{
    const uchar *time = m_memory + hostlink::lcdBytes + sizeof(quint64);
    return m_memory ? reinterpret_cast<const std::atomic<qint64> *>(time)->load() : 0;
}

QImage Lcd::picture() const
{
    QImage picture(hostlink::lcdWidth, hostlink::lcdHeight, QImage::Format_RGB32);
    picture.fill(Qt::black);
    if (!m_memory)
        return picture;
    for (int waited = 0;; ++waited) {
        const quint64 before = counter(m_memory);
        if (before % 2 == 0 || waited >= longestWaitMs) {
            memcpy(picture.bits(), m_memory, hostlink::lcdBytes);
            std::atomic_signal_fence(std::memory_order_acq_rel);
            if (counter(m_memory) == before)
                return picture;
        }
        QThread::msleep(1);
    }
}
