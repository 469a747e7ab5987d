// Messages have the screen: what is typed while they are up reaches no page behind, however fast it comes and
// however many follow each other; and a PC that takes over ends all that is open.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QRegularExpression>

using namespace VASK;

namespace
{
using Way = QList<ENUM_MenuIndex>;

// What the panel logs when a message comes up and when its time is over, and a page for each key.
const QString shown = loglines::messageUp, closed = loglines::messageClosed, pageKey = loglines::pageKey;
const QString languageQuestion = "选择语言/Select Language";
constexpr int messagesInARow = 2; ///< a request to wait and what has become of it

/// Keys that a page has got while a message was up, or of which it has got the release alone.
QStringList strayKeys(const QStringList &log)
{
    QStringList stray, pressed;
    int up = 0, gone = 0;
    for (const QString &line : log) {
        up += line.startsWith(shown);
        gone += line.startsWith(closed);
        if (!line.startsWith(pageKey) || up == 0)
            continue;
        const QString key = line.section(' ', 2, 2);
        const bool press = line.endsWith("type: 0");
        if (gone < messagesInARow || (!press && !pressed.contains(key)))
            stray << line;
        if (press)
            pressed << key;
    }
    return stray;
}
} // namespace

class TestStoryMessages : public SystemTest
{
    Q_OBJECT
private slots:
    void keysReachNoPageBehind_data()
    {
        const DataRows<Way, QStringList> row{"way", "keys"};
        row("a file that loads",
            Way{MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles, MENU_CabinetFile1},
            QStringList{keys::Ok, keys::Esc, "right"});
        row("a preset that is saved", Way{MENU_PresetSettings, MENU_Preset3},
            QStringList{"right", "left", keys::Main, keys::Fn});
    }
    void keysReachNoPageBehind()
    {
        const auto [way, keys] = fetched<Way, QStringList>({"way", "keys"});
        QVERIFY(openMessages(way));
        for (int i = 0; m_panel.logLines(closed).size() < messagesInARow; ++i) {
            const QString &key = keys[i % keys.size()];
            QVERIFY(key == "left" || key == "right" ? m_panel.ask({"knob", key}).ok : m_panel.press(key));
        }
        QVERIFY(m_panel.settle());
        QCOMPARE(strayKeys(m_panel.logLines(QString())), QStringList());
        // Only the last key can have come behind the messages, and can have brought up others.
        QVERIFY(m_panel.waitUntil([this] {
            return m_panel.logLines(shown).filter(QRegularExpression('^' + shown)).size() ==
                   m_panel.logLines(closed).size();
        }));
        QVERIFY(m_walk.home());
    }

    void aTakeOverEndsAllThatIsOpen_data()
    {
        // calibration: a message of the device stands in front
        const DataRows<Way, bool> row{"way", "calibration"};
        row("an open list", Way{MENU_LayerSettings, MENU_PIP1, MENU_PIP1_Status}, true);
        row("an edited number", Way{MENU_LayerSettings, MENU_MainLayer, MENU_MainLayer_HorWidth}, true);
        row("the brightness", Way{MENU_ScreenBrightness}, true);
        row("a question", Way{MENU_FactoryReset, MENU_SaveIP}, true);
        row("the language", Way{}, true);
        row("a preset on its way", Way{MENU_PresetSettings, MENU_Preset3}, false);
    }
    void aTakeOverEndsAllThatIsOpen()
    {
        const auto [way, calibration] = fetched<Way, bool>({"way", "calibration"});
        QVERIFY(m_panel.ask({"link", "eth", "1"}).ok && m_panel.settle());
        if (way.isEmpty())
            QVERIFY(asksForTheLanguage());
        else if (calibration)
            QVERIFY(m_walk.go(way.mid(0, way.size() - 1)) && m_walk.moveTo(way.last()) &&
                    m_panel.press(keys::Ok) && m_panel.settle());
        else
            QVERIFY(openMessages(way));
        if (calibration)
            QVERIFY(m_panel.ask({"calibrate", "on"}).ok && m_panel.settle());
        m_panel.mark();
        QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
        QVERIFY(m_panel.waitForLog(loglines::wentHome));
        QVERIFY(waitUntilStored(MENU_ScreenLock, "1"));
        QVERIFY(m_panel.ask({"heartbeat", "off"}).ok && m_panel.ask({"link", "eth", "0"}).ok);
        QVERIFY(waitUntilStored(MENU_ScreenLock, "0"));
        // No message has lived to the end of its time, and home takes the keys: none is in front of it.
        QCOMPARE(m_panel.logLines(closed), QStringList());
        m_walk.assume({});
        QVERIFY(m_panel.settle() && m_walk.isHome());
        QVERIFY(asksForTheLanguage());
        QVERIFY(m_panel.turn(Left) && m_panel.press(keys::Ok) && m_panel.waitUntilGone(languageQuestion));
        if (way.isEmpty())
            return;
        // The page comes back with its cursor free.
        QVERIFY(m_walk.go(way.mid(0, way.size() - 1)));
        QVERIFY(m_walk.moveTo(way.first() == MENU_PresetSettings ? MENU_Preset4 : way.last()));
        QVERIFY(m_walk.home());
    }

private:
    bool asksForTheLanguage()
    {
        return m_panel.settle() && m_panel.hold(keys::Ok) &&
               m_panel.waitFor(languageQuestion, QRect(0, 65, 320, 30));
    }
    /// OK on a file; OK on a preset, and OK on the first of what can be done with it.
    bool openMessages(const Way &way)
    {
        if (!m_walk.go(way.mid(0, way.size() - 1)) || !m_walk.moveTo(way.last()))
            return false;
        if (way.first() == MENU_PresetSettings && !(m_panel.press(keys::Ok) && m_panel.settle()))
            return false;
        m_panel.mark();
        return m_panel.press(keys::Ok) && m_panel.waitForLog(shown);
    }
};

FPD_TEST(TestStoryMessages)
#include "tst_storymessages.moc"
