// The three work modes: what the menu, the home screen, the LEDs and the device get when one gives way to
// another.

#include "caseline.h"
#include "framework/input/keyevent.h"
#include "ledpanel.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
enum Mode { Controller, Fiber, Sender };
constexpr ENUM_MenuIndex modeItems[] = {MENU_VideoController, MENU_FiberConverter, MENU_SendingCard};
constexpr int fallback = 2;

/// Each of the items with a sign behind it.
QString each(const QString &items, const char *sign)
{
    return ' ' + QString(items).replace(' ', QString(sign) + ' ') + sign;
}
const QString mainMenu = "1 2 3 4 8 9 11", presetsAndSplicing = "6 7";
/// What a sending card takes from the user, apart from the main menu.
const QString videoPath = "2015 2100 2102 2103 2104 2107 2109 1005 1006 1007 1019 1020 2346 1052 1056 2343";

const QString modes = "of 1067 1068 1069 3397:";
const QString toController = modes + " 1068=0 1069=0 3397=0 1067=1; leaves 3210=0 1067! 1068? 1069?" +
                             each(mainMenu, "+") + each(presetsAndSplicing, "+");
const QString toFiber = modes + " 1068=1 3397=0; leaves 3210=1 1067? 1068! 1069? 5+ 10+" +
                        each(mainMenu, "-") + each(presetsAndSplicing, "-");
const QString toCard = modes + " 1069=1 3397=1 1068=0 1069=1; leaves 3210=2 1067? 1068? 1069!" +
                       each(mainMenu, "+") + each(presetsAndSplicing, "-");
const QString fiber = "user 1068=1; ", card = "user 1069=1; ";
const CaseLines modeLines{
    {"from controller", "", "user 1068=1", toFiber},
    {"from controller", "", "user 1069=1", toCard},
    {"from controller", "", "user 1067=1", "sends 1067=1; reloads ; leaves 3210=0 1067! 1068? 1069?"},
    {"from fiber", fiber, "user 1067=1", toController},
    {"from fiber", fiber, "user 1069=1", toCard},
    {"from fiber", fiber, "user 1068=1", "reloads ; leaves 3210=1 1067? 1068! 1069?"},
    {"from card", card, "user 1067=1", toController},
    {"from card", card, "user 1068=1", toFiber},
    {"from card", card, "user 1069=1", "sends 1069=1; reloads ; leaves 3210=2 1067? 1068? 1069!"},
};

// The fallback input's state is 3263, its period 3266; those of the first are 3249 and 3252.
const QString nowCard = "of 1069: 1069=1 1069=1; ", nowController = "of 1067: 1067=1; ";
const QString shows = nowCard + "name DVI; visible labWindowOffDisplay_2; ";
const CaseLines cardLines{
    {"input", "2101=0", "user 1069=1",
     shows + "picture 1280x1024@59.94; screen 1920x1200@59.94; leaves rate=5994"},
    {"input, no rate", "2101=0 3266=0", "user 1069=1",
     shows + "picture 1280x1024@60; screen 1920x1200@60; leaves rate=6000"},
    {"input, no signal", "2101=0 3263=0 3266=20000", "user 1069=1",
     shows + "picture No Signal; screen 1920x1200@50; leaves rate=5000"},
    {"main layer on top", "2107=2 2117=0 2127=1", "user 1069=1",
     "of 2107 2117 2127: 2117=1 2127=2 2107=1; leaves 2107=0 2117=1 2127=2 3392=0"},
    {"main layer between", "2107=1 2117=2 2127=0", "user 1069=1",
     "of 2107 2117 2127: 2117=2 2127=1 2107=1; leaves 2107=0 2117=2 2127=1 3392=0"},
    {"main layer at the bottom", "2107=0 2117=1 2127=2", "user 1069=1",
     "of 2107 2117 2127:; leaves 2107=0 2117=1 2127=2 3392=0"},
    {"Fn, HDMI output", "user 2346=1", "user 1069=1",
     nowCard + "leaves 3208=0 2345! 2346? 2347? 2348? 2349?"},
    {"Fn, freeze", "user 2348=1", "user 1069=1", nowCard + "leaves 3208=3 2345? 2346? 2347? 2348! 2349?"},
    // The rate is not doubled any more.
    {"3D and software", "2359=1 3209=1 2015=8", "user 1069=1",
     "of 2015 2359: 2015=59.94 2359=0; leaves 2359=0 3209=0; screen 1920x1200@59.94"},
    {"lists", "2101/4+", "user 1069=1",
     nowCard + "leaves 2101/4- 2101/0+ 2351/0+ 2351/1- 2351/2- 2351/3- 2356/1+ 2356/2- 2356/3- 2356/4+"},
};

const QString path =
    "of 2101 2103 2104: 2101=2 2103=800 2104=600; leaves 2102=2 2103=800 2104=600 2105=0 2106=0 "
    "3139=800 3140=600 3141=0 3142=0" +
    each(videoPath, "+");
const QString rated = "2015=9 3266=33333; " + card + "3247=97 3249=3 3250=1920 3251=1080 ";
const CaseLines backLines{
    {"video path", card, "user 1067=1", path + " 2108+ 3087+; picture 1280x1024@59.94"},
    {"video path", card, "user 1068=1", path + " 2108+ 3087-; picture 1280x1024@59.94"},
    {"video path, no signal", card + "3263=0", "user 1067=1", path + " 2108- 3087+; picture No Signal"},
    {"video path, no signal", card + "3263=0", "user 1068=1", path + " 2108+ 3087-; picture No Signal"},
    {"rate, free", rated + "3252=16683 2350=0", "user 1067=1",
     nowController + "leaves rate=6000; screen 1920x1200@60"},
    {"rate, source in reach", rated + "3252=16683 2350=1", "user 1067=1",
     nowController + "leaves rate=5994; screen 1920x1200@59.94"},
    {"rate, source out of reach", rated + "3252=20000 2350=1", "user 1067=1",
     nowController + "leaves rate=6000; screen 1920x1200@60"},
    {"PIP 2 is on", "2101/4+; " + card + "2120=1", "user 1067=1",
     nowController + "leaves 1019- 1020- 2101/4-; hidden labWindowOffDisplay_3"},
    {"lists", "2101/4+; " + card, "user 1067=1",
     nowController + "leaves 2101/4+ 2351/1+ 2351/2+ 2351/3+ 2356/2+ 2356/3+"},
};

