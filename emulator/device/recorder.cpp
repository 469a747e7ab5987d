#include "emulator/device/recorder.h"

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
    connect(&device, &Device::failurePushed, this, [this](const Report &report, quint8 ack) {
        session::Event event;
        event.kind = session::Kind::failed;
        event.report = report;
        event.ack = ack;
        add(event);
    });
    connect(&device, &Device::writePushed, this, [this](const Report &report) {
        session::Event event;
        event.kind = session::Kind::write;
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
    if (isRecording())
        return m_file.fileName() + " is being recorded; record stop ends it";
    m_file.setFileName(file);
    m_fault.clear();
    m_events = 0;
    m_clock.start();
    const QByteArray now = QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8();
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) &&
        write("# recorded " + now + ", times in ms\n")) {
        emit changed();
        return QString();
    }
    const QString fault = "cannot write " + file + ": " + m_file.errorString();
    m_file.close();
    return fault;
}

std::pair<int, QString> Recorder::stop()
{
    m_file.close();
    emit changed();
    return {m_events, m_fault};
}

bool Recorder::write(const QByteArray &line)
{
    const qint64 whole = m_file.pos();
    if (m_file.write(line) == line.size())
        return true;
    m_fault = "only the first " + QString::number(m_events) + " events fitted into " + m_file.fileName() +
              ": " + m_file.errorString();
    m_file.resize(whole);
    return false;
}

void Recorder::add(session::Event event)
{
    if (!isRecording() || !m_fault.isEmpty())
        return;
    event.atMs = m_clock.elapsed();
    if (write(session::toText(event).toUtf8() + '\n'))
        ++m_events;
}
