// A user keeps what is on the wall: saves, loads, copies and clears presets, as the LCD, the store and the
// device have it, after a restart too; and a PC takes over in the middle of it.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
const QRect message(34, 17, 250, 206), wholeDialog(17, 25, 286, 190);
const QString concert = "Concert", news = "新闻直播";
const QColor chosen("#332280");

ENUM_MenuIndex itemOf(int preset)
{
    return ENUM_MenuIndex(MENU_Preset1 + preset - 1);
}
} // namespace

class TestStoryPresets : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        SystemTest::begin();
        QVERIFY(m_walk.go({MENU_PresetSettings}));
    }

private slots:
    void reportsGoOnBehindTheDialog()
    {
        QVERIFY(m_walk.enter(itemOf(2)));
        QVERIFY(m_panel.ask({"push", "1300009f", "21"}).ok);
        QVERIFY(waitUntilStored(MENU_Audio_Volume, "33"));
        QVERIFY(m_panel.turn(Right) && m_panel.settle());
        QCOMPARE(tile(3), chosen);
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(m_walk.showsTitle());
    }

    void save()
    {
        QVERIFY(choose(3, 0));
        QVERIFY(tells("PresetSaveSucceed"));
        QVERIFY(is(3, "saved", ""));
        QVERIFY(m_walk.enter(itemOf(3)) && m_panel.turn(Left) && m_panel.settle() && m_walk.press(keys::Ok));
        QVERIFY(answer("IfCoverPreset", 3, false));
        QVERIFY(sent({"13510102 00 02"}));
    }

    void load()
    {
        QVERIFY(choose(3, 0));
        QVERIFY(tells("PresetLoadSucceed"));
        QVERIFY(is(3, "used", "") && is(1, "saved", concert));
        QVERIFY(sent({"13510100 00 02"}));
    }

    void copy()
    {
        QVERIFY(openTargets(2));
        // The source does not answer as a target.
        QVERIFY(m_walk.turn(Right, 1) && m_walk.press(keys::Ok));
        QVERIFY(m_walk.turn(Right, 2) && m_walk.press(keys::Ok));
        QVERIFY(tells("PresetCopySucceed"));
        QVERIFY(is(4, "saved", news) && is(2, "saved", news));
        QVERIFY(sent({"13510106 00 00010003"}));
    }

    void copyOntoASavedOne()
    {
        QVERIFY(openTargets(3));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(answer("IfCoverPreset", 1, false));
        QVERIFY(m_panel.waitFor(m_walk.text("PresetCopyTo"), QRect(0, 0, 320, 24)));
        QVERIFY(device().contains("preset 1: saved " + concert));
        QVERIFY(m_walk.turn(Right, 1) && m_walk.press(keys::Ok));
        QVERIFY(answer("IfCoverPreset", 2, false));
        QVERIFY(m_walk.press(keys::Ok));
        QVERIFY(answer("IfCoverPreset", 2, true));
        QVERIFY(tells("PresetCopySucceed"));
        // The third has no name of its own; the second keeps the one it stands under until the next start.
        QVERIFY(is(1, "saved", concert) && is(3, "used", ""));
        QVERIFY(device().contains("preset 2: saved"));
    }

    void clearTheOneInUse()
    {
        QVERIFY(clearWrites() && choose(3, 1));
        QVERIFY(answer("DeletePresetConfirm", 3, false));
        QVERIFY(choose(3, 1));
        QVERIFY(answer("DeletePresetConfirm", 3, true));
        QVERIFY(tells("PresetDeleteSucceed"));
        QVERIFY(is(3, "blank", ""));
        QVERIFY(sent({"13510104 00 0002"}));
        QCOMPARE(device().filter("used"), QStringList());
    }

    void aRestartShowsTheSame()
    {
        QVERIFY(m_panel.ask({"panel", "stop"}).ok && m_panel.start() && m_panel.ask({"wait", "ready"}).ok);
        m_walk.assume({});
        QVERIFY(m_walk.go({MENU_PresetSettings}));
        QVERIFY(is(1, "saved", concert) && is(2, "saved", "") && is(3, "blank", "") && is(4, "saved", news));
        QVERIFY(m_walk.home());
    }

    void aTakeOverLeavesAllAsItIs_data()
    {
        const DataRows<int> row{"steps"};
        row("in the dialog", 1);
        row("among the targets", 2);
    }
    void aTakeOverLeavesAllAsItIs()
    {
        QFETCH(int, steps);
        const QStringList before = device();
        QVERIFY(clearWrites());
        QVERIFY(m_panel.ask({"link", "eth", "1"}).ok && m_panel.settle());
        QVERIFY(m_walk.go({MENU_PresetSettings}));
        if (steps == 2)
            QVERIFY(openTargets(4));
        else
            QVERIFY(m_walk.enter(itemOf(4)));
        m_panel.mark();
        QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
        QVERIFY(m_panel.waitForLog(loglines::wentHome));
        QVERIFY(waitUntilStored(MENU_ScreenLock, "1"));
        QVERIFY(waitUntilStored(itemOf(4), "true", "Enable"));
        QVERIFY(m_panel.ask({"heartbeat", "off"}).ok && m_panel.ask({"link", "eth", "0"}).ok);
        QVERIFY(waitUntilStored(MENU_ScreenLock, "0"));
        QVERIFY(m_panel.settle() && m_walk.isHome());
        m_walk.assume({});
        QCOMPARE(device(), before);
        QCOMPARE(m_panel.writes().filter("13510"), QStringList());
    }

