// One page that shows the panel, at the other end of a WebSocket. It gets the state as JSON and the LCD as
// picturemessage.h tells, the next of them only when it says that it has the one before: who is slow gets
// fewer of them, and each is the latest. What it does comes as JSON, {"do": WHAT, ...}:
//
//     ack                        has taken what came
//     whole                      wants the whole picture once more
//     hold   key, down           pushes a key or lets it go
//     turn   steps, ms           turns the knob, so long after the step before
//     word   id, words           a word of the console; {"id", "line"}... and {"id", "end", "error"} come
//     back cancel id                  ends such a word
//
// One that only looks may say the first two. One that shows no sign of life, such as a phone out of reach,
// goes, and lets go of its keys. Main thread.
#pragma once

#include "emulator/web/websession.h"

#include <QHash>
#include <QImage>
#include <QJsonObject>
#include <QTimer>
#include <QWebSocket>

class Live;

class Viewer : public QObject
{
    Q_OBJECT
public:
    Viewer(QWebSocket *socket, Emulator &emulator, Live &live, bool mayDrive, QObject *parent = nullptr);
    ~Viewer() override;

private:
    struct Act;

    void take(const QString &text);
    void show();
    void send(const QJsonObject &object);
    void askForLife();

    void ack(const QJsonObject &message);
    void whole(const QJsonObject &message);
    void hold(const QJsonObject &message);
    void turn(const QJsonObject &message);
    void word(const QJsonObject &message);
    void cancel(const QJsonObject &message);

    QWebSocket *m_socket;
    Emulator &m_emulator;
    Live &m_live;
    const bool m_mayDrive;
    QImage m_shown; ///< what it has; null before the first
    quint64 m_stateShown = 0;
    bool m_isTaking = false; ///< something has gone that it has not told to have
    QHash<int, WebSession *> m_words;
    QTimer m_pulse;
    int m_unanswered = 0; ///< signs of life that were asked for
};
