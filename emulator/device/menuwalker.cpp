#include "emulator/device/menuwalker.h"

#include "emulator/emulator.h"

#include <QJsonObject>

namespace
{
constexpr int lookMs = 30;
constexpr int noChangeMs = 400;  ///< by then a panel that has nothing to do has nothing to show
constexpr int patienceMs = 5000; ///< with one that has
constexpr int mostPresses = 12;  ///< of ESC, deeper no menu is

QString nameOf(const QJsonValue &text)
{
    const QString whole = text["whole"].toString();
    return (whole.isEmpty() ? text["text"].toString() : whole).simplified();
}
} // namespace

MenuWalker::MenuWalker(Emulator &emulator, QStringList path, bool openLast, QObject *parent)
    : QObject(parent), m_emulator(emulator), m_path(std::move(path)), m_openLast(openLast)
{
}

void MenuWalker::start()
{
    m_emulator.screenText.ask(this, [this](const std::optional<QJsonArray> &texts) {
        if (!texts)
            return fail("the panel does not answer");
        m_texts = *texts;
        goHome();
    });
}

QString MenuWalker::find(const QString &role, const QString &state) const
{
    for (const QJsonValue &text : m_texts) {
        if (text["role"].toString() == role && (state.isEmpty() || text["state"].toArray().contains(state)))
            return nameOf(text);
    }
    return QString();
}

void MenuWalker::goHome()
{
    const bool isHome = !find("home field").isEmpty() && find("title").isEmpty() && find("message").isEmpty();
    if (isHome)
        return press(keyOk, &MenuWalker::enterMenu);
    if (++m_presses > mostPresses)
        return fail("ESC does not lead home from " + find("title") + find("message"));
    press(keyEsc, &MenuWalker::goHome);
}

void MenuWalker::enterMenu()
{
    if (find("title").isEmpty())
        return fail("OK does not open the menu");
    findRow();
}

void MenuWalker::findRow()
{
    const QString row = find("row label", "focused"), wanted = m_path[m_at].simplified();
    if (row.compare(wanted, Qt::CaseInsensitive) == 0)
        return arrive();
    const bool atEnd = row == m_before;
    if (!m_rows.contains(row))
        m_rows << row;
    if (atEnd && m_left)
        return fail(QString("the page \"%1\" has no row \"%2\" that the cursor comes to; it has %3")
                        .arg(find("title"), wanted, m_rows.join(", ")));
    m_left = m_left || atEnd;
    m_before = row;
    turn(&MenuWalker::findRow);
}

void MenuWalker::arrive()
{
    const bool isLast = m_at == m_path.size() - 1;
    if (isLast && !m_openLast)
        return succeed();
    press(keyOk, &MenuWalker::enterPage);
}

void MenuWalker::enterPage()
{
    const QString message = find("message"), row = m_path[m_at];
    if (!message.isEmpty())
        return fail(QString("behind \"%1\" the panel says \"%2\"").arg(row, message));
    const bool isOpen =
        m_texts != m_textsBefore && find("value", "edited").isEmpty() && find("list entry").isEmpty();
    if (!isOpen)
        return fail(QString("\"%1\" opens no page").arg(row));
    m_left = false;
    m_before.clear();
    m_rows.clear();
    if (++m_at == m_path.size())
        return succeed();
    findRow();
}

void MenuWalker::press(int key, Step next)
{
    if (!m_emulator.keypad.tap({key}))
        return fail(m_emulator.keypad.refusal());
    awaitChange(next);
}

void MenuWalker::turn(Step next)
{
    if (!m_emulator.keypad.turn(m_left ? keyKnobLeft : keyKnobRight, 1, 1))
        return fail(m_emulator.keypad.refusal());
    awaitChange(next);
}

void MenuWalker::awaitChange(Step next)
{
    m_textsBefore = m_textsOnce = m_texts;
    m_passed.start();
    read(next);
}

void MenuWalker::read(Step next)
{
    QTimer::singleShot(lookMs, this, [this, next] {
        m_emulator.screenText.ask(this, [this, next](const std::optional<QJsonArray> &texts) {
            if (!texts)
                return fail("the panel does not answer");
            const bool same = *texts == m_textsOnce, changed = *texts != m_textsBefore;
            const bool idle = m_passed.hasExpired(noChangeMs) && !m_emulator.panel.isBusy();
            m_textsOnce = *texts;
            if (!(same && (changed || idle)) && !m_passed.hasExpired(patienceMs))
                return read(next);
            m_texts = *texts;
            (this->*next)();
        });
    });
}
