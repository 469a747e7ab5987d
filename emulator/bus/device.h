// The far end of the bus: keeps every register that the panel writes, answers as the device does, lets its
// model obey and reports what the model tells. Main thread.
#pragma once

#include "emulator/bus/flashimage.h"
#include "emulator/bus/wire.h"
#include "emulator/host/packetserver.h"
#include "emulator/model/devicemodel.h"

#include <QElapsedTimer>
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
    DeviceModel &model() { return m_model; }
    Registers &registers() { return m_model.registers(); }

    /// Opens the bus or takes it away.
    bool setBusUp(bool up);
    /// The panel is on the bus.
    bool isJoined() const { return m_clients > 0; }
    /// Why a panel has not taken what was sent.
    QString refusal() const;
    /// Packets that were lost since the panel did not read.
    qint64 refused() const { return m_server.refused(); }
    /// The panel on the bus has been told at its joining what the device is; the last of that comes with the
    /// second service.
    bool hasTold() const { return isJoined() && m_told; }

    const QVector<RegisterWrite> &writes() const { return m_writes; }
    void clearWrites();

    /// All four: false if no panel is on the bus, or if it does not read.
    bool pushRead(quint32 address, const QByteArray &bytes, quint8 deviceType, quint8 ack);
    bool pushWrite(quint32 address, const QByteArray &bytes, quint8 deviceType);
    bool pushRaw(const QByteArray &payload);
    bool pushMessage(qint16 largeLabel, qint16 smallLabel, const QByteArray &payload);

    /// Reports of something that happened at the device, at once. False if a panel has not taken all of them.
    bool report(const Reports &reports);
    /// A report out of the blue: the device holds what it tells from then on.
    bool reportAndAdopt(const Report &report);

    /// A change that came another way than over the bus: the device obeys and reports as if it had.
    void change(const QVector<Write> &writes);

    /// Whether the device reports by itself what it is and what a write has done; it does unless told
    /// otherwise.
    void setReporting(bool on) { m_reporting = on; }
    /// The reports of the start, now. False if a panel has not taken all of them.
    bool reportAll();

    /// The packets of a PC's session, once a second.
    void setHeartbeat(bool on);
    bool hasHeartbeat() const { return m_heartbeat.isActive(); }

signals:
    void written(const RegisterWrite &write);
    // All of these when a panel has taken it, so that what is tried again is told once.
    /// A report; an answer is what a write of the panel has led to.
    void reported(const Report &report, bool isAnswer);
    /// An answer with an ack code, that is that something has failed.
    void failurePushed(const Report &report, quint8 ack);
    void writePushed(const Report &report);
    void messageSent(qint16 largeLabel, qint16 smallLabel, const QByteArray &payload);

private:
    struct WaitingReport {
        Report report;
        qint64 dueMs;
    };

    void handlePacket(int client, const QByteArray &packet);
    void keep(const wire::Frame &request);
    QByteArray answer(const wire::Frame &request) const;
    bool send(const Report &report, bool isAnswer);
    bool sendWrite(const Report &report);
    void beat();
    /// A waiting report of that register will not be sent.
    void forget(const Report &report);
    void sendLater(const Reports &reports);
    void sendDue();

    PacketServer m_server;
    FlashImage m_flash;
    DeviceModel m_model;
    int m_clients = 0;
    bool m_told = false;
    QVector<RegisterWrite> m_writes;
    int m_writtenBytes = 0; ///< of all of them
    QTimer m_heartbeat;
    bool m_reporting = true;
    QVector<WaitingReport> m_waiting; ///< one a register
    QTimer m_wait;
    QElapsedTimer m_clock;
};
