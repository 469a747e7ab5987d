#include "emulator/bus/device.h"

#include "fpd_hostlink.h"

#include <QDateTime>
#include <algorithm>

namespace
{
constexpr quint32 deviceTask = 1u << 24 | 0x00070300;
constexpr qint16 packetLabel = 28;
constexpr quint32 heartbeatAddress = 0x13001004;
constexpr int heartbeatMs = 1000;
constexpr quint8 deviceSource = 0;
constexpr quint8 panelDestination = 254;
constexpr int keptWrites = 100000;
constexpr int keptBytes = 32 * 1024 * 1024;

QByteArray message(const QByteArray &payload)
{
    wire::Message message;
    message.source = deviceTask;
    message.payload = payload;
    return wire::encode(message);
}
} // namespace

Device::Device(const QString &stateFolder, QObject *parent)
    : QObject(parent), m_server(stateFolder + hostlink::busSocket), m_flash(stateFolder), m_model(m_flash)
{
    m_clock.start();
    connect(&m_server, &PacketServer::received, this, &Device::handlePacket);
    connect(&m_server, &PacketServer::connected, this, [this] {
        ++m_clients;
        m_told = m_reporting;
        if (m_reporting)
            reportAll();
    });
    connect(&m_server, &PacketServer::disconnected, this, [this] { --m_clients; });
    m_heartbeat.setInterval(heartbeatMs);
    connect(&m_heartbeat, &QTimer::timeout, this, &Device::beat);
    m_wait.setSingleShot(true);
    m_wait.setTimerType(Qt::PreciseTimer);
    connect(&m_wait, &QTimer::timeout, this, &Device::sendDue);
}

void Device::clearWrites()
{
    m_writes.clear();
    m_writtenBytes = 0;
}

bool Device::setBusUp(bool up)
{
    if (up)
        return m_server.open();
    m_server.close();
    return true;
}

bool Device::pushRead(quint32 address, const QByteArray &bytes, quint8 deviceType, quint8 ack)
{
    wire::Frame frame;
    frame.isReply = true;
    frame.ack = ack;
    frame.source = deviceSource;
    frame.destination = panelDestination;
    frame.deviceType = deviceType;
    frame.address = address;
    frame.length = quint16(bytes.size());
    frame.data = bytes;
    const bool taken = pushRaw(wire::encode(frame));
    if (taken && ack != 0)
        emit failurePushed({address, bytes, 0, deviceType}, ack);
    return taken;
}

bool Device::pushWrite(quint32 address, const QByteArray &bytes, quint8 deviceType)
{
    const Report write{address, bytes, 0, deviceType};
    const bool taken = sendWrite(write);
    if (taken)
        emit writePushed(write);
    return taken;
}

bool Device::sendWrite(const Report &report)
{
    wire::Frame frame;
    frame.source = deviceSource;
    frame.destination = panelDestination;
    frame.deviceType = report.deviceType;
    frame.operation = wire::Write;
    frame.address = report.address;
    frame.length = quint16(report.bytes.size());
    frame.data = report.bytes;
    return pushRaw(wire::encode(frame));
}

bool Device::pushRaw(const QByteArray &payload)
{
    return m_server.sendToAll(message(payload)) > 0;
}

bool Device::pushMessage(qint16 largeLabel, qint16 smallLabel, const QByteArray &payload)
{
    wire::Message message;
    message.source = deviceTask;
    message.largeLabel = largeLabel;
    message.smallLabel = smallLabel;
    message.payload = payload;
    const bool taken = m_server.sendToAll(wire::encode(message)) > 0;
    if (taken)
        emit messageSent(largeLabel, smallLabel, payload);
    return taken;
}

QString Device::refusal() const
{
    return m_server.isFull() ? "the panel does not read what the device tells: its queue is full"
                             : "no panel is on the bus";
}

bool Device::report(const Reports &reports)
{
    bool taken = isJoined();
    for (const Report &report : reports)
        taken &= send(report, false);
    return taken;
}

