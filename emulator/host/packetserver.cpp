#include "emulator/host/packetserver.h"

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

#include <QFile>
#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>

namespace
{
constexpr qint64 mostWaiting = 8 * 1024 * 1024; ///< bytes to one client
constexpr qint64 packetCost = 64;               ///< bytes that a packet takes beside its own

enum class Sent { Yes, Full, Never };

Sent sendNow(int client, const QByteArray &packet)
{
    const ssize_t sent =
        ::send(client, packet.constData(), size_t(packet.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent == packet.size())
        return Sent::Yes;
    return sent < 0 && (errno == EAGAIN || errno == ENOBUFS) ? Sent::Full : Sent::Never;
}
} // namespace

PacketServer::PacketServer(const QString &file, QObject *parent) : QObject(parent), m_file(file) {}

PacketServer::~PacketServer()
{
    blockSignals(true); // whoever listens is on its way out, too
    close();
}

bool PacketServer::open()
{
    if (m_listener >= 0)
        return true;
    m_listener = hostlink::listenSocket(QFile::encodeName(m_file).toStdString(), SOCK_SEQPACKET);
    if (m_listener < 0)
        return false;
    m_notifier = new QSocketNotifier(m_listener, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PacketServer::accept);
    return true;
}

void PacketServer::close()
{
    stopListening();
    for (int client : m_clients.keys())
        drop(client);
}

void PacketServer::stopListening()
{
    if (m_listener < 0)
        return;
    delete m_notifier;
    m_notifier = nullptr;
    ::close(m_listener);
    m_listener = -1;
    QFile::remove(m_file);
}

bool PacketServer::send(int client, const QByteArray &packet)
{
    const auto found = m_clients.find(client);
    if (found == m_clients.end())
        return false;
    if (found->waiting.isEmpty()) {
        const Sent sent = sendNow(client, packet);
        if (sent != Sent::Full)
            return sent == Sent::Yes;
    }
    if (found->waitingBytes >= mostWaiting) {
        ++m_refused;
        return false;
    }
    found->waiting.enqueue(packet);
    found->waitingBytes += packet.size() + packetCost;
    found->writable->setEnabled(true);
    return true;
}

void PacketServer::sendWaiting(int client)
{
    const auto found = m_clients.find(client);
    if (found == m_clients.end())
        return;
    while (!found->waiting.isEmpty()) {
        if (sendNow(client, found->waiting.head()) == Sent::Full)
            return;
        found->waitingBytes -= found->waiting.dequeue().size() + packetCost;
    }
    found->writable->setEnabled(false);
}

int PacketServer::sendToAll(const QByteArray &packet)
{
    int taken = 0;
    for (int client : m_clients.keys())
        taken += send(client, packet) ? 1 : 0;
    return taken;
}

bool PacketServer::isFull() const
{
    return std::any_of(m_clients.begin(), m_clients.end(),
                       [](const Client &client) { return client.waitingBytes >= mostWaiting; });
}

void PacketServer::accept()
{
    const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (client < 0)
        return;
    auto *readable = new QSocketNotifier(client, QSocketNotifier::Read, this);
    connect(readable, &QSocketNotifier::activated, this, [this, client] { read(client); });
    auto *writable = new QSocketNotifier(client, QSocketNotifier::Write, this);
    writable->setEnabled(false);
    connect(writable, &QSocketNotifier::activated, this, [this, client] { sendWaiting(client); });
    m_clients.insert(client, {readable, writable, {}, 0});
    emit connected(client);
}

void PacketServer::read(int client)
{
    QByteArray packet(hostlink::longestBusMessage, Qt::Uninitialized);
    const ssize_t size = recv(client, packet.data(), size_t(packet.size()), MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (size <= 0) {
        drop(client);
        return;
    }
    packet.truncate(int(size));
    emit received(client, packet);
}

void PacketServer::drop(int client)
{
    const auto found = m_clients.find(client);
    if (found == m_clients.end())
        return;
    for (QSocketNotifier *notifier : {found->readable, found->writable}) {
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
    m_clients.erase(found);
    ::close(client);
    emit disconnected(client);
}
