#include "platform/host/panellcd/screen.h"

#include "fpd_hostlink.h"
#include "platform/host/statefile.h"

#include <QtFbSupport/private/qfbwindow_p.h>
#include <atomic>
#include <ctime>

namespace
{
constexpr int dotsPerInch = 100; ///< what the frame buffer assumes when the LCD does not tell its size

qint64 monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}
} // namespace

bool PanelLcdScreen::initialize()
{
    mDepth = 32;
    mFormat = QImage::Format_RGB32;
    mGeometry = QRect(0, 0, hostlink::lcdWidth, hostlink::lcdHeight);
    mPhysicalSize = QSizeF(mGeometry.size()) * 25.4 / dotsPerInch;
    QFbScreen::initializeCompositor();
    m_memory = mapFile();
    return m_memory != nullptr;
}

QList<QWindow *> PanelLcdScreen::windows() const
{
    QList<QWindow *> windows;
    for (const QFbWindow *window : mWindowStack)
        windows.append(window->window());
    return windows;
}

uchar *PanelLcdScreen::mapFile()
{
    m_file.setFileName(host::stateFile(hostlink::lcdFile));
    if (!m_file.open(QIODevice::ReadWrite) || !m_file.resize(hostlink::lcdFileSize)) {
        qWarning("LCD file %s: %s", qPrintable(m_file.fileName()), qPrintable(m_file.errorString()));
        return nullptr;
    }
    return m_file.map(0, hostlink::lcdFileSize);
}

QRegion PanelLcdScreen::doRedraw()
{
    QRegion touched = QFbScreen::doRedraw();
    if (m_memory && !touched.isEmpty())
        copyToFile(touched);
    return touched;
}

void PanelLcdScreen::copyToFile(const QRegion &touched)
{
    auto *counter = reinterpret_cast<std::atomic<quint64> *>(m_memory + hostlink::lcdBytes);
    auto *flushed = reinterpret_cast<std::atomic<qint64> *>(m_memory + hostlink::lcdBytes + 8);
    counter->fetch_add(1);
    for (const QRect &rect : touched) {
        const QRect part = rect & mGeometry;
        for (int y = part.top(); y <= part.bottom(); ++y)
            memcpy(m_memory + (y * hostlink::lcdWidth + part.left()) * 4,
                   mScreenImage.constScanLine(y) + part.left() * 4, size_t(part.width()) * 4);
    }
    flushed->store(monotonicNs());
    counter->fetch_add(1);
}
