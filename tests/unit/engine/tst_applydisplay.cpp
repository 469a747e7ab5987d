// Display mode, Fn key and test pattern, with the LEDs that they light.

#include "enginerig.h"
#include "framework/keyevent.h"
#include "ledpanel.h"

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
    void cleanupTestCase();
    void init();

    void entersMode_data();
    void entersMode();
    void reportedModeIsShownNotSent_data();
    void reportedModeIsShownNotSent();
    void secondFreezeOnlyLightsAgain();
    void normalGivesEverythingBack();
    void testPatternSendsTheLastOne_data();
    void testPatternSendsTheLastOne();
    void deviceTellsItsMode_data();
    void deviceTellsItsMode();
    void knownModeIsNotToldAgain();
    void fnKey_data();
    void fnKey();
    void patternTypeSendsItsPattern_data();
    void patternTypeSendsItsPattern();
    void patternPageTakesThePlace();
    void wrongPatternTypeChangesNothing();
    void patternChoosesItsFamily_data();
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
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyDisplay::cleanupTestCase()
{
    delete m_rig;
}

void TestApplyDisplay::init()
{
    m_rig->reset();
}

void TestApplyDisplay::entersMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("function"); ///< of the Fn key
    QTest::addColumn<QString>("marks");
    QTest::addColumn<bool>("fnLit");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("freeze") << 1 << "3"
                            << "oxo-" << true << QStringList{"1022=1"};
    QTest::newRow("freeze, Fn is black") << 1 << "2"
                                         << "oxo-" << false << QStringList{"1022=1"};
    QTest::newRow("black") << 2 << "2"
                           << "oox-" << true << QStringList{"1023=1"};
    QTest::newRow("test pattern") << 3 << "4"
                                  << "o--o" << true << QStringList{"2326=5"};
    QTest::newRow("test pattern, Fn is sync") << 3 << "0"
                                              << "o--o" << false << QStringList{"2326=5"};
}

void TestApplyDisplay::entersMode()
{
    QFETCH(int, mode);
    QFETCH(QString, function);
    m_rig->set(MENU_FnMode, function);
    m_rig->fromUser(modeItems[mode], "1");
    QTEST(marks(), "marks");
    QCOMPARE(m_rig->value(PARA_DisplayMode).toInt(), mode);
    QCOMPARE(m_leds->lit(LED_FREEZE), mode == 1);
    QCOMPARE(m_leds->lit(LED_TEST), mode == 3);
    QTEST(m_leds->lit(LED_FN), "fnLit");
    QVERIFY(pictureStands(mode));
    QTEST(m_rig->device->sent.take(), "sent");
}

void TestApplyDisplay::reportedModeIsShownNotSent_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("function"); ///< of the Fn key, which is that mode's
    QTest::addColumn<QString>("marks");
    QTest::newRow("normal") << 0 << "0"
                            << "xooo";
    QTest::newRow("freeze") << 1 << "3"
                            << "oxo-";
    QTest::newRow("black") << 2 << "2"
                           << "oox-";
    QTest::newRow("test pattern") << 3 << "4"
                                  << "o--o";
}

void TestApplyDisplay::reportedModeIsShownNotSent()
{
    QFETCH(int, mode);
    QFETCH(QString, function);
    m_rig->set(MENU_FnMode, function);
    m_rig->process(PARA_DisplayMode, mode == 0 ? 1 : 0);
    m_rig->fromDevice(modeItems[mode], "1");
    QTEST(marks(), "marks");
    QVERIFY(pictureStands(mode));
    QCOMPARE(m_leds->lit(LED_FREEZE), mode == 1);
    QCOMPARE(m_leds->lit(LED_TEST), mode == 3);
    QCOMPARE(m_leds->lit(LED_FN), mode != 0);
    QCOMPARE(m_rig->value(PARA_DisplayMode).toInt(), mode);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    const QStringList told = m_rig->reported.take();
    QCOMPARE(told.count(QString("%1=1").arg(modeItems[mode])), mode == 3 ? 0 : 1);
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
    QCOMPARE(m_rig->value(PARA_DisplayMode), QString("0"));
    QVERIFY(!m_leds->lit(LED_TEST) && !m_leds->lit(LED_FREEZE) && !m_leds->lit(LED_FN));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1021=1"});
}

void TestApplyDisplay::testPatternSendsTheLastOne_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("pure colour") << 0 << QStringList{"2326=5"};
    QTest::newRow("gradient") << 1 << QStringList{"2327=0"};
    QTest::newRow("grid") << 2 << QStringList{"2328=0"};
    QTest::newRow("picture") << 3 << QStringList();
}

void TestApplyDisplay::testPatternSendsTheLastOne()
{
    QFETCH(int, family);
    m_rig->process(PARA_TestPatternFamily, family);
    m_rig->fromUser(MENU_TestPattern, "1");
    QTEST(m_rig->device->sent.take(), "sent");
}

