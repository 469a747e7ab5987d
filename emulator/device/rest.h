// Waits until the panel has come to rest: its LCD stands still, it answers, and, if asked for, the bus is
// silent, too. Main thread.
#pragma once

#include <QObject>
#include <QTimer>

class Emulator;

class Rest : public QObject
{
    Q_OBJECT
public:
    enum Of { Screen, ScreenAndBus };

    Rest(Of what, Emulator &emulator, QObject *parent = nullptr);

    /// Looks from now on.
    void start();

signals:
    void reached();

private:
    void look();
    /// The panel has answered, so what it had to do before that is done; works: it was at work when it was
    /// asked.
    void count(bool works);

    const Of m_what;
    Emulator &m_emulator;
    QTimer m_look;
    quint64 m_changes = 0;
    int m_stillLooks = 0;
    int m_silentLooks = 0;
};