private:
    /// OK on a preset, so many steps of the knob to the right, OK.
    bool choose(int preset, int steps)
    {
        return m_walk.enter(itemOf(preset)) &&
               (steps == 0 || (m_panel.turn(Right, steps) && m_panel.settle())) && m_walk.press(keys::Ok);
    }

    bool openTargets(int source)
    {
        return choose(source, 2) && m_panel.waitFor(m_walk.text("PresetCopyTo"), QRect(0, 0, 320, 24)) &&
               waitUntilStored(itemOf(source), "false", "Enable");
    }

    /// The commands on presets so far.
    bool sent(const QStringList &commands)
    {
        const QStringList writes = m_panel.writes().filter(QRegularExpression("^13510"));
        if (writes != commands)
            qWarning() << writes << "and not" << commands;
        return writes == commands && clearWrites();
    }
    /// The message of what has been done, and then the page of the presets.
    bool tells(const QString &text)
    {
        return m_panel.waitToDraw(m_walk.text(text), 18, message) &&
               m_panel.waitUntil([this] { return m_panel.logLines(loglines::messageClosed).size() >= 2; }) &&
               m_panel.settle() && m_walk.showsTitle();
    }

    bool answer(const QString &question, int preset, bool yes)
    {
        const QString name = m_walk.text(m_panel.stored(itemOf(preset), "Tag"));
        return m_panel.waitToDraw(m_walk.text(question) + name + "?", 18, message) && m_walk.answer(yes);
    }

    /// A preset as its row, the store and the device show it; "blank", "saved" or "used" and the name.
    bool is(int preset, const QString &state, const QString &name)
    {
        const QString value = state == "blank" ? "Blank" : state == "saved" ? "Saved" : "Used";
        const QString tag = name.isEmpty() ? QString("Preset%1").arg(preset) : name;
        const QRect row(0, 24 + 36 * (preset - 1), 320, 36);
        const QString line = QString("preset %1: %2 %3").arg(preset).arg(state, name).trimmed();
        return m_panel.waitToDraw(m_walk.text(tag), 22, row) &&
               m_panel.waitToDraw(m_walk.text(value), 22, row) && m_panel.waitUntil([&] {
                   return m_panel.stored(itemOf(preset)) == value &&
                          m_panel.stored(itemOf(preset), "Tag") == tag &&
                          m_panel.stored(itemOf(preset), "Enable") == "true";
               }) &&
               device().contains(line);
    }

    QColor tile(int action) const
    {
        return m_panel.screen().pixelColor(wholeDialog.topLeft() + QPoint(6 + 70 * (action - 1), 60));
    }

    QStringList device() { return m_panel.ask({"preset", "list"}).lines; }
};

FPD_TEST(TestStoryPresets)
#include "tst_storypresets.moc"
