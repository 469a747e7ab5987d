// Which layers are on, in which order they stand, and the fixed layouts.

#include "framework/keyevent.h"
#include "layerrig.h"
#include "ledpanel.h"

using namespace VASK;

class TestApplyLayers : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void init() { m_rig->start(); }

    void mainStatus_data();
    void mainStatus();
    void pipOnTakesTheMosaicAway_data();
    void pipOnTakesTheMosaicAway();
    void pipIsRefusedUnderTheMosaic_data();
    void pipIsRefusedUnderTheMosaic();
    void pipOffGivesBack_data();
    void pipOffGivesBack();
    void scaleLightFollowsTheLowestLayer();
    void priorityMovesTheOthers_data();
    void priorityMovesTheOthers();
    void priorityThatMovesNothing();
    void fixedLayout_data();
    void fixedLayout();
    void layoutThatMovesNothing();

private:
    static void eachPip();
    LayerRig *m_rig = nullptr;
    LedPanel *m_leds = nullptr;
};

void TestApplyLayers::initTestCase()
{
    m_rig = new LayerRig;
    m_leds = new LedPanel(m_rig->statePath("").toStdString());
    KeyEvent::getInstance()->InitKeyDriver(qApp);
}

void TestApplyLayers::cleanupTestCase()
{
    delete m_leds;
    delete m_rig;
}

void TestApplyLayers::eachPip()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<bool>("user");
    QTest::newRow("PIP 1, user") << 1 << true;
    QTest::newRow("PIP 1, device") << 1 << false;
    QTest::newRow("PIP 2, user") << 2 << true;
    QTest::newRow("PIP 2, device") << 2 << false;
}

void TestApplyLayers::mainStatus_data()
{
    QTest::addColumn<bool>("user");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("lowest");
    QTest::newRow("user off") << true << "0" << 255;
    QTest::newRow("user on") << true << "1" << 0;
    QTest::newRow("device off") << false << "0" << 255;
    QTest::newRow("device on") << false << "1" << 0;
}

void TestApplyLayers::mainStatus()
{
    QFETCH(bool, user);
    QFETCH(QString, value);
    m_rig->fromUser(MENU_MainLayer_Status, value == "0" ? "1" : "0");
    m_rig->set(MENU_Layout, "0");
    m_rig->forget();
    m_rig->put(user, MENU_MainLayer_Status, value);
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    QCOMPARE(m_rig->layerShown(0), value == "1");
    QTEST(m_rig->value(PARA_LowestLayer).toInt(), "lowest");
    const QStringList told{LayerRig::line(2100, value)};
    QCOMPARE(m_rig->device->sent.take(), user ? told : QStringList());
    QCOMPARE(m_rig->reported.take(), user ? QStringList() : told);
}

void TestApplyLayers::pipOnTakesTheMosaicAway_data()
{
    eachPip();
}

void TestApplyLayers::pipOnTakesTheMosaicAway()
{
    QFETCH(int, layer);
    QFETCH(bool, user);
    const ENUM_MenuIndex status = LayerRig::of(MENU_MainLayer_Status, layer);
    m_rig->set(LayerRig::of(MENU_MainLayer_InputSource, layer), "2");
    m_rig->setTransition(true);
    m_rig->set(MENU_Layout, "1");
    m_rig->fromUser(status, "0");
    m_rig->set(MENU_Layout, "1");
    m_rig->forget();
    m_rig->put(user, status, "1");

    QVERIFY(!m_rig->mosaicOffered());
    QCOMPARE(m_rig->transition(), QString("n"));
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    QVERIFY(m_rig->layerShown(layer));
    QCOMPARE(m_rig->layerSignal(layer), QString("No Signal"));
    QStringList sent{"1019=1"};
    if (user)
        sent << LayerRig::line(status, "1");
    QCOMPARE(m_rig->device->sent.take(), sent);
    QCOMPARE(m_rig->reported.take(), user ? QStringList() : QStringList{LayerRig::line(status, "1")});
    QVERIFY(m_rig->reloaded.take().contains("2101="));
}

