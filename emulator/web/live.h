// What every viewer is shown: the LCD as it was seen last, and the state around it. It looks only while there
// are viewers. Main thread.
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

class Emulator;
class QJsonObject;

class Live : public QObject
{
    Q_OBJECT
public:
    explicit Live(Emulator &emulator, QObject *parent = nullptr);

    /// For as long as it lives.
    void addViewer(QObject *viewer);

    const QImage &picture() const { return m_picture; }
    /// From that picture to the one that was seen last, as a message; empty if nothing differs. Viewers that
    /// have the same one get the same.
    const QByteArray &changesSince(const QImage &before);

    /// Moved on with each change of the state.
    quint64 stateNumber() const { return m_stateNumber; }
    QJsonObject state() const;

signals:
    /// Picture or state.
    void changed();

private:
    void look();
    void changeState();

    Emulator &m_emulator;
    QImage m_picture;
    quint64 m_seen = 0;
    qint64 m_changedUs = 0;
    quint64 m_stateNumber = 1;
    int m_viewers = 0;
    qint64 m_from = 0, m_to = 0; ///< the pictures that the message is of
    QByteArray m_message;
    QTimer m_look;
};
