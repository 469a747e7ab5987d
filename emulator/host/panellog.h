// What the panel says: the last of it in memory, more of it in a file and the one before, both bounded in
// bytes however much and in however long lines it comes. What had to go is counted. Main thread.
#pragma once

#include <QFile>
#include <QString>
#include <deque>

struct LogLine {
    qint64 timeMs; ///< since 1970
    QByteArray text;
};

class PanelLog
{
public:
    struct Bounds {
        qint64 memory = 16 * 1024 * 1024; ///< bytes of the lines that are kept, with what each costs
        qint64 file = 32 * 1024 * 1024;   ///< bytes of the file, and as many of the one before
    };

    /// Begins the file anew; the one before is FILE.1.
    explicit PanelLog(const QString &file) : PanelLog(file, Bounds()) {}
    PanelLog(const QString &file, Bounds bounds);

    /// One line, without its end.
    void add(const QByteArray &text);
    /// What has been added is in the file.
    void flush() { m_file.flush(); }

    /// Oldest first.
    const std::deque<LogLine> &lines() const { return m_lines; }
    /// Lines that stood before those in memory.
    qint64 dropped() const { return m_dropped; }

private:
    void write(const QByteArray &text);
    /// The file becomes the one before, and a new one begins with how many lines are nowhere any more.
    void turnOver();

    Bounds m_bounds;
    std::deque<LogLine> m_lines;
    qint64 m_bytes = 0; ///< of the lines in memory
    qint64 m_dropped = 0;
    QFile m_file;
    qint64 m_fileBytes = 0;
    qint64 m_fileLines = 0;
    qint64 m_linesBefore = 0; ///< in FILE.1
    qint64 m_fileDropped = 0;
};
