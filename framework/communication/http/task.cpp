#include "framework/communication/http/task.h"

#include "framework/communication/http/taskpool.h"
#include "framework/thread/handover.h"

#include <QDebug>
#include <QEventLoop>
#include <QTimer>

namespace VASK
{
void Task::run()
{
    setPriority(QThread::HighPriority);
    QNetworkAccessManager manager;
    useNoProxy(manager);
    m_manager = &manager;
    while (m_pool.waitForRequest()) {
        auto [ticket, package] = m_pool.pop();
        if (!ticket)
            continue;
        try {
            process(package, ticket);
        } catch (const std::exception &wrong) {
            handOver(ticket.get());
            emit signal_finished(false, ticket, failed(wrong.what()).tree, package.getUrl());
        }
    }
    m_manager = nullptr;
}

QNetworkReply *Task::begin(HttpPackage &package)
{
    const QNetworkRequest request = createRequest(package);
    std::unique_ptr<QHttpMultiPart> form = makeMultiPart(package);
    const QString method = package.method();
    QNetworkReply *reply = nullptr;
    if (method == "get")
        reply = m_manager->get(request);
    else if (method == "put")
        reply = form ? m_manager->put(request, form.get()) : m_manager->put(request, package.requestData());
    else if (method == "post")
        reply = form ? m_manager->post(request, form.get()) : m_manager->post(request, package.requestData());
    else if (method == "del")
        reply = m_manager->deleteResource(request);
    else
        qWarning() << "calling http job with invalid method [" << method << "<<";
    if (reply && form)
        form.release()->setParent(reply);
    return reply;
}

void Task::process(HttpPackage &package, const Communicator_New::PTicket &ticket)
{
    const std::chrono::milliseconds timeout = timeoutOf(package);
    const QString saveTo = saveToOf(package);
    // Not deleteLater: between two requests this thread waits for the next one and has no event loop.
    const std::unique_ptr<QNetworkReply> reply(begin(package));
    if (!reply)
        return;
    if (saveTo.isEmpty())
        boundAnswer(reply.get());
    QTimer::singleShot(timeout, reply.get(), [&reply] { reply->abort(); });
    QEventLoop loop;
    connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    if (!reply->isFinished())
        return; // the process ends
    const Outcome outcome = outcomeOf(*reply, saveTo);
    handOver(ticket.get());
    emit signal_finished(outcome.ok, ticket, outcome.tree, reply->url().toString());
}
} // namespace VASK
