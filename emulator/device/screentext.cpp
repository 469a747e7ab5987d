#include "emulator/device/screentext.h"

#include "fpd_hostlink.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{
constexpr int lookMs = 20;
} // namespace

ScreenText::ScreenText(const QString &stateFolder, const Lcd &lcd, QObject *parent)
    : QObject(parent), m_server(stateFolder + hostlink::screenSocket), m_lcd(lcd)
{
    m_look.setInterval(lookMs);
    connect(&m_look, &QTimer::timeout, this, &ScreenText::look);
    connect(&m_server, &PacketServer::connected, this, [this](int panel) {
        drop();
        m_panel = panel;
        lookAgain();
    });
    connect(&m_server, &PacketServer::disconnected, this, [this](int panel) {
        if (panel == m_panel)
            drop();
    });
    connect(&m_server, &PacketServer::received, this, [this](int panel, const QByteArray &answer) {
        if (panel == m_panel)
            handle(answer);
    });
}

void ScreenText::ask(QObject *context, const Taker &taker)
{
    send(hostlink::screenTextRequest, context, taker);
}

void ScreenText::ping(QObject *context, const Taker &taker)
{
    send(hostlink::screenPingRequest, context, taker);
}

void ScreenText::send(char request, QObject *context, const Taker &taker)
{
    if (m_panel < 0 || !m_server.send(m_panel, QByteArray(1, request)))
        return taker(std::nullopt);
    m_questions.append({context, taker});
}

void ScreenText::handle(const QByteArray &answer)
{
    if (m_questions.isEmpty())
        return;
    const Question question = m_questions.takeFirst();
    if (question.context)
        question.taker(QJsonDocument::fromJson(answer).array());
}

void ScreenText::drop()
{
    m_panel = -1;
    const QList<Question> unanswered = std::exchange(m_questions, {});
    for (const Question &question : unanswered) {
        if (question.context)
            question.taker(std::nullopt);
    }
}

void ScreenText::watch(QObject *context)
{
    ++m_watchers;
    lookAgain();
    m_look.start();
    connect(context, &QObject::destroyed, this, [this] {
        if (--m_watchers == 0)
            m_look.stop();
    });
}

void ScreenText::look()
{
    const quint64 changes = m_lcd.changes();
    if (m_asking || m_panel < 0 || changes == m_seen)
        return;
    m_seen = changes;
    m_asking = true;
    ask(this, [this](const std::optional<QJsonArray> &texts) {
        m_asking = false;
        if (texts)
            emit changed(*texts);
    });
}

bool ScreenText::shows(const QJsonArray &texts, const QString &text)
{
    for (const QJsonValue &value : texts) {
        QString shown = value["text"].toString();
        if (shown.contains(text) || shown.remove('\n').contains(text) ||
            value["text"].toString().replace('\n', ' ').contains(text))
            return true;
    }
    return false;
}

QString ScreenText::describe(const QJsonObject &text)
{
    QStringList state;
    for (const QJsonValue &value : text["state"].toArray())
        state << value.toString();
    if (text["cut"].toBool())
        state << "cut";
    const QString role = text["role"].toString();
    return QString("%1,%2 %3x%4  %5  %6")
        .arg(text["x"].toInt())
        .arg(text["y"].toInt())
        .arg(text["width"].toInt())
        .arg(text["height"].toInt())
        .arg(state.isEmpty() ? role : QString("%1 (%2)").arg(role, state.join(", ")),
             text["text"].toString().replace('\n', " | "));
}
