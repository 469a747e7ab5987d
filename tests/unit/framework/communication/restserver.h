// A device service on the loopback address that notes what is asked of it and answers as the test says.
#pragma once

#include <QMutex>
#include <QStringList>
#include <QtTest>
#include <httplib.h>
#include <thread>

class RestServer
{
public:
    struct Answer {
        int status = 200;
        std::string body = R"({"code":0})";
        int delayMs = 0;
    };

    RestServer()
    {
        const auto handler = [this](const httplib::Request &request, httplib::Response &response) {
            handle(request, response);
        };
        m_server.Get(".*", handler).Put(".*", handler).Post(".*", handler).Delete(".*", handler);
        m_server.set_tcp_nodelay(true);     // head and body of an answer are two packets
        m_server.set_keep_alive_timeout(1); // the end need not wait longer for a connection that is kept
        m_port = static_cast<unsigned short>(m_server.bind_to_any_port("127.0.0.1"));
        m_thread = std::thread([this] { m_server.listen_after_bind(); });
        while (!m_server.is_running())
            std::this_thread::yield();
    }
    ~RestServer()
    {
        m_server.stop();
        m_thread.join();
    }

    unsigned short port() const { return m_port; }
    QString address() const { return QString("http://127.0.0.1:%1").arg(m_port); }
    void answer(const Answer &answer)
    {
        QMutexLocker lock(&m_mutex);
        m_answer = answer;
    }
    void answer(const std::string &body, int status = 200) { answer(Answer{status, body, 0}); }
    /// Lines of "METHOD PATH[?QUERY] BODY", taken.
    QStringList take()
    {
        QMutexLocker lock(&m_mutex);
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }
    /// The same once there are so many.
    QStringList take(int count)
    {
        const auto arrived = [&] {
            QMutexLocker lock(&m_mutex);
            return m_lines.size() >= count;
        };
        return QTest::qWaitFor(arrived) ? take() : take();
    }
    /// A path that is answered with status 500; set while nothing is under way.
    std::string failPath;
    QString header(const char *name)
    {
        QMutexLocker lock(&m_mutex);
        return QString::fromStdString(m_last.get_header_value(name));
    }

private:
    void handle(const httplib::Request &request, httplib::Response &response)
    {
        QMutexLocker lock(&m_mutex);
        m_last = request;
        m_lines += QString::fromStdString(request.method + ' ' + request.target +
                                          (request.body.empty() ? "" : ' ' + request.body));
        const Answer answer = m_answer;
        lock.unlock();
        std::this_thread::sleep_for(std::chrono::milliseconds(answer.delayMs));
        response.status = request.path == failPath ? 500 : answer.status;
        response.set_content(answer.body, "application/json");
    }

    httplib::Server m_server;
    unsigned short m_port;
    std::thread m_thread;
    QMutex m_mutex; ///< guards the rest, which the server's threads write
    Answer m_answer;
    httplib::Request m_last;
    QStringList m_lines;
};
