// Display mode, Fn key and test pattern, with the LEDs that they light.

#include "enginerig.h"
#include "framework/input/keyevent.h"
#include "ledpanel.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
constexpr ENUM_MenuIndex modeItems[] = {MENU_Normal, MENU_Freeze, MENU_FTB, MENU_TestPattern};
}

class TestApplyDisplay : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void entersMode_data();
    void entersMode();
    void secondFreezeOnlyLightsAgain();
    void knownModeIsNotToldAgain();
    void normalGivesEverythingBack();
    void lastPatternMayBeAPicture();
    void fnKey_data();
    void fnKey();
    void patternTypeSendsItsPattern_data();
    void patternTypeSendsItsPattern();
    void patternPageTakesThePlace();
    void wrongPatternTypeChangesNothing();
    void patternChoosesItsFamily();
    void lowestLayer_data();
    void lowestLayer();

private:
    /// Who is marked, who can be chosen: a letter for each of the four modes.
    QString marks() const
    {
        QString text;
        for (ENUM_MenuIndex item : modeItems)
            text += m_rig->choice(item) == SELECTED ? 'x' : m_rig->enabled(item) ? 'o' : '-';
        return text;
    }
    /// The mode's picture stands on the home screen.
    bool pictureStands(int mode) const
    {
        static const char *const files[] = {"Normal", "FRZ", "Black", "Test"};
        const QPixmap wanted(QString(":/resource/image/mainWindow/2960-Test_%1.png").arg(files[mode]));
        const auto *shown = m_rig->home->findChild<QLabel *>("labTestMode");
        return shown && !wanted.isNull() && shown->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
    }
    EngineRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;
};

void TestApplyDisplay::initTestCase()
{
    m_rig = new EngineRig;
    m_rig->addRows({CONFIG_TestType});
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyDisplay::entersMode_data()
{
    addColumns<int, QString, QString, bool, QString>({"mode", "function", "marks", "fnLit", "sent"});
    addRow("freeze", 1, "3", "oxo-", true, "Freeze=1");
    addRow("freeze, Fn is black", 1, "2", "oxo-", false, "Freeze=1");
    addRow("black", 2, "2", "oox-", true, "FTB=1");
    addRow("test pattern", 3, "4", "o--o", true, "Test_PureColor=5");
    addRow("test pattern, Fn is sync", 3, "0", "o--o", false, "Test_PureColor=5");
}

/// A reported mode is shown, not sent.
void TestApplyDisplay::entersMode()
{
    QFETCH(int, mode);
    QFETCH(QString, function);
    QFETCH(QString, sent);
    for (const bool user : {true, false}) {
        m_rig->reset();
        m_rig->set(MENU_FnMode, function);
        m_rig->engine->SetParaToXml("1", modeItems[mode], user ? SET_XML_USER : SET_XML_DEVICE);
        m_rig->settle();
        QTEST(marks(), "marks");
        QCOMPARE(m_rig->value(PARA_DisplayMode).toInt(), mode);
        QCOMPARE(m_leds->lit(LED_FREEZE), mode == 1);
        QCOMPARE(m_leds->lit(LED_TEST), mode == 3);
        QTEST(m_leds->lit(LED_FN), "fnLit");
        QVERIFY(pictureStands(mode));
        QCOMPARE(m_rig->device->sent.take().join(' '), user ? sent : QString());
    }
}

void TestApplyDisplay::secondFreezeOnlyLightsAgain()
{
    m_rig->fromUser(MENU_Freeze, "1");
    m_rig->forget();
    KeyEvent::SendLedCommand(LED_FREEZE, LED_OFF);
    m_rig->fromUser(MENU_Freeze, "1");
    QVERIFY(m_leds->lit(LED_FREEZE));
    QCOMPARE(m_rig->device->sent.take() + m_rig->reloaded.take(), QStringList());
}

void TestApplyDisplay::normalGivesEverythingBack()
{
    m_rig->fromUser(MENU_TestPattern, "1");
    m_rig->forget();
    m_rig->fromUser(MENU_Normal, "1");
    QCOMPARE(marks(), QString("xooo"));
    QVERIFY(pictureStands(0));
    QCOMPARE(m_rig->value(PARA_DisplayMode), QString("0"));
    QVERIFY(!m_leds->lit(LED_TEST) && !m_leds->lit(LED_FREEZE) && !m_leds->lit(LED_FN));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"Normal=1"});
}

void TestApplyDisplay::lastPatternMayBeAPicture()
{
    m_rig->process(PARA_TestPatternFamily, 3);
    m_rig->fromUser(MENU_TestPattern, "1");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyDisplay::knownModeIsNotToldAgain()
{
    m_rig->engine->UpdataDispMode(3);
    m_rig->engine->UpdataDispMode(7);
    m_rig->engine->UpdataDispMode(2);
    QCOMPARE(m_rig->reported.take() + m_rig->reloaded.take(), QStringList());
}

void TestApplyDisplay::fnKey_data()
{
    addColumns<int, int, bool>({"function", "mode", "lit"});
    addRow("sync", 0, 1, false);
    addRow("HDMI output", 1, 1, false);
    addRow("black, is black", 2, 2, true);
    addRow("black, is frozen", 2, 1, false);
    addRow("freeze, is frozen", 3, 1, true);
    addRow("test pattern, is one", 4, 3, true);
    addRow("test pattern, is normal", 4, 0, false);
}

void TestApplyDisplay::fnKey()
{
    QFETCH(int, function);
    QFETCH(int, mode);
    m_rig->process(PARA_DisplayMode, mode);
    const auto item = ENUM_MenuIndex(MENU_Fn_Synchronization + function);
    m_rig->fromUser(item, "1");
    for (int other = 0; other < 5; ++other)
        QCOMPARE(m_rig->choice(ENUM_MenuIndex(MENU_Fn_Synchronization + other)) == SELECTED,
                 other == function);
    QCOMPARE(m_rig->value(MENU_FnMode).toInt(), function);
    QTEST(m_leds->lit(LED_FN), "lit");
    const QStringList line{itemnames::line(item, "1")};
    QCOMPARE(m_rig->device->sent.take(), line);
    m_rig->set(MENU_FnMode, "9");
    m_rig->fromDevice(item, "1");
    QCOMPARE(m_rig->value(MENU_FnMode).toInt(), function);
    QTEST(m_leds->lit(LED_FN), "lit");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), line);
}

