#include "framework/communication/http/udptunnel.h"

#include <QDebug>
#include <QNetworkDatagram>
#include <QNetworkInterface>

namespace Communicator_New
{
bool UDPTunnel::bind(const QHostAddress &address, unsigned short port)
{
    if (m_socket.state() != QAbstractSocket::UnconnectedState)
        m_socket.abort();
    if (m_socket.bind(address, port, QAbstractSocket::ReuseAddressHint))
        return true;
    qDebug() << "bind to port " << port << " fail [" << m_socket.errorString() << "<<]";
    return false;
}

PTicket UDPTunnel::connectTo(const QString &host, unsigned short port, Connected, Failed)
{
    const QHostAddress address(host == QLatin1String("localhost") ? "127.0.0.1" : host);
    bool isIPv4 = false;
    const quint32 peer = address.toIPv4Address(&isIPv4);
    m_peer = isIPv4 ? QHostAddress(peer) : QHostAddress();
    // A connected socket would hear one port of the host alone, and it could not be bound any more.
    if (m_socket.state() != QAbstractSocket::BoundState)
        m_socket.connectToHost(host, port, QIODevice::ReadWrite);
    return {};
}

PTicket UDPTunnel::recieve(Received function)
{
    connect(&m_socket, &QUdpSocket::readyRead, this, [this, function] { readAll(function); });
    return std::make_shared<Ticket>();
}

void UDPTunnel::readAll(const Received &function)
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram();
        const QHostAddress sender(datagram.senderAddress().toIPv4Address());
        if (!function || m_peer.isNull() || m_peer != sender)
            continue;
        function(sender, static_cast<unsigned short>(datagram.senderPort()),
                 ResultSet::fromJson(datagram.data()));
    }
}

bool UDPTunnel::sendTo(const QByteArray &data, const QHostAddress &address, unsigned short port)
{
    return m_socket.writeDatagram(data, address, port) == data.size();
}

void UDPTunnel::broadcast(const QByteArray &data, unsigned short port)
{
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces())
        for (const QNetworkAddressEntry &entry : interface.addressEntries())
            if (!entry.broadcast().toString().isEmpty())
                m_socket.writeDatagram(data, entry.broadcast(), port);
}
} // namespace Communicator_New
