#include "emulator/bus/device.h"

#include "emulator/bus/presets.h"
#include "emulator/bus/reports.h"
#include "fpd_hostlink.h"

#include <QDateTime>

namespace
{
constexpr quint32 deviceTask = 1u << 24 | 0x00070300;
constexpr qint16 packetLabel = 28;
constexpr quint32 heartbeatAddress = 0x13001004;
constexpr int heartbeatMs = 1000;
constexpr int servicesUpMs = 500; ///< after the panel's joining
constexpr quint8 deviceSource = 0;
constexpr quint8 panelDestination = 254;
constexpr int keptWrites = 100000;

quint64 registerKey(quint8 deviceType, quint32 address)
{
    return quint64(deviceType) << 32 | address;
}

QByteArray message(const QByteArray &payload)
{
    wire::Message message;
    message.source = deviceTask;
    message.payload = payload;
    return wire::encode(message);
}
} // namespace

Device::Device(const QString &stateFolder, QObject *parent)
    : QObject(parent), m_server(stateFolder + hostlink::busSocket), m_flash(stateFolder)
{
    connect(&m_server, &PacketServer::received, this, &Device::handlePacket);
    connect(&m_server, &PacketServer::connected, this, [this] {
        ++m_clients;
        m_startReports.start();
        emit joined();
    });
    connect(&m_server, &PacketServer::disconnected, this, [this] { --m_clients; });
    m_startReports.setSingleShot(true);
    m_startReports.setInterval(servicesUpMs);
    connect(&m_startReports, &QTimer::timeout, this, [this] {
        if (m_reporting)
            reportAll();
    });
    m_heartbeat.setInterval(heartbeatMs);
    connect(&m_heartbeat, &QTimer::timeout, this,
            [this] { pushWrite(heartbeatAddress, QByteArray(1, 1), 0); });
}

bool Device::setBusUp(bool up)
{
    if (up)
        return m_server.open();
    m_server.close();
    return true;
}

QByteArray Device::registerBytes(quint8 deviceType, quint32 address, int length) const
{
    QByteArray bytes(length, 0);
    for (int i = 0; i < length; ++i) {
        const quint32 at = address + quint32(i);
        const auto known = m_registers.constFind(registerKey(deviceType, at));
        const qint64 mirror = FlashImage::mirrorAddress(deviceType, at);
        if (mirror >= 0)
            bytes.replace(i, 1, m_flash.read(quint32(mirror), 1));
        else if (known != m_registers.constEnd())
            bytes[i] = *known;
    }
    return bytes;
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
    return pushRaw(wire::encode(frame));
}

bool Device::pushWrite(quint32 address, const QByteArray &bytes, quint8 deviceType)
{
    wire::Frame frame;
    frame.source = deviceSource;
    frame.destination = panelDestination;
    frame.deviceType = deviceType;
    frame.operation = wire::Write;
    frame.address = address;
    frame.length = quint16(bytes.size());
    frame.data = bytes;
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
    return m_server.sendToAll(wire::encode(message)) > 0;
}

bool Device::reportAll()
{
    const auto list = reports::atStart();
    for (const RegisterReport &report : list)
        QTimer::singleShot(report.afterMs, this,
                           [this, report] { pushRead(report.address, report.bytes, 0, 0); });
    return isJoined();
}

void Device::setHeartbeat(bool on)
{
    if (!on) {
        m_heartbeat.stop();
        return;
    }
    m_heartbeat.start();
    pushWrite(heartbeatAddress, QByteArray(1, 1), 0);
}

void Device::handlePacket(int client, const QByteArray &packet)
{
    const auto received = wire::decodeMessage(packet);
    if (!received || received->largeLabel != packetLabel)
        return;
    const auto request = wire::decodeFrame(received->payload);
    if (!request || request->isReply)
        return;
    if (request->operation == wire::Write)
        obeyWrite(*request);
    m_server.send(client, message(answer(*request)));
    if (request->operation != wire::Write || !m_reporting)
        return;
    for (const RegisterReport &report : reports::afterWrite(request->address))
        pushRead(report.address, report.bytes, request->deviceType, 0);
}

void Device::obeyWrite(const wire::Frame &request)
{
    for (int i = 0; i < request.data.size(); ++i) {
        const quint32 address = request.address + quint32(i);
        m_registers[registerKey(request.deviceType, address)] = request.data[i];
        const qint64 mirror = FlashImage::mirrorAddress(request.deviceType, address);
        if (mirror >= 0)
            m_flash.write(quint32(mirror), request.data.mid(i, 1));
    }
    presets::handleWrite(m_flash, request.address, request.data);
    if (m_writes.size() >= keptWrites)
        m_writes.erase(m_writes.begin(), m_writes.begin() + keptWrites / 2);
    m_writes.append({QDateTime::currentMSecsSinceEpoch(), request.address, request.deviceType, request.port,
                     request.board, request.data});
    emit written(m_writes.last());
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
        reply.data = registerBytes(request.deviceType, request.address, request.length);
    return wire::encode(reply);
}
