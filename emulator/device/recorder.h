// Writes down a session while it happens: keys, reports and messages with their times. Main thread.
#pragma once

#include "emulator/bus/device.h"
#include "emulator/device/keypad.h"
#include "emulator/device/recording.h"

#include <QFile>

class Recorder : public QObject
{
    Q_OBJECT
public:
    Recorder(Keypad &keypad, Device &device, QObject *parent = nullptr);

    bool isRecording() const { return m_file.isOpen(); }
    /// Empty, or why not: the file cannot be written, or another one is being.
    QString start(const QString &file);
    /// The number of events in the file. Empty second, or why the later ones are not.
    std::pair<int, QString> stop();
    QString fileName() const { return m_file.fileName(); }

signals:
    void changed(); ///< it has begun or ended

private:
    /// At once and whole, or not at all.
    bool write(const QByteArray &line);
    void add(session::Event event);

    QFile m_file;
    QElapsedTimer m_clock;
    int m_events = 0;
    QString m_fault; ///< the first; nothing is written after it
};
