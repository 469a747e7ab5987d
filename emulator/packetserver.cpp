#include "emulator/packetserver.h"

#include "fpd_hostsocket.h"

#include <QFile>
#include <QSocketNotifier>
#include <cerrno>

namespace
{
constexpr int maximalPacket = 65536;
}

PacketServer::PacketServer(const QString &file, QObject *parent) : QObject(parent), m_file(file) {}

PacketServer::~PacketServer()
{
    blockSignals(true); // whoever listens is on its way out, too
    close();
}

bool PacketServer::open()
{
    if (isOpen())
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
    if (!isOpen())
        return;
    for (int client : m_clients.keys())
        drop(client);
    delete m_notifier;
    m_notifier = nullptr;
    ::close(m_listener);
    m_listener = -1;
    QFile::remove(m_file);
}

bool PacketServer::send(int client, const QByteArray &packet)
{
    if (!m_clients.contains(client))
        return false;
    const ssize_t sent =
        ::send(client, packet.constData(), size_t(packet.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
    return sent == packet.size();
}

int PacketServer::sendToAll(const QByteArray &packet)
{
    int taken = 0;
    for (int client : m_clients.keys())
        taken += send(client, packet) ? 1 : 0;
    return taken;
}

void PacketServer::accept()
{
    const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (client < 0)
        return;
    auto *notifier = new QSocketNotifier(client, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, client] { read(client); });
    m_clients.insert(client, notifier);
    emit connected(client);
}

void PacketServer::read(int client)
{
    QByteArray packet(maximalPacket, Qt::Uninitialized);
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
    QSocketNotifier *notifier = m_clients.take(client);
    if (!notifier)
        return;
    notifier->setEnabled(false);
    notifier->deleteLater();
    ::close(client);
    emit disconnected(client);
}