void TestApplyDisplay::deviceTellsItsMode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("marks");
    QTest::newRow("normal") << 3 << "xooo";
    QTest::newRow("freeze") << 4 << "oxo-";
    QTest::newRow("black") << 5 << "oox-";
    QTest::newRow("test pattern") << 6 << "o--o";
}

void TestApplyDisplay::deviceTellsItsMode()
{
    QFETCH(int, code);
    m_rig->process(PARA_DisplayMode, code == 3 ? 2 : 0);
    m_rig->engine->UpdataDispMode(code);
    QTEST(marks(), "marks");
    QCOMPARE(m_rig->value(PARA_DisplayMode).toInt(), code - 3);
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
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("lit");
    QTest::newRow("sync") << 0 << 1 << false;
    QTest::newRow("HDMI output") << 1 << 1 << false;
    QTest::newRow("black, is black") << 2 << 2 << true;
    QTest::newRow("black, is frozen") << 2 << 1 << false;
    QTest::newRow("freeze, is frozen") << 3 << 1 << true;
    QTest::newRow("test pattern, is one") << 4 << 3 << true;
    QTest::newRow("test pattern, is normal") << 4 << 0 << false;
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
    const QStringList line{QString("%1=1").arg(item)};
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
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("pure colour") << "0" << QStringList{"2326=5", "2325=0"};
    QTest::newRow("gradient") << "1" << QStringList{"2327=0", "2325=1"};
    QTest::newRow("grid") << "2" << QStringList{"2328=0", "2325=2"};
    QTest::newRow("maker's picture") << "3" << QStringList{"2325=3"};
    QTest::newRow("custom") << "4" << QStringList{"2325=4"};
}

void TestApplyDisplay::patternTypeSendsItsPattern()
{
    QFETCH(QString, type);
    m_rig->fromUser(MENU_Test_Type, type);
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), type);
    QTEST(m_rig->device->sent.take(), "sent");
    if (!m_rig->info(MENU_Test_Type).params.contains(type))
        return; // the row itself takes back what its list does not have
    m_rig->process(PARA_TestPatternFamily, 9);
    m_rig->fromDevice(MENU_Test_Type, type);
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), type);
    QVERIFY(m_rig->reported.take().contains("2325=" + type));
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
    QVERIFY(gradient->m_pparerentdirectory == pool->GetObject(ENUM_PAGE_DisplayControl));
    gradient->hide();
}

void TestApplyDisplay::wrongPatternTypeChangesNothing()
{
    m_rig->process(PARA_TestPatternFamily, 1);
    m_rig->fromUser(MENU_Test_Type, "5");
    QCOMPARE(m_rig->value(PARA_TestPatternFamily), QString("1"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyDisplay::patternChoosesItsFamily_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<QString>("family");
    QTest::newRow("pure colour") << int(MENU_Test_PureColor) << "0";
    QTest::newRow("gradient") << int(MENU_Test_Gradient) << "1";
    QTest::newRow("grid") << int(MENU_Test_Grid) << "2";
}

void TestApplyDisplay::patternChoosesItsFamily()
{
    QFETCH(int, pattern);
    m_rig->process(PARA_TestPatternFamily, 4);
    m_rig->fromUser(ENUM_MenuIndex(pattern), "1");
    QTEST(m_rig->value(PARA_TestPatternFamily), "family");
    const QString line = QString("%1=1").arg(pattern);
    QCOMPARE(m_rig->device->sent.take(), QStringList{line});
    m_rig->process(PARA_TestPatternFamily, 4);
    m_rig->fromDevice(ENUM_MenuIndex(pattern), "1");
    QTEST(m_rig->value(PARA_TestPatternFamily), "family");
    QVERIFY(m_rig->reported.take().contains(line));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyDisplay::lowestLayer_data()
{
    QTest::addColumn<QString>("on");         ///< status of the three layers
    QTest::addColumn<QStringList>("places"); ///< their priorities
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<bool>("lit");
    QTest::newRow("main alone, full screen") << "100" << QStringList{"0", "1", "2"} << "022" << 0 << true;
    QTest::newRow("main alone, custom") << "100" << QStringList{"0", "1", "2"} << "202" << 0 << false;
    QTest::newRow("PIP 2 below") << "111" << QStringList{"2", "1", "0"} << "220" << 2 << true;
    QTest::newRow("the lowest is off") << "110" << QStringList{"2", "1", "0"} << "200" << 1 << true;
    QTest::newRow("equal: the earlier") << "011" << QStringList{"0", "1", "1"} << "220" << 1 << false;
    QTest::newRow("main without a place") << "110" << QStringList{"255", "1", "2"} << "020" << 1 << false;
    QTest::newRow("main without a place alone")
        << "100" << QStringList{"255", "1", "2"} << "000" << 255 << false;
    QTest::newRow("none") << "000" << QStringList{"0", "1", "2"} << "000" << 255 << false;
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

QTEST_MAIN(TestApplyDisplay)
#include "tst_applydisplay.moc"
