// The requests on their way to the service, in order of arrival, and the one worker that takes them. Requests
// come from the main thread and answers go there; the worker begins with the first request and ends with the
// application.
#pragma once

#include "framework/communication/http/4th/httpversion/httppackage.h"
#include "framework/communication/http/cache.h"
#include "framework/communication/http/ticket.h"

#include <QObject>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>
#include <vector>

namespace VASK
{
class Task;

class TaskPool : public QObject
{
    Q_OBJECT
public:
    using HttpPackage = Communicator_New::Vask4th_New::HttpPackage;
    using Entry = std::pair<std::shared_ptr<Communicator_New::Ticket>, HttpPackage>;

    /// Made on first use; null once the application is at its end. Main thread.
    static TaskPool *instance();
    ~TaskPool() override;

    /// Queues a copy of the package. Main thread.
    void push_back(std::shared_ptr<Communicator_New::Ticket> ticket, Communicator_New::Package &package);
    /// The oldest request; an empty ticket if there is none. Any thread.
    Entry pop();
    /// Blocks until there is a request. False: there will be no more. The worker.
    bool waitForRequest();

    QByteArray loadFromCache(const QString &path) const { return m_cache.get(path); }
    void clearCache() { m_cache.clear(); }

public slots:
    /// Main thread: calls the ticket's function, unless nobody waits any more.
    void slot_taskFinished(bool ok, std::shared_ptr<Communicator_New::Ticket> ticket,
                           std::shared_ptr<ResultSet> result, QString url);

private:
    TaskPool();
    static TaskPool &pool();
    /// Drops what waits, breaks off what is under way and waits for the worker.
    void end();

    Communicator_New::Cache m_cache;
    std::mutex m_mutex; ///< guards the two below
    std::deque<Entry> m_queue;
    bool m_ended = false;
    std::condition_variable m_arrived;
    std::vector<Task *> m_workers;
};
} // namespace VASK
