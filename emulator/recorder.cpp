#include "emulator/recorder.h"

#include <QDateTime>

Recorder::Recorder(Keypad &keypad, Device &device, QObject *parent) : QObject(parent)
{
    connect(&keypad, &Keypad::wordsSent, this, [this](const QVector<quint16> &words) {
        for (quint16 word : words) {
            session::Event event;
            event.word = word;
            add(event);
        }
    });
    connect(&device, &Device::reported, this, [this](const Report &report, bool isAnswer) {
        session::Event event;
        event.kind = isAnswer ? session::Kind::answered : session::Kind::report;
        event.report = report;
        add(event);
    });
    connect(&device, &Device::messageSent, this,
            [this](qint16 large, qint16 small, const QByteArray &payload) {
                session::Event event;
                event.kind = session::Kind::message;
                event.large = large;
                event.small = small;
                event.payload = payload;
                add(event);
            });
}

QString Recorder::start(const QString &file)
{
    m_file.close();
    m_file.setFileName(file);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return "cannot write " + file + ": " + m_file.errorString();
    m_events = 0;
    m_clock.start();
    m_file.write("# recorded " + QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8() +
                 ", times in ms\n");
    return QString();
}

std::pair<int, QString> Recorder::stop()
{
    m_file.flush();
    const QString fault = m_file.error() == QFileDevice::NoError ? QString() : m_file.errorString();
    m_file.close();
    return {m_events, fault};
}

void Recorder::add(session::Event event)
{
    if (!isRecording())
        return;
    event.atMs = m_clock.elapsed();
    m_file.write(session::toText(event).toUtf8() + '\n');
    ++m_events;
}
