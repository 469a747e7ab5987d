// The language of the panel as its user changes it: OK held at home, a choice with the knob, and the pages
// speak it at once, after a restart too.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
const QRect question(0, 65, 320, 30);
const QRect waiting(0, 105, 320, 30);
const QRect secondLayer(62, 64, 200, 28);
const QRect rows(0, 24, 320, 216);
const QString askText = "选择语言/Select Language";

struct Language {
    const char *file;
    const char *wait; ///< words of the request to wait
};
constexpr Language languages[] = {{"fpd_ZH", "请稍等..."}, {"fpd_EN", "Please"}};
} // namespace

class TestStoryLanguage : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        SystemTest::begin();
        QVERIFY(speaks(false));
        // A page that is built when it is opened is there before the language changes.
        QVERIFY(m_walk.go({MENU_SystemSetting, MENU_AboutUs}));
        QVERIFY(m_walk.showsTitle());
        QVERIFY(m_walk.home());
    }

private slots:
    void theQuestionWaitsForAnAnswer()
    {
        QVERIFY(asks());
        m_panel.mark();
        QVERIFY(m_panel.press(keys::Esc));
        QVERIFY(m_panel.press(keys::Main));
        QVERIFY(m_panel.waitUntil([this] { return m_panel.logLines(loglines::dialogsKey).size() == 4; }));
        QVERIFY(showsWindow(askText, question));
        // The language in use: back at home, and nothing to wait for.
        m_panel.mark();
        QVERIFY(m_panel.turn(Right));
        QVERIFY(m_panel.press(keys::Ok));
        QVERIFY(m_panel.waitUntil([this] { return !m_panel.shows(askText, question); }));
        QVERIFY(speaks(false));
        QCOMPARE(m_panel.logLines("install qm"), QStringList());
        QVERIFY(m_walk.isHome());
    }

    void itSpeaksEnglishAtOnce()
    {
        QVERIFY(choose(true));
        QVERIFY(speaks(true));
        QVERIFY(showsRows());
    }

    void aRestartKeepsIt()
    {
        QVERIFY(restart());
        QVERIFY(speaks(true));
        QVERIFY(showsRows());
    }

    void thereAndBackAgain()
    {
        QVERIFY(choose(false));
        QVERIFY(speaks(false));
        QVERIFY(showsRows());
        QVERIFY(choose(true));
        QVERIFY(speaks(true));
    }

    void aMissingFileLeavesThePanelRunning()
    {
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QCOMPARE(m_panel.stored(MENU_LanguageEn, "Choice"), SELECTED);
        QVERIFY(QFile::remove(m_panel.file("/usr/vask/etc/fpd/config/fpd_EN.qm")));
        QVERIFY(m_panel.start());
        QVERIFY(!m_panel.logLines(loglines::textsMissing).isEmpty());
        m_walk.speak("fpd_ZH");
        QVERIFY(m_panel.ask({"wait", "ready"}).ok);
        QVERIFY(m_panel.waitFor(m_walk.text("Inactive"), secondLayer));
        QVERIFY(m_walk.openMenu());
        QVERIFY(m_walk.showsTitle());
    }

private:
    /// In the one font of these windows, as they may be gone before all fonts are tried.
    bool showsWindow(const QString &text, const QRect &place)
    {
        return m_panel.waitToDraw(text, 18, place, "Arial");
    }

    bool asks() { return m_panel.settle() && m_panel.hold(keys::Ok) && showsWindow(askText, question); }

    /// English has the focus at first.
    bool choose(bool english)
    {
        if (!asks() || (!english && !(m_panel.turn(Left) && m_panel.settle())))
            return false;
        m_panel.mark();
        return m_panel.press(keys::Ok) && showsWindow(languages[english].wait, waiting) &&
               m_panel.waitForLog(loglines::textsLoaded);
    }

    bool speaks(bool english)
    {
        m_walk.speak(languages[english].file);
        const auto chosen = [this](ENUM_MenuIndex item) {
            return m_panel.stored(item, "Choice") == SELECTED;
        };
        return m_panel.waitFor(m_walk.text("Inactive"), secondLayer) &&
               m_panel.waitUntil([&] { return chosen(MENU_LanguageEn) == english; }) &&
               chosen(MENU_LanguageZh) != english;
    }

    /// Texts inside pages, one of each tree.
    bool showsRows()
    {
        struct Stop {
            ENUM_ConfigIndex root;
            QList<ENUM_MenuIndex> way;
            const char *text;
        };
        const Stop stops[] = {
            {CONFIG_MainMenu, {MENU_SystemSetting, MENU_AboutUs}, "HardwareVersion"},
            {CONFIG_MainMenu, {MENU_AdvancedSetting, MENU_Audio}, "Volume"},
            {CONFIG_UserHiddenMenu, {}, "HDCP状态"},
            {CONFIG_ProductHiddenMenu, {}, "清除所有参数"},
        };
        for (const Stop &stop : stops) {
            bool there = m_walk.openMenu(stop.root);
            for (ENUM_MenuIndex row : stop.way)
                there = there && m_walk.enter(row);
            if (!there || !m_walk.showsTitle() || !m_panel.waitFor(m_walk.text(stop.text), rows) ||
                !m_walk.home())
                return false;
        }
        return m_panel.settle();
    }
};

FPD_TEST(TestStoryLanguage)
#include "tst_storylanguage.moc"