bool Device::reportAndAdopt(const Report &report)
{
    const Reports following = m_model.adopt(report);
    // What waits of that register is older.
    forget(report);
    const bool taken = send(report, false);
    if (m_reporting)
        sendLater(following);
    return taken;
}

void Device::change(const QVector<Write> &writes)
{
    Reports reports;
    for (const Write &write : writes)
        reports += m_model.obey(write);
    if (m_reporting)
        sendLater(reports);
}

bool Device::reportAll()
{
    const int settledMs = Report().afterMs;
    bool taken = isJoined();
    for (const Report &report : m_model.reports()) {
        if (report.afterMs == settledMs)
            taken &= send(report, false);
        else // not to be replaced by the next of the same register
            QTimer::singleShot(report.afterMs, this, [this, report] { send(report, false); });
    }
    return taken;
}

void Device::setHeartbeat(bool on)
{
    if (!on) {
        m_heartbeat.stop();
        return;
    }
    m_heartbeat.start();
    beat();
}

void Device::beat()
{
    sendWrite({heartbeatAddress, QByteArray(1, 1)});
}

void Device::handlePacket(int client, const QByteArray &packet)
{
    const auto received = wire::decodeMessage(packet);
    if (!received || received->largeLabel != packetLabel)
        return;
    const auto request = wire::decodeFrame(received->payload);
    if (!request || request->isReply)
        return;
    Reports reports;
    if (request->operation == wire::Write) {
        reports = m_model.obey({request->deviceType, request->address, request->data});
        keep(*request);
    }
    m_server.send(client, message(answer(*request)));
    if (m_reporting)
        sendLater(reports);
}

void Device::keep(const wire::Frame &request)
{
    m_writtenBytes += request.data.size();
    if (m_writes.size() >= keptWrites || m_writtenBytes > keptBytes) {
        const auto kept = m_writes.begin() + m_writes.size() / 2;
        for (auto write = m_writes.begin(); write != kept; ++write)
            m_writtenBytes -= write->bytes.size();
        m_writes.erase(m_writes.begin(), kept);
    }
    m_writes.append({QDateTime::currentMSecsSinceEpoch(), request.address, request.deviceType, request.port,
                     request.board, request.data});
    emit written(m_writes.last());
}

bool Device::send(const Report &report, bool isAnswer)
{
    const bool taken = pushRead(report.address, report.bytes, report.deviceType, 0);
    if (taken)
        emit reported(report, isAnswer);
    return taken;
}

void Device::forget(const Report &report)
{
    const auto same = [&report](const WaitingReport &other) {
        return other.report.address == report.address && other.report.deviceType == report.deviceType;
    };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), same), m_waiting.end());
}

void Device::sendLater(const Reports &reports)
{
    for (const Report &report : reports) {
        forget(report);
        m_waiting.append({report, m_clock.elapsed() + report.afterMs});
    }
    sendDue();
}

void Device::sendDue()
{
    const qint64 now = m_clock.elapsed();
    QVector<WaitingReport> later;
    for (const WaitingReport &waiting : qAsConst(m_waiting)) {
        if (waiting.dueMs <= now)
            send(waiting.report, true);
        else
            later.append(waiting);
    }
    m_waiting = later;
    if (m_waiting.isEmpty())
        return;
    qint64 next = m_waiting.first().dueMs;
    for (const WaitingReport &waiting : qAsConst(m_waiting))
        next = qMin(next, waiting.dueMs);
    m_wait.start(int(next - now));
}

QByteArray Device::answer(const wire::Frame &request) const
{
    wire::Frame reply = request;
    reply.isReply = true;
    reply.ack = 0;
    reply.source = request.destination;
    reply.destination = request.source;
    reply.length = request.operation == wire::Read ? request.length : 0;
    reply.data.clear();
    if (request.operation == wire::Read)
        reply.data = m_model.registers().read(request.deviceType, request.address, request.length);
    return wire::encode(reply);
}
