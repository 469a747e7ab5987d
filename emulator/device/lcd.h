// Reads the panel's LCD from its mapped file. Main thread.
#pragma once

#include <QFile>
#include <QImage>

class Lcd
{
public:
    explicit Lcd(const QString &stateFolder);

    /// How many changes the panel has drawn; 0 while the LCD is dark.
    quint64 changes() const;
    /// When it drew the last, in ns of the monotonic clock.
    qint64 changedNs() const;
    /// The picture as it stands, never one half drawn.
    QImage picture() const;

private:
    QFile m_file;
    const uchar *m_memory = nullptr;
};
