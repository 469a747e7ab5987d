#include "emulator/device/answercheck.h"

namespace
{
constexpr int patienceMs = 3000; ///< longer than the device takes for anything
constexpr int restMs = 500;      ///< for an answer too many, behind as many as are expected
} // namespace

AnswerCheck::AnswerCheck(Device &device, const QVector<session::Event> &events, QObject *parent)
    : QObject(parent)
{
    for (const session::Event &event : events) {
        if (event.kind != session::Kind::answered)
            continue;
        add(m_recorded, event.report);
        ++m_missing;
    }
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &AnswerCheck::ended);
    connect(&device, &Device::reported, this, [this](const Report &report, bool isAnswer) {
        if (!isAnswer)
            return;
        add(m_given, report);
        --m_missing;
        if (m_ending && isComplete())
            m_patience.start(restMs);
    });
}

void AnswerCheck::end()
{
    m_ending = true;
    m_patience.start(isComplete() ? restMs : patienceMs);
}

QStringList AnswerCheck::differences() const
{
    QMap<QString, QStringList> registers = m_recorded;
    for (const QString &name : m_given.keys())
        registers[name]; // those that should have told nothing, too
    QStringList lines;
    for (const QString &name : registers.keys()) {
        const QStringList recorded = m_recorded.value(name), given = m_given.value(name);
        if (recorded != given)
            lines << QString("%1: recorded %2, now %3")
                         .arg(name, recorded.isEmpty() ? "nothing" : recorded.join(' '),
                              given.isEmpty() ? "nothing" : given.join(' '));
    }
    return lines;
}

void AnswerCheck::add(Answers &answers, const Report &report)
{
    const QString name = QString("%1 %2").arg(report.address, 8, 16, QChar('0')).arg(report.deviceType);
    answers[name] << QString::fromLatin1(report.bytes.toHex());
}
