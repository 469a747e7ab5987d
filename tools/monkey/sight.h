// What stands on the LCD at a moment, as a user takes it in: which kind of screen, its title, the rows, and
// where the cursor is. Made of the texts that the platform layer tells. Any thread.
#pragma once

#include <QString>
#include <QStringList>

class Panel;

struct Sight {
    enum Kind { Nothing, Home, Page, List, Message };
    Kind kind = Nothing;
    QString title;      ///< of a page
    QString row, value; ///< under the cursor
    bool isEdited = false;
    bool isDisabled = false; ///< the row under the cursor
    QStringList labels;      ///< of all rows that are seen
    QStringList buttons;     ///< of a message
    QString text;            ///< of a message

    /// One line that tells two sights apart.
    QString describe() const;
    bool operator==(const Sight &other) const { return describe() == other.describe(); }
};

Sight lookAt(Panel &panel);
