// The one network worker: takes requests from the pool, oldest first, and completes each exchange before it
// begins the next. A thread of its own; what an exchange comes to leaves it by signal.
#pragma once

#include "framework/communication/http/httpexchange.h"
#include "framework/communication/http/ticket.h"

#include <QThread>

namespace VASK
{
class TaskPool;

class Task : public QThread, private HttpExchange
{
    Q_OBJECT
public:
    using HttpExchange::composeUrl;
    using HttpExchange::createRequest;
    using HttpExchange::HttpPackage;
    using HttpExchange::makeMultiPart;
    using HttpExchange::parseJson;

    explicit Task(TaskPool &pool) : m_pool(pool) {}

signals:
    void signal_finished(bool ok, std::shared_ptr<Communicator_New::Ticket> ticket,
                         std::shared_ptr<ResultSet> result, QString url);

protected:
    /// Until the pool is at its end.
    void run() override;

private:
    /// One exchange, from the URL to the signal. Throws std::exception for a package that makes no request.
    void process(HttpPackage &package, const Communicator_New::PTicket &ticket);
    /// Null, with a log line, for a method that there is not.
    QNetworkReply *begin(HttpPackage &package);

    TaskPool &m_pool;
    QNetworkAccessManager *m_manager = nullptr; ///< while run() runs
};
} // namespace VASK