const CaseLines &allLines()
{
    static const CaseLines lines = modeLines + cardLines + backLines;
    return lines;
}
} // namespace

class TestApplyWorkMode : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { delete m_rig; }
    void init();
    void cleanup();

    void valueIsApplied_data();
    void valueIsApplied();
    void syncSourcesWithoutSdi();
    void cardEndsTheScalingLed();
    void reportedModeReachesTheRow();
    void fiberTakesTheLeds();
    void fiberGivesTheHomeScreenBack();
    void makerSignComesBack();

private:
    /// The device works in a mode from the start on.
    void startIn(Mode mode)
    {
        if (mode != Controller)
            m_rig->fromUser(modeItems[mode], "1");
        m_rig->forget();
    }
    QStringList sentOf(const QStringList &items)
    {
        QStringList sent;
        for (const QString &line : m_rig->device->sent.take())
            if (items.contains(line.section('=', 0, 0)))
                sent << line;
        return sent;
    }
    EngineRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;
};

/// On a model with the pages of the work mode and of 3D.
void TestApplyWorkMode::initTestCase()
{
    m_rig = new EngineRig;
    m_rig->addRows({CONFIG_WorkingMode, CONFIG_Mode3D});
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyWorkMode::init()
{
    m_rig->reset();
    m_rig->process(PARA_OutputWidth, 1920);
    m_rig->process(PARA_OutputHeight, 1200);
    m_rig->process(PARA_OutputRate, 6000);
    m_rig->input(fallback, 105, 3, 1280, 1024, 16683);
    ParaProcess::bHaveSDI = true;
}

void TestApplyWorkMode::cleanup()
{
    KeyEvent::LightFiber(false);
    m_rig->home->hide();
}

void TestApplyWorkMode::valueIsApplied_data()
{
    addCaseLines(allLines());
}

void TestApplyWorkMode::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, allLines().at(row));
}

void TestApplyWorkMode::syncSourcesWithoutSdi()
{
    ParaProcess::bHaveSDI = false;
    runCaseLine(*m_rig, {"", card, "user 1067=1", nowController + "leaves 2351/1+ 2351/2+ 2351/3-"});
}

void TestApplyWorkMode::cardEndsTheScalingLed()
{
    KeyEvent::SendLedCommand(LED_SCALE, LED_ON);
    m_rig->fromUser(MENU_SendingCard, "1");
    QVERIFY(!m_leds->lit(LED_SCALE));
}

void TestApplyWorkMode::reportedModeReachesTheRow()
{
    ParaProcess::init_20m_flg = true;
    m_rig->fromDevice(MENU_SendingCard, "");
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("2"));
    QVERIFY(m_rig->reported.take().contains("1069="));
    QCOMPARE(sentOf({"1069", "3397"}), (QStringList{"1069=1", "3397=1"}));
    m_rig->fromDevice(MENU_VideoController, "");
    QCOMPARE(m_rig->value(MENU_WorkMode), QString("0"));
    QCOMPARE(sentOf({"1067", "3397"}), QStringList{"3397=0"});
}

void TestApplyWorkMode::fiberTakesTheLeds()
{
    KeyEvent::SendLedCommand(LED_TEST, LED_ON);
    m_rig->fromUser(MENU_FiberConverter, "1");
    QVERIFY(!m_leds->lit(LED_TEST));
    KeyEvent::SendLedCommand(LED_TEST, LED_ON);
    QVERIFY(!m_leds->lit(LED_TEST));
    m_rig->fromUser(MENU_VideoController, "1");
    QVERIFY(m_leds->lit(LED_TEST));
    KeyEvent::SendLedCommand(LED_TEST, LED_OFF);
}

void TestApplyWorkMode::fiberGivesTheHomeScreenBack()
{
    MenuDirectory *menu = poolObject<MenuDirectory>(ENUM_MAIN_MENU);
    for (Mode to : {Controller, Sender})
        for (bool pageOpen : {true, false}) {
            init();
            startIn(Fiber);
            menu->setParentScreen(nullptr);
            if (pageOpen) {
                m_rig->home->show();
                menu->show();
                QApplication::setActiveWindow(menu);
            }
            m_rig->fromUser(modeItems[to], "1");
            QCOMPARE(m_rig->home->isVisible(), !pageOpen);
            QVERIFY(menu->parentScreen() == m_rig->home);
            menu->hide();
            m_rig->home->hide();
        }
}

void TestApplyWorkMode::makerSignComesBack()
{
    const auto *name = m_rig->home->findChild<QLabel *>("labDeviceName");
    for (const char *sign : {"1", "0"}) {
        startIn(Fiber);
        m_rig->set(MENU_MakerSign, sign);
        m_rig->home->SetDevNameState(sign[0] == '1' ? COMMON_OFF : COMMON_ON);
        m_rig->fromUser(MENU_VideoController, "1");
        QCOMPARE(name->isHidden(), sign[0] == '0');
    }
}

FPD_TEST(TestApplyWorkMode)

#include "tst_applyworkmode.moc"