void TestApplyLayers::pipIsRefusedUnderTheMosaic_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<bool>("user");
    QTest::addColumn<bool>("started");
    for (int layer : {1, 2})
        for (bool user : {true, false})
            for (bool started : {true, false})
                QTest::addRow("PIP %d%s%s", layer, user ? ", user" : "", started ? ", started" : "")
                    << layer << user << started;
}

void TestApplyLayers::pipIsRefusedUnderTheMosaic()
{
    QFETCH(int, layer);
    QFETCH(bool, user);
    QFETCH(bool, started);
    const ENUM_MenuIndex status = LayerRig::of(MENU_MainLayer_Status, layer);
    m_rig->fromUser(status, "0");
    m_rig->set(MENU_MainLayer_InputSource, LayerRig::mosaicRow);
    m_rig->forget();
    ParaProcess::init_20m_flg = started;
    m_rig->put(user, status, "1");
    QTRY_COMPARE(m_rig->messages.size(), 1);
    QVERIFY2(m_rig->messages.first().contains("mosaic", Qt::CaseInsensitive),
             qPrintable(m_rig->messages.first()));
    QCOMPARE(m_rig->value(status), QString("0"));
    QVERIFY(!m_rig->layerShown(layer));
    QVERIFY(m_rig->mosaicOffered());
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList());
    QCOMPARE(m_rig->reloaded.take(), QStringList{LayerRig::line(status, "")});
}

void TestApplyLayers::pipOffGivesBack_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("held");
    QTest::addColumn<bool>("mosaic");
    QTest::addColumn<QString>("transition");
    for (int layer : {1, 2}) {
        auto row = [layer](const char *name, ENUM_MenuIndex item, const QString &held, bool mosaic,
                           const char *transition) {
            QTest::addRow("PIP %d: %s", layer, name) << layer << int(item) << held << mosaic << transition;
        };
        row("alone", MENU_Mode3D_Status, "0", true, "y");
        row("the other on", LayerRig::of(MENU_MainLayer_Status, 3 - layer), "1", false, "n");
        row("3D on", MENU_Mode3D_Status, "1", true, "n");
        row("mosaic shown", MENU_MainLayer_InputSource, LayerRig::mosaicRow, true, "n");
        row("sending card", MENU_WorkMode, "2", false, "n");
    }
}

void TestApplyLayers::pipOffGivesBack()
{
    QFETCH(int, layer);
    QFETCH(int, item);
    QFETCH(QString, held);
    const ENUM_MenuIndex status = LayerRig::of(MENU_MainLayer_Status, layer);
    m_rig->fromUser(status, "1");
    m_rig->set(ENUM_MenuIndex(item), held);
    m_rig->forget();
    m_rig->fromUser(status, "0");
    QTEST(m_rig->mosaicOffered(), "mosaic");
    QTEST(m_rig->transition(), "transition");
    QVERIFY(!m_rig->layerShown(layer));
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(status, "0")});
}

void TestApplyLayers::scaleLightFollowsTheLowestLayer()
{
    m_rig->set(MENU_PIP1_ScalingMode, "0");
    m_rig->fromUser(MENU_MainLayer_Status, "1");
    QVERIFY(!m_leds->lit(LED_SCALE));
    m_rig->fromUser(MENU_PIP1_Status, "1");
    m_rig->fromUser(MENU_MainLayer_Status, "0");
    QVERIFY(m_leds->lit(LED_SCALE));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("1"));
    m_rig->fromUser(MENU_PIP1_Status, "0");
    QVERIFY(!m_leds->lit(LED_SCALE));
}

void TestApplyLayers::priorityMovesTheOthers_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("after");
    QTest::newRow("main to the top") << 0 << "012"
                                     << "2"
                                     << "201";
    QTest::newRow("main by one") << 0 << "012"
                                 << "1"
                                 << "102";
    QTest::newRow("PIP 1 up") << 1 << "012"
                              << "2"
                              << "021";
    QTest::newRow("PIP 1 down") << 1 << "012"
                                << "0"
                                << "102";
    QTest::newRow("PIP 2 to the bottom") << 2 << "012"
                                         << "0"
                                         << "120";
    QTest::newRow("PIP 2 from the bottom") << 2 << "210"
                                           << "1"
                                           << "201";
}

