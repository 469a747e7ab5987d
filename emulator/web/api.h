// What a program asks of the emulator over HTTP, as page/openapi.json tells. Main thread.
#pragma once

#include "emulator/web/access.h"
#include "emulator/web/httpconnection.h"

#include <QObject>

class Emulator;

class Api : public QObject
{
    Q_OBJECT
public:
    explicit Api(Emulator &emulator, QObject *parent = nullptr);

    static bool isPath(const QString &path) { return path.startsWith("/api/"); }
    /// In alphabetical order, without the streams.
    static QStringList paths();
    /// Answers the request of a client with that right, at once or later.
    void answer(HttpConnection &connection, const http::Request &request, Access::Right right);

private:
    struct Route;
    static const QVector<Route> &routes();

    void layout(HttpConnection &connection, const http::Request &request);
    void screenPng(HttpConnection &connection, const http::Request &request);
    void screenJson(HttpConnection &connection, const http::Request &request);
    void events(HttpConnection &connection, const http::Request &request);
    void console(HttpConnection &connection, const http::Request &request);
    void startRecording(HttpConnection &connection, const http::Request &request);
    void stopRecording(HttpConnection &connection, const http::Request &request);

    Emulator &m_emulator;
};