void TestApplyDisplay::patternTypeSendsItsPattern_data()
{
    addColumns<QString, QString>({"type", "sent"});
    addRow("pure colour", "0", "Test_PureColor=5 Test_Type=0");
    addRow("gradient", "1", "Test_Gradient=0 Test_Type=1");
    addRow("grid", "2", "Test_Grid=0 Test_Type=2");
    addRow("maker's picture", "3", "Test_Type=3");
    addRow("custom", "4", "Test_Type=4");
}

void TestApplyDisplay::patternTypeSendsItsPattern()
{
    QFETCH(QString, type);
    m_rig->fromUser(MENU_Test_Type, type);
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), type);
    QTEST(m_rig->device->sent.take().join(' '), "sent");
    if (!m_rig->info(MENU_Test_Type).params.contains(type))
        return; // the row itself takes back what its list does not have
    m_rig->process(PARA_TestPatternFamily, 9);
    m_rig->fromDevice(MENU_Test_Type, type);
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), type);
    QVERIFY(m_rig->reported.take().contains("Test_Type=" + type));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyDisplay::patternPageTakesThePlace()
{
    m_rig->fromUser(MENU_Test_Type, "2");
    ObjectPool *pool = ObjectPool::getInstance();
    auto *page = dynamic_cast<MenuDirectory *>(pool->GetObject(ENUM_PAGE_TestGrid));
    QVERIFY(page && pool->GetObject(ENUM_PAGE_TestPattern) == page);
    QVERIFY(page->isVisible());
    m_rig->fromUser(MENU_Test_Type, "1");
    QVERIFY(!page->isVisible());
    QVERIFY(pool->GetObject(ENUM_PAGE_TestPattern) == pool->GetObject(ENUM_PAGE_TestGradient));
    auto *gradient = dynamic_cast<MenuDirectory *>(pool->GetObject(ENUM_PAGE_TestGradient));
    QVERIFY(gradient->parentScreen() == pool->GetObject(ENUM_PAGE_DisplayControl));
    gradient->hide();
}

void TestApplyDisplay::wrongPatternTypeChangesNothing()
{
    m_rig->process(PARA_TestPatternFamily, 1);
    m_rig->fromUser(MENU_Test_Type, "5");
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), QString("1"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyDisplay::patternChoosesItsFamily()
{
    const ENUM_MenuIndex patterns[] = {MENU_Test_PureColor, MENU_Test_Gradient, MENU_Test_Grid};
    for (int family = 0; family < int(std::size(patterns)); ++family)
        for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
            m_rig->process(PARA_TestPatternFamily, 4);
            m_rig->engine->SetParaToXml("1", patterns[family], mode);
            m_rig->settle();
            QCOMPARE(m_rig->value(PARA_TestPatternFamily).toInt(), family);
            const QString line = itemnames::line(patterns[family], "1");
            QCOMPARE(m_rig->device->sent.take().join(' '), mode == SET_XML_USER ? line : QString());
            QCOMPARE(m_rig->reported.take().contains(line), mode == SET_XML_DEVICE);
        }
}

void TestApplyDisplay::lowestLayer_data()
{
    // Of the three layers: status, priorities, scaling.
    addColumns<QString, QStringList, QString, int, bool>({"on", "places", "scaling", "lowest", "lit"});
    const QStringList inOrder{"0", "1", "2"}, turned{"2", "1", "0"}, without{"255", "1", "2"};
    addRow("main alone, full screen", "100", inOrder, "022", 0, true);
    addRow("main alone, custom", "100", inOrder, "202", 0, false);
    addRow("PIP 2 below", "111", turned, "220", 2, true);
    addRow("the lowest is off", "110", turned, "200", 1, true);
    addRow("equal: the earlier", "011", QStringList{"0", "1", "1"}, "220", 1, false);
    addRow("main without a place", "110", without, "020", 1, false);
    addRow("main without a place alone", "100", without, "000", 255, false);
    addRow("none", "000", inOrder, "000", 255, false);
}

void TestApplyDisplay::lowestLayer()
{
    QFETCH(QString, on);
    QFETCH(QStringList, places);
    QFETCH(QString, scaling);
    for (int layer = 0; layer < 3; ++layer) {
        const int distance = layer * STRIDE_Layer;
        m_rig->set(ENUM_MenuIndex(MENU_MainLayer_Status + distance), on.mid(layer, 1));
        m_rig->set(ENUM_MenuIndex(MENU_MainLayer_Priority + distance), places[layer]);
        m_rig->set(ENUM_MenuIndex(MENU_MainLayer_ScalingMode + distance), scaling.mid(layer, 1));
    }
    QTEST(int(m_rig->engine->GetLowLayerNum()), "lowest");
    QTEST(m_leds->lit(LED_SCALE), "lit");
}

FPD_TEST(TestApplyDisplay)

#include "tst_applydisplay.moc"
