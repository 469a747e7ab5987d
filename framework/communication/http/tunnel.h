// A way to a service: HTTP, datagrams or a WebSocket. A tunnel lives on the thread that made it, and all that
// it brings is delivered there.
#pragma once

#include "framework/communication/http/package.h"
#include "framework/communication/http/ticket.h"

#include <QHostAddress>
#include <QString>
#include <functional>
#include <memory>

namespace Communicator_New
{
class Tunnel
{
public:
    using Connected = std::function<void(bool valid)>;
    using Failed = std::function<void(int error)>;
    using Received = std::function<void(const QHostAddress &, unsigned short, std::shared_ptr<ResultSet>)>;

    virtual ~Tunnel() = default;

    /// Listens at a port, of any or of one address. False on failure and where a tunnel cannot listen.
    /// @{
    virtual bool bind(unsigned short port) = 0;
    virtual bool bind(const QHostAddress &address, unsigned short port) = 0;
    /// @}
    /// Says where the service is, and reaches for it where there is a connection. The functions tell how that
    /// goes on; a tunnel without a connection calls neither.
    virtual PTicket connectTo(const QString &host, unsigned short port, Connected onConnected,
                              Failed onError) = 0;
    /// Queues a request; its answer comes later. An empty ticket where a tunnel only receives.
    virtual PTicket send(Package &package, Ticket::Callback callback) = 0;
    /// From now on, what arrives goes to that function: the sender and the tree of its JSON text.
    virtual PTicket recieve(Received function) = 0;
    virtual bool isActived() = 0;
};
} // namespace Communicator_New
