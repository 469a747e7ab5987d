#include "framework/protocol/link/hostsession.h"

#include <QDebug>
#include <QTimer>

namespace VASK
{
namespace
{
constexpr int tickMs = 1000;
constexpr int longestSilence = 16; // ticks
} // namespace

void HostSession::heartbeat()
{
    if (m_pHeatBeat) {
        resetFlag = true;
        return;
    }
    m_pHeatBeat = new QTimer(this);
    connect(m_pHeatBeat, &QTimer::timeout, this, &HostSession::slot_Heartbeat);
    m_pHeatBeat->start(tickMs);
}

void HostSession::DealNetorUsbLink(bool linked)
{
    if (linked || !m_pHeatBeat)
        return;
    qDebug() << "UsborNetUnlink！！！！";
    UsborNetUnlink = true;
}

void HostSession::slot_Heartbeat()
{
    if (!m_pHeatBeat)
        return;
    HeardBeatOvertime = resetFlag ? 0 : HeardBeatOvertime + 1;
    resetFlag = false;
    if (HeardBeatOvertime < longestSilence && !UsborNetUnlink)
        return;
    emit over();
    m_pHeatBeat->stop();
    // The timer may be the one that calls.
    m_pHeatBeat->deleteLater();
    m_pHeatBeat = nullptr;
    HeardBeatOvertime = 0;
    UsborNetUnlink = false;
}
} // namespace VASK
