#include "tests/system/pushes/pushes.h"

#include "client/homescreen.h"
#include "client/loglines.h"

#include <QRegularExpression>

namespace
{
/// A register that nobody handles: the panel's word on it says that all reports before are done with.
constexpr uint barrierAddress = 0x7fff0000;

/// Items without any dependent: their change in config.xml says that all changes before are there, too. Rows
/// that are about one of them take the other.
struct Mark {
    const char *field;
    const char *address;
    const char *values[2];
    const char *bytes[2];
};
constexpr Mark marks[] = {
    {"Audio_Volume", "1300009f", {"1", "2"}, {"01", "02"}},
    {"ScreenBrightness", "02000001", {"10", "20"}, {"19", "33"}},
};
} // namespace

QString littleEndian(int value, int bytes)
{
    QByteArray wire;
    for (int i = 0; i < bytes; ++i)
        wire.append(i < int(sizeof value) ? char(value >> 8 * i) : '\0');
    return QString::fromLatin1(wire.toHex());
}

bool Pushes::begin()
{
    return m_panel.ask({"wait", "ready"}).ok && m_panel.ask({"reports", "off"}).ok && push({}) && flush();
}

bool Pushes::push(const QStringList &reports)
{
    QList<QStringList> requests;
    for (const QString &report : reports) {
        QStringList words = report.split(' ', Qt::SkipEmptyParts);
        if (words.size() == 1)
            words << ""; // a report without a byte
        requests << QStringList{"push"} + words;
    }
    m_panel.mark();
    // What the report thread has left to the GUI thread stands there before a second barrier, which passes
    // through it.
    return m_panel.askAll(requests) && passBarrier() && passBarrier();
}

bool Pushes::passBarrier()
{
    const QString address = QString::number(barrierAddress + uint(++m_barrier), 16);
    return m_panel.ask({"push", address, "00"}).ok && m_panel.waitForLog("[0x" + address + "]");
}

QString Pushes::run(const QVector<PushRow> &rows)
{
    m_complaints.clear();
    for (int first = 0; first < rows.size();) {
        const QVector<PushRow> group = groupFrom(rows, first);
        runGroup(group);
        first += group.size();
    }
    return m_complaints.join('\n');
}

Pushes::Changes Pushes::changesOf(const QString &text)
{
    static const QRegularExpression change("((?!\\d)\\w+(?:/\\w+)*)=(.*?)(?=\\s+(?!\\d)\\w+(?:/\\w+)*=|$)");
    Changes changes;
    for (auto found = change.globalMatch(itemnames::expanded(text)); found.hasNext();) {
        const QRegularExpressionMatch one = found.next();
        changes.insert(one.captured(1), one.captured(2));
    }
    return changes;
}

Pushes::Changes Pushes::changesOf(const QVector<PushRow> &rows)
{
    QStringList texts;
    for (const PushRow &row : rows)
        texts << row.stored;
    return changesOf(texts.join(' '));
}

/// Rows are looked up in config.xml together as long as no two touch the same value.
QVector<PushRow> Pushes::groupFrom(const QVector<PushRow> &rows, int first)
{
    QVector<PushRow> group;
    for (int i = first; i < rows.size(); ++i) {
        const Changes touched = changesOf(group);
        for (const QString &field : changesOf(rows[i].stored).keys())
            if (touched.contains(field))
                return group;
        group << rows[i];
    }
    return group;
}

void Pushes::runGroup(const QVector<PushRow> &rows)
{
    const Changes before = m_panel.storedFields();
    m_panel.ask({"writes", "--clear"});
    m_writes.clear();
    for (const PushRow &row : rows)
        runRow(row);
    if (!flush(changesOf(rows)))
        complain(rows.last().name, "nothing more reaches config.xml");
    compareStore(before, rows);
    if (m_panel.writes() != m_writes)
        complain(rows.last().name, "late writes: " + m_panel.writes().join(", "));
}

void Pushes::runRow(const PushRow &row)
{
    for (const QString &sight : row.sights)
        if (homescreen::sees(m_panel, sight))
            complain(row.name, "the LCD shows it already: " + sight);
    if (!push(row.reports))
        return complain(row.name, "not taken");
    if (!row.told.isEmpty() && toldValues().join(' ') != itemnames::expanded(row.told))
        complain(row.name, "takes over " + toldValues().join(' '));
    for (const QString &sight : row.sights)
        if (!homescreen::waitToSee(m_panel, sight))
            complain(row.name, "the LCD does not show " + sight);
    m_writes += row.writes;
    // The bus takes its time; what is too much is seen once more when the group has ended.
    QStringList writes;
    m_panel.waitUntil([&] { return (writes = m_panel.writes()).size() >= m_writes.size(); });
    if (writes != m_writes) {
        complain(row.name, "writes " + writes.mid(m_writes.size() - row.writes.size()).join(", "));
        m_writes = writes;
    }
}

void Pushes::complain(const QString &row, const QString &what)
{
    m_complaints << row + ": " + what;
    qWarning("%s", qPrintable(m_complaints.last()));
}

QStringList Pushes::toldValues()
{
    QStringList values;
    for (const QString &line : m_panel.logLines(loglines::valueTaken)) {
        const QStringList words = line.split(' ');
        values << itemnames::line(words.value(1).toInt(), words.value(2).remove('"'));
    }
    return values;
}

bool Pushes::flush()
{
    return flush({});
}

bool Pushes::flush(const Changes &touched)
{
    const Mark &mark = touched.contains(marks[0].field) ? marks[1] : marks[0];
    const QString key = mark.field;
    const bool first = m_panel.storedFields().value(key) == mark.values[1];
    const char *value = mark.values[first ? 0 : 1];
    return m_panel.ask({"push", mark.address, mark.bytes[first ? 0 : 1]}).ok &&
           m_panel.waitUntil([&] { return m_panel.storedFields().value(key) == value; });
}

void Pushes::compareStore(const Changes &before, const QVector<PushRow> &rows)
{
    Changes after = m_panel.storedFields();
    const Changes touched = changesOf(rows);
    after.remove(touched.contains(marks[0].field) ? marks[1].field : marks[0].field);
    for (const PushRow &row : rows) {
        const Changes changes = changesOf(row.stored);
        for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
            if (before.value(change.key()) == change.value())
                complain(row.name, "was so before: " + change.key() + '=' + change.value());
            if (after.value(change.key()) != change.value())
                complain(row.name,
                         change.key() + " is " + after.value(change.key()) + ", not " + change.value());
        }
    }
    for (auto field = after.cbegin(); field != after.cend(); ++field)
        if (!touched.contains(field.key()) && before.value(field.key()) != field.value())
            complain(rows.first().name + " to " + rows.last().name,
                     field.key() + " has become " + field.value() + ", was " + before.value(field.key()));
}
