#include "benchmark/flood.h"

#include "client/names/itemnames.h"
#include "client/panel.h"

#include <QElapsedTimer>

namespace
{
constexpr int answerMs = 60000;
constexpr int mostAtOnce = 100;

QStringList pushOf(const FloodRegister &row, int number)
{
    return {"push", QString::number(row.address, 16), QString::fromLatin1(row.bytes(number).toHex()),
            "--device", QString::number(row.deviceType)};
}

QStringList pushOf(quint32 picture)
{
    return {"push", QString::number(picture, 16), "00112233"};
}
} // namespace

Flood::Flood(Panel &panel)
    : m_panel(panel), m_log(panel.statePath() + "/panel.log"), m_numbers(foldingRegisters().size(), -1),
      m_inputCounts(inputRegisters().size()), m_pictureCounts(pictureRegisters().size()),
      m_inputsRead(inputRegisters().size()), m_picturesRead(pictureRegisters().size())
{
}

Flood::~Flood()
{
    m_ends = true;
    if (m_thread.joinable())
        m_thread.join();
}

bool Flood::start(int reportsPerSecond)
{
    m_rate = reportsPerSecond;
    // The device's own reports would mix with these.
    if (!m_panel.ask({"reports", "off"}).ok || !m_console.connectTo(m_panel.statePath()) ||
        !m_log.open(QIODevice::ReadOnly))
        return false;
    m_panel.stopFollowingLog();
    m_log.seek(m_log.size());
    m_thread = std::thread([this] { run(); });
    return true;
}

void Flood::run()
{
    QElapsedTimer passed;
    passed.start();
    while (!m_ends && !m_refused) {
        const int due = int(qMin<qint64>(passed.elapsed() * m_rate / 1000 - m_pushed, mostAtOnce));
        QList<QStringList> batch;
        for (int i = 0; i < due; ++i)
            batch += next();
        if (batch.isEmpty())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        else
            m_refused = !m_console.askAll(batch, answerMs);
        m_pushed += due;
    }
    m_seconds = passed.elapsed() / 1000.0;
}

/// Of twenty reports one is of an input, one of a picture, the others are of registers that fold.
QStringList Flood::next()
{
    constexpr int ofTwenty = 20, input = 9, picture = 19;
    const int turn = m_turn++;
    if (turn % ofTwenty == input) {
        const int n = turn / ofTwenty % m_inputCounts.size();
        return pushOf(inputRegisters()[n], m_inputCounts[n]++);
    }
    if (turn % ofTwenty == picture) {
        const int n = turn / ofTwenty % m_pictureCounts.size();
        ++m_pictureCounts[n];
        return pushOf(pictureRegisters()[n]);
    }
    const int n = turn % m_numbers.size();
    return pushOf(foldingRegisters()[n], ++m_numbers[n]);
}

bool Flood::stop()
{
    m_ends = true;
    m_thread.join();
    // Behind all others, and read as all of its kind.
    const bool sent = m_console.ask(pushOf(inputRegisters()[0], m_inputCounts[0]++), answerMs).ok;
    return !m_refused && sent &&
           m_panel.waitUntil([this] { return !readLog() || m_inputsRead[0] == m_inputCounts[0]; }) &&
           m_fault.isEmpty();
}

bool Flood::readLog()
{
    for (;;) {
        const qint64 start = m_log.pos();
        const QByteArray line = m_log.readLine();
        if (!line.endsWith('\n')) {
            m_log.seek(start); // the rest of it is still to come
            return m_fault.isEmpty();
        }
        take(line);
    }
}

void Flood::take(const QByteArray &line)
{
    const QList<QByteArray> words = line.trimmed().split(' ');
    if (line.contains("Sanitizer") || line.contains("runtime error:") || line.contains("into queue invalid"))
        m_fault = QString::fromUtf8(line);
    if (line.startsWith("Proto3rd addr:[")) {
        ++m_handled;
        const quint32 address = line.mid(15, line.indexOf(']') - 15).toUInt(nullptr, 16);
        if (const int n = pictureRegisters().indexOf(address); n >= 0)
            ++m_picturesRead[n];
    }
    if (words[0] != "ReportMsgToParaProcess" || words.size() < 3)
        return;
    const int item = words[1].toInt();
    const QString value = QString::fromUtf8(words[2].mid(1, words[2].size() - 2));
    m_last[item] = value;
    for (int n = 0; n < m_inputsRead.size(); ++n) {
        const QMap<int, QString> wanted = inputRegisters()[n].items(m_inputsRead[n] & 0xFFFF);
        if (!wanted.contains(item))
            continue;
        if (wanted[item] != value && m_fault.isEmpty())
            m_fault = QString("input %1 told %2 instead of %3").arg(n).arg(value, wanted[item]);
        ++m_inputsRead[n];
    }
}

QMap<int, QString> Flood::expected() const
{
    QMap<int, QString> items;
    for (int n = 0; n < m_numbers.size(); ++n) {
        const QMap<int, QString> told = foldingRegisters()[n].items(qMax(0, m_numbers[n]));
        for (auto item = told.begin(); item != told.end(); ++item)
            items[item.key()] = item.value();
    }
    return items;
}

QString Flood::lost() const
{
    QStringList faults;
    if (!m_fault.isEmpty())
        faults += m_fault;
    for (int n = 0; n < m_inputsRead.size(); ++n)
        if (m_inputsRead[n] != m_inputCounts[n])
            faults += QString("input %1: %2 of %3 read").arg(n).arg(m_inputsRead[n]).arg(m_inputCounts[n]);
    for (int n = 0; n < m_picturesRead.size(); ++n)
        if (m_picturesRead[n] != m_pictureCounts[n])
            faults +=
                QString("picture %1: %2 of %3 read").arg(n).arg(m_picturesRead[n]).arg(m_pictureCounts[n]);
    const QMap<int, QString> items = expected();
    for (auto item = items.begin(); item != items.end(); ++item)
        if (m_last.value(item.key()) != item.value())
            faults += QString("item %1 was told %2 last, not %3")
                          .arg(itemnames::name(item.key()), m_last.value(item.key()), item.value());
    return faults.join('\n');
}
