// What stands on the panel's LCD as data, asked of the platform layer under the panel: an array of objects,
// one a text, as platform/host/panellcd/screentext.h tells. Main thread.
#pragma once

#include "emulator/device/lcd.h"
#include "emulator/host/packetserver.h"

#include <QJsonArray>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

class ScreenText : public QObject
{
    Q_OBJECT
public:
    using Taker = std::function<void(const std::optional<QJsonArray> &)>;

    ScreenText(const QString &stateFolder, const Lcd &lcd, QObject *parent = nullptr);

    bool open() { return m_server.open(); }

    /// The texts as they stand, or nothing if no panel answers any more; not for a context that has gone by
    /// then.
    void ask(QObject *context, const Taker &taker);
    /// The same without the texts: the panel has worked off what was before it.
    void ping(QObject *context, const Taker &taker);

    /// Tells changed from now on for as long as the context lives, the first time soon.
    void watch(QObject *context);
    /// Tells changed once more, though the LCD has not changed.
    void lookAgain() { m_seen = never; }

    /// Is a text, or a part of one, among them? Where its lines are broken does not matter.
    static bool shows(const QJsonArray &texts, const QString &text);
    /// One line for people: place, role, state, text.
    static QString describe(const QJsonObject &text);

signals:
    /// The texts, each time when the LCD has changed; while somebody watches.
    void changed(const QJsonArray &texts);

private:
    struct Question {
        QPointer<QObject> context;
        Taker taker;
    };

    void send(char request, QObject *context, const Taker &taker);
    void handle(const QByteArray &answer);
    void drop();
    void look();

    static constexpr quint64 never = ~quint64(0);

    PacketServer m_server;
    const Lcd &m_lcd;
    int m_panel = -1;
    QList<Question> m_questions; ///< that are not answered yet, the oldest first
    QTimer m_look;
    int m_watchers = 0;
    quint64 m_seen = 0;    ///< changes of the LCD when it was last asked
    bool m_asking = false; ///< for those who watch
};
