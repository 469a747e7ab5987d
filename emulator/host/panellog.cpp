#include "emulator/host/panellog.h"

#include <QDateTime>

namespace
{
constexpr qint64 lineCost = 64; ///< bytes that a line takes beside its text

qint64 costOf(const LogLine &line)
{
    return line.text.size() + lineCost;
}
} // namespace

PanelLog::PanelLog(const QString &file, Bounds bounds) : m_bounds(bounds), m_file(file)
{
    QFile::remove(file + ".1");
    m_file.open(QIODevice::WriteOnly);
}

void PanelLog::add(const QByteArray &text)
{
    write(text);
    m_lines.push_back({QDateTime::currentMSecsSinceEpoch(), text});
    m_bytes += costOf(m_lines.back());
    for (; m_bytes > m_bounds.memory && m_lines.size() > 1; ++m_dropped) {
        m_bytes -= costOf(m_lines.front());
        m_lines.pop_front();
    }
}

void PanelLog::write(const QByteArray &text)
{
    if (m_fileLines > 0 && m_fileBytes + text.size() >= m_bounds.file)
        turnOver();
    m_file.write(text + '\n');
    m_fileBytes += text.size() + 1;
    ++m_fileLines;
}

void PanelLog::turnOver()
{
    m_fileDropped += m_linesBefore;
    m_linesBefore = m_fileLines;
    const QString name = m_file.fileName();
    m_file.close();
    QFile::remove(name + ".1");
    QFile::rename(name, name + ".1");
    m_file.open(QIODevice::WriteOnly);
    const QByteArray head = "# " + QByteArray::number(m_linesBefore) +
                            " lines before these are in panel.log.1, " + QByteArray::number(m_fileDropped) +
                            " before those were dropped\n";
    m_file.write(head);
    m_fileBytes = head.size();
    m_fileLines = 0;
}