void TestApplyLayers::priorityMovesTheOthers()
{
    QFETCH(int, layer);
    QFETCH(QString, before);
    QFETCH(QString, place);
    QFETCH(QString, after);
    QStringList sent;
    for (int i = 0; i < 3; ++i) {
        m_rig->set(LayerRig::of(MENU_MainLayer_Status, i), "1");
        m_rig->set(LayerRig::of(MENU_MainLayer_Priority, i), before.mid(i, 1));
        if (i != layer)
            sent << LayerRig::line(LayerRig::of(MENU_MainLayer_Priority, i), after.mid(i, 1));
    }
    sent << LayerRig::line(LayerRig::of(MENU_MainLayer_Priority, layer), place);
    m_rig->fromUser(LayerRig::of(MENU_MainLayer_Priority, layer), place);
    QString found;
    for (int i = 0; i < 3; ++i)
        found += m_rig->value(LayerRig::of(MENU_MainLayer_Priority, i));
    QCOMPARE(found, after);
    QCOMPARE(m_rig->device->sent.take(), sent);
    QCOMPARE(m_rig->value(PARA_LowestLayer).toInt(), int(after.indexOf('0')));
}

void TestApplyLayers::priorityThatMovesNothing()
{
    for (int layer = 0; layer < 3; ++layer)
        m_rig->set(LayerRig::of(MENU_MainLayer_Priority, layer), QString::number(layer));
    m_rig->fromUser(MENU_PIP1_Priority, "1");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2117=1"});
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_MainLayer_Priority, "2");
    m_rig->fromDevice(MENU_PIP1_Priority, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{"2117=0"});
    QCOMPARE(m_rig->value(MENU_PIP2_Priority), QString("2"));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("1"));
}

void TestApplyLayers::fixedLayout_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("geometry");
    QTest::newRow("1:1:1") << "0" << 1921 << QStringList{"641 1080 640 0", "640 1080 0 0", "640 1080 1281 0"};
    QTest::newRow("1:2:1") << "1" << 1922 << QStringList{"962 1080 480 0", "480 1080 0 0", "480 1080 1442 0"};
}

void TestApplyLayers::fixedLayout()
{
    QFETCH(QString, layout);
    QFETCH(int, width);
    m_rig->process(PARA_OutputWidth, width);
    m_rig->setTransition(true);
    m_rig->fromUser(MENU_MainLayer_Status, "1");
    m_rig->forget();
    for (int layer = 0; layer < 3; ++layer) {
        m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), QString::number(layer));
        m_rig->setDialled(layer, false);
    }
    m_rig->fromUser(MENU_Layout, layout);
    QStringList found;
    for (int layer = 0; layer < 3; ++layer) {
        found << m_rig->geometry(layer);
        QCOMPARE(m_rig->dialled(layer), QString("yyyy"));
        QCOMPARE(m_rig->value(LayerRig::of(MENU_MainLayer_ScalingMode, layer)), QString("2"));
        QVERIFY(m_rig->layerShown(layer));
    }
    QTEST(found, "geometry");
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{"2106=0", "2116=0", "2110=1", "2126=0", "2120=1", "1019=1"}));
    QVERIFY(!m_rig->mosaicOffered());
    QCOMPARE(m_rig->transition(), QString("n"));
    QCOMPARE(m_rig->value(MENU_Layout), layout);

    // The device's answers leave it as it is.
    for (ENUM_MenuIndex status : {MENU_MainLayer_Status, MENU_PIP1_Status, MENU_PIP2_Status})
        m_rig->fromDevice(status, "1");
    QCOMPARE(m_rig->value(MENU_Layout), layout);
}

void TestApplyLayers::layoutThatMovesNothing()
{
    const QString before = m_rig->geometry(0);
    m_rig->fromUser(MENU_Layout, "2");
    m_rig->fromDevice(MENU_Layout, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->geometry(0), before);
}

QTEST_MAIN(TestApplyLayers)
#include "tst_applylayers.moc"
