// The far end of the bus: keeps every register that the panel writes, answers as the device does, and pushes
// what it is told to. Main thread.
#pragma once

#include "emulator/bus/flashimage.h"
#include "emulator/bus/wire.h"
#include "emulator/packetserver.h"

#include <QMap>
#include <QTimer>
#include <QVector>

struct RegisterWrite {
    qint64 timeMs; ///< since 1970
    quint32 address;
    quint8 deviceType;
    quint8 port;
    quint16 board;
    QByteArray bytes;
};

class Device : public QObject
{
    Q_OBJECT
public:
    explicit Device(const QString &stateFolder, QObject *parent = nullptr);

    FlashImage &flash() { return m_flash; }

    /// Opens the bus or takes it away.
    bool setBusUp(bool up);
    /// The panel is on the bus.
    bool isJoined() const { return m_clients > 0; }

    const QVector<RegisterWrite> &writes() const { return m_writes; }
    void clearWrites() { m_writes.clear(); }
    QByteArray registerBytes(quint8 deviceType, quint32 address, int length) const;

    /// All four: false if no panel is on the bus.
    bool pushRead(quint32 address, const QByteArray &bytes, quint8 deviceType, quint8 ack);
    bool pushWrite(quint32 address, const QByteArray &bytes, quint8 deviceType);
    bool pushRaw(const QByteArray &payload);
    bool pushMessage(qint16 largeLabel, qint16 smallLabel, const QByteArray &payload);

    /// Whether the device reports on its own; it does unless told otherwise.
    void setReporting(bool on) { m_reporting = on; }
    /// The reports of the start, now. False if no panel is on the bus.
    bool reportAll();

    /// The packets of a PC's session, once a second.
    void setHeartbeat(bool on);

signals:
    void written(const RegisterWrite &write);
    void joined();

private:
    void handlePacket(int client, const QByteArray &packet);
    void obeyWrite(const wire::Frame &request);
    QByteArray answer(const wire::Frame &request) const;

    PacketServer m_server;
    FlashImage m_flash;
    int m_clients = 0;
    QVector<RegisterWrite> m_writes;
    QMap<quint64, char> m_registers; ///< by device type and address
    QTimer m_heartbeat;
    QTimer m_startReports; ///< runs from the panel's joining to the reports
    bool m_reporting = true;
};
