// Many pictures of the LCD on few sheets, to be looked at by a person: in rows from left to right, a new
// sheet when one is full. Saved as NAME-1.png and so on, the last one when the object goes.
#pragma once

#include <QImage>
#include <QPainter>

class ContactSheet
{
public:
    ContactSheet(const QString &name, int columns, int rows, QSize cell)
        : m_name(name), m_columns(columns), m_rows(rows), m_cell(cell)
    {
    }
    ContactSheet(const ContactSheet &) = delete;
    ContactSheet &operator=(const ContactSheet &) = delete;
    ~ContactSheet() { save(); }

    /// A picture of another size is scaled to the cell.
    void add(const QImage &picture)
    {
        m_pictures << (picture.size() == m_cell
                           ? picture
                           : picture.scaled(m_cell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        if (m_pictures.size() == m_columns * m_rows)
            save();
    }

private:
    void save()
    {
        if (m_pictures.isEmpty())
            return;
        constexpr int gap = 4; // pixels
        const QSize step = m_cell + QSize(gap, gap);
        const int rows = (m_pictures.size() + m_columns - 1) / m_columns;
        QImage sheet(m_columns * step.width(), rows * step.height(), QImage::Format_RGB32);
        sheet.fill(Qt::gray);
        QPainter painter(&sheet);
        for (int i = 0; i < m_pictures.size(); ++i)
            painter.drawImage(i % m_columns * step.width() + gap / 2, i / m_columns * step.height() + gap / 2,
                              m_pictures[i]);
        painter.end();
        sheet.save(QString("%1-%2.png").arg(m_name).arg(++m_saved));
        m_pictures.clear();
    }

    const QString m_name;
    const int m_columns;
    const int m_rows;
    const QSize m_cell;
    QList<QImage> m_pictures;
    int m_saved = 0;
};
