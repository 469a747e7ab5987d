#include "tests/system/frames/framedrive.h"
#include "client/loglines.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

using namespace VASK;

namespace
{
/// The device tells what a write has done 150 ms after it, and a turning knob is held back for 100 ms.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int stillMs = 1000;
#else
constexpr int stillMs = 250;
#endif
/// For what is expected and has not come.
constexpr int lateMs = 5000;
constexpr int lookMs = 10;
constexpr int longestShown = 64; ///< bytes; a longer frame is compared by its hash
const QString everyPortAndBoard = "ff ffff";

QString shortened(const QString &bytes)
{
    const QByteArray data = QByteArray::fromHex(bytes.toLatin1());
    if (data.size() <= longestShown)
        return bytes;
    const QByteArray hash = QCryptographicHash::hash(data, QCryptographicHash::Sha1);
    return QString("%1:%2").arg(data.size()).arg(QString(hash.toHex()));
}
} // namespace

bool FrameDrive::startPanel()
{
    m_open.clear();
    m_place = AtHome;
    m_walk.assume({});
    return m_panel.start() && m_panel.ask({"wait", "ready"}).ok &&
           (sent(0), m_panel.ask({"writes", "--clear"}).ok);
}

QString FrameDrive::drive(const KeyFrames &line)
{
    if (!(line.path.isEmpty() ? home() : reach(line.path))) {
        m_place = Elsewhere;
        return "the row was not reached";
    }
    const QStringList words = line.keys.split(' ', Qt::SkipEmptyParts);
    for (const QString &word : words)
        if (!play(word)) {
            m_place = Elsewhere;
            return QString("the panel does not follow %1").arg(word);
        }
    const QStringList writes = sent(line.frames.size());
    m_panel.ask({"writes", "--clear"});
    if (writes == line.frames)
        return {};
    return QString("sent\n  %1\ninstead of\n  %2").arg(writes.join("\n  "), line.frames.join("\n  "));
}

bool FrameDrive::home()
{
    if (m_place == AtHome)
        return true;
    m_open.clear();
    m_place = AtHome;
    return m_walk.home();
}

/// A page that already is open stays.
bool FrameDrive::reach(const QList<ENUM_MenuIndex> &path)
{
    const QList<ENUM_MenuIndex> pages = path.mid(0, path.size() - 1);
    if (m_place == Elsewhere && !home())
        return false;
    if (m_place == AtHome && !m_walk.openMenu())
        return false;
    m_place = InMenu;
    while (m_open != pages.mid(0, m_open.size())) {
        m_open.removeLast();
        if (!m_walk.back())
            return false;
    }
    while (m_open.size() < pages.size()) {
        const ENUM_MenuIndex next = pages[m_open.size()];
        if (!m_walk.enter(next))
            return false;
        m_open << next;
    }
    const ENUM_ConfigIndex before = m_walk.page();
    if (!m_walk.enter(path.last()))
        return false;
    if (m_walk.page() != before)
        m_open << path.last();
    return true;
}

bool FrameDrive::play(const QString &word)
{
    static const QRegularExpression knob("^([RLrl])(\\d+)$"), closed("^closed(\\d*)$");
    const auto turned = knob.match(word);
    if (turned.hasMatch()) {
        const QChar kind = turned.captured(1)[0];
        const int number = turned.captured(2).toInt();
        const Direction direction = kind.toUpper() == 'R' ? Right : Left;
        return kind.isUpper() ? m_walk.turn(direction, 1, number) : m_walk.turn(direction, number);
    }
    const auto messages = closed.match(word);
    if (messages.hasMatch()) {
        const int count = qMax(1, messages.captured(1).toInt());
        return m_panel.waitUntil([this, count] {
            return m_panel.logLines(loglines::messageClosed).size() >= count;
        }) && m_panel.settle();
    }
    const bool isAnswer = word == "yes" || word == "no";
    if (isAnswer || word == "message")
        return m_panel.waitUntil([this] { return m_walk.asked(); }) && m_panel.settle() &&
               (!isAnswer || m_walk.answer(word == "yes"));
    if (word == "next" || word == "previous")
        return m_panel.turn(word == "next" ? Right : Left) && m_panel.settle();
    if (word == "still")
        return (sent(0), true);
    if (word == keys::Ok || word == keys::Esc)
        return m_walk.press(word);
    m_place = Elsewhere; // a key of its own may open a page
    return word.endsWith('!') ? m_panel.hold(word.chopped(1)) && m_panel.settle() : m_walk.press(word);
}

QStringList FrameDrive::written()
{
    QStringList list;
    for (const QString &line : m_panel.ask({"writes", "--whole", "--plain"}).lines) {
        const QStringList words = line.split(' ');
        QStringList shown = words.mid(0, 2);
        // A frame to a port or board of its own would be shown whole, and differ.
        if (words.value(2) + ' ' + words.value(3) != everyPortAndBoard)
            shown << words.mid(2, 2);
        list << (shown << shortened(words.value(4))).join(' ');
    }
    return list;
}

QStringList FrameDrive::sent(int expected)
{
    QElapsedTimer still;
    still.start();
    int seen = 0;
    while (!still.hasExpired(seen < expected ? lateMs : stillMs)) {
        QThread::msleep(lookMs);
        const int now = m_panel.writes().size();
        if (now != seen)
            still.restart();
        seen = now;
    }
    return written();
}

void FramesTest::begin()
{
    QVERIFY(m_drive.start() && m_walk.speak("fpd_ZH"));
    prepare();
}

void FramesTest::keysSend_data()
{
    QTest::addColumn<KeyFrames>("line");
    for (const NamedFrames &row : table())
        QTest::newRow(row.name.constData()) << row.line;
}

void FramesTest::keysSend()
{
    QFETCH(KeyFrames, line);
    const QString fault = m_drive.drive(line);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}
