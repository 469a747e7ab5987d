#include "emulator/web/api.h"

#include "emulator/console/jsonforms.h"
#include "emulator/emulator.h"
#include "emulator/web/websession.h"

#include <QBuffer>
#include <QJsonDocument>

namespace
{
constexpr const char *json = "application/json";
constexpr int longestAnswer = 1024 * 1024;            ///< bytes of a word's lines
constexpr qint64 longestRecording = 64 * 1024 * 1024; ///< bytes, as of one that is replayed

/// A form of a panel that has no picture.
bool isDark(HttpConnection &connection, const Emulator &emulator)
{
    if (!emulator.panel.isRunning())
        connection.refuse(http::conflict, emulator.panel.status() + ": its LCD is dark");
    return !emulator.panel.isRunning();
}

void respond(HttpConnection &connection, const QJsonDocument &document, http::Status status = http::fine)
{
    connection.respond(status, json, document.toJson(QJsonDocument::Compact));
}

http::Status statusOf(Failure failure)
{
    switch (failure) {
    case Failure::none:
        return http::fine;
    case Failure::usage:
        return http::badRequest;
    case Failure::timeout:
        return http::timedOut;
    default:
        return http::conflict;
    }
}

void sendEvent(HttpConnection *connection, const char *name, const QJsonDocument &data)
{
    connection->stream(QByteArray("event: ") + name + "\ndata: " + data.toJson(QJsonDocument::Compact) +
                       "\n\n");
}

/// By what a browser calls the places of a keyboard.
QString placeOf(char shortcut)
{
    return QString(isdigit(shortcut) ? "Digit%1" : "Key%1").arg(QLatin1Char(shortcut));
}
} // namespace

struct Api::Route {
    const char *method;
    const char *path;
    Access::Right right;
    void (Api::*answer)(HttpConnection &connection, const http::Request &request);
};

const QVector<Api::Route> &Api::routes()
{
    static const QVector<Route> all = {
        {"GET", "/api/layout.json", Access::look, &Api::layout},
        {"GET", "/api/screen.png", Access::look, &Api::screenPng},
        {"GET", "/api/screen.json", Access::look, &Api::screenJson},
        {"GET", "/api/events", Access::look, &Api::events},
        {"POST", "/api/console", Access::drive, &Api::console},
        {"POST", "/api/recording/start", Access::drive, &Api::startRecording},
        {"POST", "/api/recording/stop", Access::drive, &Api::stopRecording},
    };
    return all;
}

QStringList Api::paths()
{
    QStringList all;
    for (const Route &route : routes())
        all << route.path;
    all.sort();
    return all;
}

Api::Api(Emulator &emulator, QObject *parent) : QObject(parent), m_emulator(emulator) {}

void Api::answer(HttpConnection &connection, const http::Request &request, Access::Right right)
{
    bool isPath = false;
    for (const Route &route : routes()) {
        if (request.path != QLatin1String(route.path))
            continue;
        isPath = true;
        if (request.method != route.method)
            continue;
        if (right < route.right)
            return connection.refuse(right == Access::nothing ? http::unauthorized : http::forbidden,
                                     right == Access::nothing ? "a token is needed"
                                                              : "who looks does nothing");
        return (this->*route.answer)(connection, request);
    }
    connection.refuse(isPath ? http::wrongMethod : http::notFound,
                      isPath ? "not by this method" : "there is nothing by this path");
}

void Api::layout(HttpConnection &connection, const http::Request &)
{
    QJsonArray keys, fixed;
    for (const KeyName &key : keyNames())
        keys.append(QJsonObject{{"name", key.name},
                                {"label", key.label},
                                {"led", key.led},
                                {"place", key.shortcut ? placeOf(key.shortcut) : QString()}});
    for (const PcKey &key : pcKeys()) {
        QJsonObject object{{"place", key.place}};
        if (key.steps != 0)
            object.insert("steps", key.steps);
        for (const KeyName &name : keyNames()) {
            if (name.code == key.panelKey)
                object.insert("name", name.name);
        }
        fixed.append(object);
    }
    respond(connection, QJsonDocument(QJsonObject{{"keys", keys},
                                                  {"fixed", fixed},
                                                  {"keysPerRow", keysPerRow},
                                                  {"folder", m_emulator.folder.path()}}));
}

