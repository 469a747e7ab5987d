// The device's REST service on the loopback address. It listens and reads on threads of its own; every
// request is answered by the resources on the emulator's thread, which also notes it and lets the service
// misbehave as it was told. All operations: main thread.
#pragma once

#include "emulator/host/statefolder.h"
#include "emulator/service/resources.h"

#include <QObject>
#include <QStringList>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace httplib
{
class Server;
struct Request;
struct Response;
} // namespace httplib

class RestService : public QObject
{
    Q_OBJECT
public:
    RestService(const StateFolder &folder, Device &device);
    ~RestService() override;

    /// Listens, and writes the port into the state folder; at the same one as before where that is free.
    bool open();
    /// Refuses connections; what is under way is broken off.
    void close();

    rest::Resources &resources() { return m_resources; }

    /// Lines of "METHOD PATH[?QUERY] BODY", oldest first.
    const QStringList &requests() const { return m_requests; }
    void clearRequests();

    /// All answers come so much later.
    void setDelay(int ms) { m_delayMs = ms; }
    /// Takes connections and says nothing. When it speaks again, who still waits is cut off.
    void setSilent(bool silent);
    /// Instead of their own, the next answers have that status, and that body if it is not empty; 0: their
    /// own again.
    void setStatus(int status, const QByteArray &body);
    /// The next answers are no JSON.
    void setGarbage();

signals:
    void requested(const QString &line);

private:
    struct Exchange;
    struct Behaviour {
        rest::Answer answer;
        int delayMs = 0;
        bool silent = false;
    };

    void listen();
    void serve(const httplib::Request &request, httplib::Response &response);
    Behaviour handle(const rest::Request &request);
    void note(const rest::Request &request);

    const StateFolder &m_folder;
    rest::Resources m_resources;
    QStringList m_requests;
    qint64 m_requestBytes = 0;
    int m_delayMs = 0;
    bool m_silent = false;
    rest::Answer m_instead{0, {}};

    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
    int m_port = 0;
    std::mutex m_mutex; ///< guards the two below and what an Exchange holds
    bool m_ends = false;
    int m_silences = 0; ///< how many have ended
    std::condition_variable m_changed;
};
