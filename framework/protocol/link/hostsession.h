// The session of a host that holds the device: it lives on the host's packets, once a second, and ends
// sixteen seconds after the last one or when the cables are out. GUI thread.
#pragma once

#include <QObject>

class QTimer;

namespace VASK
{
class HostSession : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// A packet of the host has arrived: starts a session or keeps the running one.
    void heartbeat();
    /// A cable is in or both are out; without one the session ends at its next tick.
    void DealNetorUsbLink(bool linked);
    bool isActive() const { return m_pHeatBeat; }

public slots:
    /// One second has passed.
    void slot_Heartbeat();

signals:
    /// The host has let go of the device.
    void over();

private:
    QTimer *m_pHeatBeat = nullptr; ///< null while no session is known
    int HeardBeatOvertime = 0;     ///< seconds since the last packet
    bool resetFlag = false;        ///< a packet arrived since the last tick
    bool UsborNetUnlink = false;
};
} // namespace VASK