void Api::screenPng(HttpConnection &connection, const http::Request &request)
{
    if (!request.query.hasQueryItem("last") && isDark(connection, m_emulator))
        return;
    QBuffer png;
    m_emulator.lcd.picture().save(&png, "PNG");
    connection.respond(http::fine, "image/png", png.data());
}

void Api::screenJson(HttpConnection &connection, const http::Request &)
{
    if (isDark(connection, m_emulator))
        return;
    m_emulator.screenText.ask(&connection, [&connection](const std::optional<QJsonArray> &texts) {
        if (texts)
            respond(connection, QJsonDocument(*texts));
        else
            connection.refuse(http::conflict, "the panel does not answer");
    });
}

void Api::events(HttpConnection &connection, const http::Request &)
{
    HttpConnection *client = &connection;
    const Emulator &emulator = m_emulator;
    const auto sendPanel = [client, &emulator] {
        sendEvent(client, "panel", QJsonDocument(jsonforms::panel(emulator.panel)));
    };
    const auto sendLeds = [client, &emulator] {
        sendEvent(client, "leds", QJsonDocument(jsonforms::leds(emulator.keypad.ledText())));
    };
    client->beginStream("text/event-stream");
    sendPanel();
    sendLeds();
    for (auto change : {&PanelProcess::started, &PanelProcess::ended})
        connect(&emulator.panel, change, client, sendPanel);
    connect(&emulator.keypad, &Keypad::ledsChanged, client, sendLeds);
    connect(&emulator.device, &Device::written, client, [client](const RegisterWrite &write) {
        sendEvent(client, "write", QJsonDocument(jsonforms::write(write)));
    });
    connect(&emulator.panel, &PanelProcess::line, client, [client](const LogLine &line) {
        sendEvent(client, "log", QJsonDocument(jsonforms::logLine(line)));
    });
    connect(&m_emulator.screenText, &ScreenText::changed, client,
            [client](const QJsonArray &texts) { sendEvent(client, "texts", QJsonDocument(texts)); });
    m_emulator.screenText.watch(client);
}

void Api::console(HttpConnection &connection, const http::Request &request)
{
    struct Answer {
        QJsonArray lines;
        int bytes = 0;
    };
    const QJsonDocument body = QJsonDocument::fromJson(request.body);
    QStringList words;
    for (const QJsonValue &word : body.array())
        words << word.toString();
    if (words.isEmpty())
        return connection.refuse(http::badRequest, R"(the body must be like ["key", "ok"])");
    if (words.contains("--follow"))
        return connection.refuse(http::badRequest, "--follow has no end here; /api/events follows");
    auto *session = new WebSession(m_emulator, &connection);
    auto answer = std::make_shared<Answer>();
    connect(session, &WebSession::said, session, [session, answer](const QJsonValue &line) {
        answer->lines.append(line);
        answer->bytes += line.isString()
                             ? line.toString().size()
                             : QJsonDocument(QJsonArray{line}).toJson(QJsonDocument::Compact).size();
        if (answer->bytes > longestAnswer)
            session->cut();
    });
    connect(session, &WebSession::ended, &connection,
            [&connection, answer](Failure failure, const QString &reason) {
                QJsonObject object{{"ok", failure == Failure::none}, {"lines", answer->lines}};
                if (failure != Failure::none)
                    object.insert("error", reason);
                respond(connection, QJsonDocument(object), statusOf(failure));
            });
    session->run(words);
}

void Api::startRecording(HttpConnection &connection, const http::Request &)
{
    const QString fault = m_emulator.recorder.start(m_emulator.folder.newFile("sessions", ".txt"));
    if (!fault.isEmpty())
        return connection.refuse(http::conflict, fault);
    respond(connection, QJsonDocument(QJsonObject{{"ok", true}}));
}

void Api::stopRecording(HttpConnection &connection, const http::Request &)
{
    if (!m_emulator.recorder.isRecording())
        return connection.refuse(http::conflict, "nothing is being recorded");
    QFile file(m_emulator.recorder.fileName());
    const QString fault = m_emulator.recorder.stop().second;
    if (!fault.isEmpty())
        return connection.refuse(http::conflict, fault);
    if (file.size() > longestRecording || !file.open(QIODevice::ReadOnly))
        return connection.refuse(http::conflict,
                                 "the session cannot be read here; it is in " + file.fileName());
    connection.respond(http::fine, "text/plain; charset=utf-8", file.readAll());
}
