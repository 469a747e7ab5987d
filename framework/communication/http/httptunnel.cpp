#include "framework/communication/http/httptunnel.h"

#include "framework/communication/http/taskpool.h"

#include <QSslConfiguration>

namespace VASK
{
using Communicator_New::Ticket;

HTTPTunnel::HTTPTunnel()
{
    useNoProxy(m_manager);
    // Warming up makes a reply, too, and nobody else would release it.
    m_manager.setAutoDeleteReplies(true);
}

HTTPTunnel::PTicket HTTPTunnel::connectTo(const QString &host, unsigned short port, Connected, Failed)
{
    setAddress(QString("http://%1:%2").arg(host).arg(port));
    m_manager.connectToHost(host, port);
    return {};
}

HTTPTunnel::PTicket HTTPTunnel::send(Package &package, Callback callback)
{
    TaskPool *pool = TaskPool::instance();
    if (!pool)
        return {};
    dynamic_cast<HttpPackage &>(package).setAddress(m_address);
    const auto ticket = std::make_shared<Ticket>(std::move(callback));
    pool->push_back(ticket, package);
    return ticket;
}

void HTTPTunnel::clearCache()
{
    if (TaskPool *pool = TaskPool::instance())
        pool->clearCache();
}

QNetworkRequest HTTPTunnel::createRequest(const QString &address, const QString &url,
                                          const StringMap &headers) const
{
    QNetworkRequest request = HttpExchange::createRequest(address, url, headers);
    if (m_sslEnabled) {
        QSslConfiguration ssl = QSslConfiguration::defaultConfiguration();
        ssl.setPeerVerifyMode(QSslSocket::VerifyNone);
        ssl.setProtocol(QSsl::TlsV1_1);
        request.setSslConfiguration(ssl);
    }
    return request;
}

HTTPTunnel::PTicket HTTPTunnel::downloadFile(Package &package, Callback callback, Progress progress)
{
    const auto &wanted = dynamic_cast<HttpPackage &>(package);
    if (wanted.method() != "get")
        return {};
    const QString url = composeUrl(wanted.getUrl(), wanted.parameters(), wanted.placeHolders());
    QNetworkRequest request = createRequest(m_address, url, wanted.requestHeader());
    request.setTransferTimeout(int(timeoutOf(wanted).count()));
    const QString saveTo = saveToOf(wanted);
    const auto ticket = std::make_shared<Ticket>(std::move(callback));
    QNetworkReply *reply = m_manager.get(request);
    connect(reply, &QNetworkReply::downloadProgress, this, [progress](qint64 received, qint64 total) {
        if (progress)
            progress(long(received), long(total));
    });
    connect(reply, &QNetworkReply::finished, this, [reply, ticket, saveTo] {
        const Callback answered = std::exchange(ticket->callback, nullptr);
        const Outcome outcome = outcomeOf(*reply, saveTo);
        if (ticket->active && answered)
            answered(outcome.ok, outcome.tree);
    });
    return ticket;
}
} // namespace VASK
