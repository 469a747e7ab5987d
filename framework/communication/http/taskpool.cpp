#include "framework/communication/http/taskpool.h"

#include "framework/communication/http/task.h"
#include "framework/thread/handover.h"

#include <QCoreApplication>

namespace VASK
{
TaskPool &TaskPool::pool()
{
    static TaskPool thePool;
    return thePool;
}

TaskPool *TaskPool::instance()
{
    TaskPool &thePool = pool();
    return thePool.m_ended ? nullptr : &thePool;
}

TaskPool::TaskPool()
{
    qRegisterMetaType<PResultSet>("PResultSet");
    qRegisterMetaType<Communicator_New::PTicket>("Communicator_New::PTicket");
    auto *task = new Task(*this);
    // In the worker's thread; from there the answer is posted to this object's.
    connect(
        task, &Task::signal_finished, this,
        [this](bool ok, const Communicator_New::PTicket &ticket, const PResultSet &result,
               const QString &url) { postToGui(this, [=] { slot_taskFinished(ok, ticket, result, url); }); },
        Qt::DirectConnection);
    task->setObjectName("http");
    task->moveToThread(task);
    m_workers.push_back(task);
    task->start(QThread::InheritPriority);
    // The worker's sockets must be gone before the application is.
    qAddPostRoutine([] { pool().end(); });
}

TaskPool::~TaskPool()
{
    end();
}

void TaskPool::end()
{
    std::deque<Entry> dropped;
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_ended = true;
        dropped.swap(m_queue);
        handOver(&m_queue);
    }
    m_arrived.notify_all();
    for (Task *task : m_workers) {
        task->quit(); // leaves the loop in which it waits for a reply
        task->wait();
        delete task;
    }
    m_workers.clear();
}

void TaskPool::push_back(Communicator_New::PTicket ticket, Communicator_New::Package &package)
{
    Entry entry(std::move(ticket), dynamic_cast<HttpPackage &>(package));
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_queue.push_back(std::move(entry));
        handOver(&m_queue);
    }
    m_arrived.notify_one();
}

TaskPool::Entry TaskPool::pop()
{
    const std::lock_guard<std::mutex> guard(m_mutex);
    if (m_queue.empty())
        return Entry();
    Entry oldest = std::move(m_queue.front());
    m_queue.pop_front();
    return oldest;
}

bool TaskPool::waitForRequest()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ended && m_queue.empty()) {
        m_arrived.wait(lock);
        takeOver(&m_queue); // the wait takes the lock where the thread sanitizer does not see it
    }
    return !m_ended;
}

void TaskPool::slot_taskFinished(bool ok, Communicator_New::PTicket ticket, PResultSet result, QString)
{
    takeOver(ticket.get());
    // The ticket lets go of the function first: what it holds must go on this thread, with its last user.
    const Communicator_New::Ticket::Callback callback = std::exchange(ticket->callback, nullptr);
    if (ticket->active && callback)
        callback(ok, result);
}
} // namespace VASK
