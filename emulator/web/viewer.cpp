#include "emulator/web/viewer.h"

#include "emulator/emulator.h"
#include "emulator/web/live.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace
{
constexpr int mostWords = 16;              ///< of the console at once
constexpr int mostSteps = 100;             ///< of the knob in one message
constexpr qint64 mostUnread = 1024 * 1024; ///< bytes of answers
constexpr quint64 longestMessage = 64 * 1024;
constexpr int pulseMs = 2000, mostUnanswered = 3;

QStringList toWords(const QJsonValue &value)
{
    QStringList words;
    for (const QJsonValue &word : value.toArray())
        words << word.toString();
    return words;
}
} // namespace

struct Viewer::Act {
    const char *name;
    bool drives;
    void (Viewer::*obey)(const QJsonObject &message);
};

Viewer::Viewer(QWebSocket *socket, Emulator &emulator, Live &live, bool mayDrive, QObject *parent)
    : QObject(parent), m_socket(socket), m_emulator(emulator), m_live(live), m_mayDrive(mayDrive)
{
    socket->setParent(this);
    socket->setMaxAllowedIncomingFrameSize(longestMessage);
    socket->setMaxAllowedIncomingMessageSize(longestMessage);
    connect(socket, &QWebSocket::textMessageReceived, this, &Viewer::take);
    connect(socket, &QWebSocket::binaryMessageReceived, socket,
            [socket] { socket->close(QWebSocketProtocol::CloseCodeDatatypeNotSupported); });
    connect(socket, &QWebSocket::disconnected, this, &QObject::deleteLater);
    connect(socket, &QWebSocket::pong, this, [this] { m_unanswered = 0; });
    connect(&m_pulse, &QTimer::timeout, this, &Viewer::askForLife);
    m_pulse.start(pulseMs);
    live.addViewer(this);
    connect(&live, &Live::changed, this, &Viewer::show);
    send({{"mayDrive", mayDrive}});
    show();
}

Viewer::~Viewer()
{
    m_emulator.heldKeys.letGo(this);
}

void Viewer::take(const QString &text)
{
    static constexpr Act acts[] = {
        {"ack", false, &Viewer::ack},  {"whole", false, &Viewer::whole}, {"hold", true, &Viewer::hold},
        {"turn", true, &Viewer::turn}, {"word", true, &Viewer::word},    {"cancel", true, &Viewer::cancel},
    };
    const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
    const QString name = message["do"].toString();
    for (const Act &act : acts) {
        if (name == QLatin1String(act.name) && (m_mayDrive || !act.drives))
            return (this->*act.obey)(message);
    }
    m_socket->close(QWebSocketProtocol::CloseCodePolicyViolated, "not for this viewer: " + name.left(20));
}

void Viewer::show()
{
    if (m_isTaking)
        return;
    if (m_stateShown != m_live.stateNumber()) {
        m_stateShown = m_live.stateNumber();
        m_isTaking = true;
        send({{"state", m_live.state()}});
        return;
    }
    if (m_shown.cacheKey() == m_live.picture().cacheKey())
        return;
    // Nothing is as no picture is: what there is goes whole.
    if (m_shown.isNull()) {
        m_shown = QImage(m_live.picture().size(), QImage::Format_RGBX8888);
        m_shown.fill(Qt::transparent);
    }
    const QByteArray message = m_live.changesSince(m_shown);
    m_shown = m_live.picture();
    if (message.isEmpty())
        return;
    m_isTaking = true;
    m_socket->sendBinaryMessage(message);
}

void Viewer::send(const QJsonObject &object)
{
    m_socket->sendTextMessage(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

void Viewer::askForLife()
{
    if (m_unanswered++ >= mostUnanswered)
        return m_socket->abort();
    m_socket->ping();
}

void Viewer::ack(const QJsonObject &)
{
    m_isTaking = false;
    show();
}

void Viewer::whole(const QJsonObject &)
{
    m_shown = QImage();
    show();
}

void Viewer::hold(const QJsonObject &message)
{
    if (const KeyName *key = keyByName(message["key"].toString()))
        m_emulator.heldKeys.hold(this, key->code, message["down"].toBool());
}

void Viewer::turn(const QJsonObject &message)
{
    const int steps = qBound(-mostSteps, message["steps"].toInt(), mostSteps);
    if (steps != 0)
        m_emulator.keypad.turn(steps < 0 ? keyKnobLeft : keyKnobRight, qAbs(steps),
                               knobSpeed(message["ms"].toInt()));
}

void Viewer::word(const QJsonObject &message)
{
    const int id = message["id"].toInt();
    if (m_words.size() >= mostWords || m_words.contains(id))
        return send({{"id", id}, {"end", false}, {"error", "too many words at once"}});
    auto *session = new WebSession(m_emulator, this);
    m_words.insert(id, session);
    connect(session, &WebSession::said, this, [this, id, session](const QJsonValue &line) {
        if (m_socket->bytesToWrite() > mostUnread)
            return session->cut();
        send({{"id", id}, {"line", line}});
    });
    connect(session, &WebSession::ended, this, [this, id, session](Failure failure, const QString &reason) {
        m_words.remove(id);
        session->deleteLater();
        send({{"id", id}, {"end", failure == Failure::none}, {"error", reason}});
    });
    session->run(toWords(message["words"]));
}

void Viewer::cancel(const QJsonObject &message)
{
    delete m_words.take(message["id"].toInt());
}
