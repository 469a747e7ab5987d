// The way to the device service over HTTP: requests are queued for the worker, so that nobody waits here.
// Main thread.
#pragma once

#include "framework/communication/http/httpexchange.h"
#include "framework/communication/http/tunnel.h"

#include <QNetworkAccessManager>
#include <QObject>

namespace VASK
{
class HTTPTunnel : public QObject, public Communicator_New::Tunnel, private HttpExchange
{
    Q_OBJECT
public:
    using Package = Communicator_New::Package;
    using PTicket = Communicator_New::PTicket;
    using Callback = Communicator_New::Ticket::Callback;
    using Progress = std::function<void(long received, long total)>;
    using HttpExchange::composeUrl;
    using HttpExchange::StringMap;

    HTTPTunnel();

    bool bind(unsigned short) override { return false; }
    bool bind(const QHostAddress &, unsigned short) override { return false; }
    /// Notes the address and warms a connection up. Neither function is called.
    PTicket connectTo(const QString &host, unsigned short port, Connected onConnected,
                      Failed onError) override;
    /// Queues the request for the noted address. std::bad_cast for a package of another kind.
    PTicket send(Package &package, Callback callback) override;
    PTicket recieve(Received) override { return {}; }
    bool isActived() override { return true; }

    void setAddress(const QString &text) { m_address = text; }
    /// Over TLS, whoever the service is. Off at the start.
    void setSSLEnabled(bool enabled) { m_sslEnabled = enabled; }
    static void clearCache();

    /// As the worker's, and over TLS with what that needs.
    QNetworkRequest createRequest(const QString &address, const QString &url, const StringMap &headers) const;

    /// Fetches a URL on this thread, past the worker and its queue: for what is long. The package's method is
    /// "get", else nothing happens and the ticket is empty. The answer is read, or saved where the package
    /// says, and delivered like the worker's; a service from which nothing comes for the time-out has failed.
    PTicket downloadFile(Package &package, Callback callback, Progress progress);

private:
    QNetworkAccessManager m_manager;
    QString m_address;
    bool m_sslEnabled = false;
};
} // namespace VASK
