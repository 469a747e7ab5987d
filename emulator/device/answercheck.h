// Compares what the writes of the panel lead to while a session is played again with what they led to when it
// was recorded: register by register, what the device told of it, one after the other. Main thread.
#pragma once

#include "emulator/bus/device.h"
#include "emulator/device/recording.h"

#include <QMap>

class AnswerCheck : public QObject
{
    Q_OBJECT
public:
    AnswerCheck(Device &device, const QVector<session::Event> &events, QObject *parent = nullptr);

    /// All is played: ended follows when the recorded answers have come, or when they have had their time.
    void end();
    /// A line for each register that told something else.
    QStringList differences() const;

signals:
    void ended();

private:
    using Answers = QMap<QString, QStringList>; ///< a register and what it told, in hex

    bool isComplete() const { return m_missing <= 0; }
    static void add(Answers &answers, const Report &report);

    Answers m_recorded, m_given;
    int m_missing = 0; ///< as many as were recorded less those given
    QTimer m_patience;
    bool m_ending = false;
};
