// What a change of a row by keys sends to the device: takes the panel to a row, plays the keys of one line of
// a table and compares every register write that came of it. GUI thread of the test.
#pragma once

#include "client/hexvalue.h"
#include "menu/itemindex.h"
#include "menu/pageindex.h"
#include "tests/system/systemtest.h"

#include <QVector>

/// One line: the way to a row, the keys on it, and all the writes that follow, in their order.
struct KeyFrames {
    /// The entries from the main menu on and at last the row itself, which OK enters; empty for the home
    /// screen.
    QList<VASK::ENUM_MenuIndex> path;
    /// Words: R5 or L5 is one step of the knob with that speed, r5 or l5 are so many slow steps; ok, esc, yes
    /// and no; next and previous are a step of the knob in a dialog; message is one that comes up later;
    /// closed is the end of a message that closes by itself, closed2 of two; "still" waits until nothing more
    /// is sent; any other is a key of the console, with a
    /// "!" if it is held.
    QString keys;
    /// Address, device type and bytes in hex, to all ports and boards; of a table its size and its hash.
    QStringList frames;
};
Q_DECLARE_METATYPE(KeyFrames)
Q_DECLARE_METATYPE(VASK::ENUM_ConfigIndex)

/// A row of a table; frames given as a text are parted by ", ".
struct NamedFrames {
    using Path = QList<VASK::ENUM_MenuIndex>;
    NamedFrames() = default;
    NamedFrames(const QByteArray &name, const Path &path, const QString &keys, const QStringList &frames)
        : name(name), line{path, keys, frames}
    {
    }
    NamedFrames(const QByteArray &name, const Path &path, const QString &keys, const char *frames)
        : NamedFrames(name, path, keys, QString(frames).split(", ", Qt::SkipEmptyParts))
    {
    }

    QByteArray name;
    KeyFrames line;
};

class FrameDrive
{
public:
    FrameDrive(Panel &panel, MenuWalk &walk) : m_panel(panel), m_walk(walk) {}

    /// Device and panel: the home screen, and the device has told all of itself.
    bool start() { return m_panel.powerDevice() && startPanel(); }
    /// The panel comes up.
    bool startPanel();
    /// Goes to the row, plays the keys and compares; what is wrong, empty if nothing.
    QString drive(const KeyFrames &line);
    /// Opens the row, from page to page by the shortest way.
    bool reach(const QList<VASK::ENUM_MenuIndex> &path);
    /// The next row is reached from the home screen.
    bool home();
    /// What is sent until the panel falls silent, at least so many writes if they come.
    QStringList sent(int expected);

private:
    enum Place { AtHome, InMenu, Elsewhere };

    bool play(const QString &word);
    QStringList written();

    Panel &m_panel;
    MenuWalk &m_walk;
    /// The entries that lead to the open page.
    QList<VASK::ENUM_MenuIndex> m_open;
    Place m_place = AtHome;
};

/// A test program that is a table: one panel, one line after the other. The state of the device goes on from
/// line to line.
class FramesTest : public SystemTest
{
    Q_OBJECT
protected:
    virtual QVector<NamedFrames> table() const = 0;
    /// What the test changes around the panel before the first line.
    virtual void prepare() {}
    void begin() override;

    FrameDrive m_drive{m_panel, m_walk};

private slots:
    void keysSend_data();
    void keysSend();
};

namespace frames
{
/// The entries from the main menu on and at last a row.
template <class... Rows> NamedFrames::Path path(Rows... rows)
{
    return {rows...};
}
/// A number goes out with the step of the knob and once more at its end.
inline QStringList twice(const QStringList &all)
{
    return all + all;
}
inline QStringList twice(const QString &frame)
{
    return twice(QStringList{frame});
}
} // namespace frames
