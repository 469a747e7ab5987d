#include "emulator/service/restservice.h"

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"

#include <QRegularExpression>
#include <QUrl>
#include <httplib.h>

namespace
{
constexpr const char *loopback = "127.0.0.1";
constexpr size_t longestBody = 16 * 1024 * 1024;
constexpr int threads = 16; ///< a panel asks one thing after the other, but a silent service keeps each one
constexpr auto longestSilence = std::chrono::seconds(30);
constexpr int keptRequests = 100000;
constexpr qint64 keptBytes = 32 * 1024 * 1024;
constexpr int notListening = 0;

/// Whoever listens there is this process: the port is not to be shared with another emulator.
void ownPort(socket_t socket)
{
    const int yes = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
}

/// The names of the parts of a form, which not every client announces as one.
QStringList partsOf(const httplib::Request &request)
{
    QStringList names;
    for (const auto &file : request.files)
        names += QString::fromStdString(file.first);
    if (request.body.rfind("--", 0) != 0)
        return names;
    static const QRegularExpression part("\r\nContent-Disposition: *form-data; *name=\"([^\"]*)\"",
                                         QRegularExpression::CaseInsensitiveOption);
    const QString body = QString::fromUtf8(request.body.data(), int(request.body.size()));
    for (auto found = part.globalMatch(body); found.hasNext();)
        names += found.next().captured(1);
    return names;
}

/// As it came, but for the bytes that would end or spoil the line.
QString lineOf(const QByteArray &body)
{
    QString line;
    for (const QChar c : QString::fromUtf8(body))
        line += c.unicode() < ' ' ? QString("\\x%1").arg(c.unicode(), 2, 16, QChar('0')) : QString(c);
    return line;
}
} // namespace

/// A request that waits on a thread of the server for its answer from the emulator's thread.
struct RestService::Exchange {
    bool answered = false;
    Behaviour behaviour;
};

RestService::RestService(const StateFolder &folder, Device &device) : m_folder(folder), m_resources(device) {}

RestService::~RestService()
{
    close();
    QFile::remove(m_folder.file(hostlink::portFile));
}

bool RestService::open()
{
    if (m_server)
        return true;
    m_server = std::make_unique<httplib::Server>();
    m_server->set_socket_options(ownPort);
    m_server->new_task_queue = [] { return new httplib::ThreadPool(threads); };
    m_server->set_payload_max_length(longestBody);
    m_server->set_keep_alive_max_count(1);
    m_server->set_keep_alive_timeout(1); // s: so long the end waits for a connection that was never used
    m_server->set_tcp_nodelay(true);
    const auto handler = [this](const httplib::Request &request, httplib::Response &response) {
        serve(request, response);
    };
    m_server->Get(".*", handler).Put(".*", handler).Post(".*", handler).Delete(".*", handler);
    if (m_port == notListening || !m_server->bind_to_port(loopback, m_port))
        m_port = m_server->bind_to_any_port(loopback);
    if (m_port <= 0) {
        m_server.reset();
        m_port = notListening;
        return false;
    }
    listen();
    return hostlink::changeValue(m_folder.file(hostlink::portFile), QByteArray::number(hostlink::restPort),
                                 QByteArray::number(m_port));
}

void RestService::listen()
{
    m_ends = false;
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    while (!m_server->is_running())
        std::this_thread::yield();
}

void RestService::close()
{
    if (!m_server)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    m_server->stop();
    m_thread.join();
    m_server.reset();
}

void RestService::clearRequests()
{
    m_requests.clear();
    m_requestBytes = 0;
}

void RestService::setSilent(bool silent)
{
    m_silent = silent;
    if (silent)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++m_silences;
    }
    m_changed.notify_all();
}

void RestService::setStatus(int status, const QByteArray &body)
{
    m_instead = {status, body};
}

void RestService::setGarbage()
{
    m_instead = {int(200), QByteArray("\xff\xfe{\"code\":[[[\x01 0", 16)};
}

void RestService::serve(const httplib::Request &request, httplib::Response &response)
{
    const rest::Request asked{QByteArray::fromStdString(request.method),
                              QString::fromStdString(request.target), QString::fromStdString(request.path),
                              QByteArray::fromStdString(request.body), partsOf(request)};
    // Kept by the function, too: it may run when nobody waits any more.
    const auto exchange = std::make_shared<Exchange>();
    QMetaObject::invokeMethod(
        this,
        [this, asked, exchange] {
            const Behaviour behaviour = handle(asked);
            const std::lock_guard<std::mutex> lock(m_mutex);
            exchange->behaviour = behaviour;
            exchange->answered = true;
            m_changed.notify_all();
        },
        Qt::QueuedConnection);
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [&] { return m_ends || exchange->answered; });
    const Behaviour behaviour = exchange->behaviour;
    const int silences = m_silences;
    if (behaviour.silent)
        m_changed.wait_for(lock, longestSilence, [&] { return m_ends || m_silences != silences; });
    else if (behaviour.delayMs > 0)
        m_changed.wait_for(lock, std::chrono::milliseconds(behaviour.delayMs), [&] { return m_ends; });
    if (m_ends || behaviour.silent) {
        // The connection is cut in the middle of an answer.
        response.set_content_provider(1, "application/json",
                                      [](size_t, size_t, httplib::DataSink &) { return false; });
        return;
    }
    response.status = behaviour.answer.status;
    response.set_content(behaviour.answer.body.toStdString(), "application/json");
}

RestService::Behaviour RestService::handle(const rest::Request &request)
{
    note(request);
    Behaviour behaviour;
    behaviour.delayMs = m_delayMs;
    behaviour.silent = m_silent;
    if (m_silent)
        return behaviour; // nothing is done, either
    if (m_instead.status != 0)
        behaviour.answer = m_instead;
    else
        behaviour.answer = m_resources.answer(request);
    return behaviour;
}

void RestService::note(const rest::Request &request)
{
    QString line = QString::fromLatin1(request.method) + ' ' + request.target;
    if (!request.parts.isEmpty())
        line += " multipart " + request.parts.join(' ');
    else if (!request.body.isEmpty())
        line += ' ' + lineOf(request.body);
    m_requestBytes += line.size();
    if (m_requests.size() >= keptRequests || m_requestBytes > keptBytes) {
        const auto kept = m_requests.begin() + m_requests.size() / 2;
        for (auto old = m_requests.begin(); old != kept; ++old)
            m_requestBytes -= old->size();
        m_requests.erase(m_requests.begin(), kept);
    }
    m_requests += line;
    emit requested(line);
}
