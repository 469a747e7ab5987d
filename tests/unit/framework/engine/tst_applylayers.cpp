// Which layers are on, in which order they stand, and the fixed layouts.

#include "framework/input/keyevent.h"
#include "layerrig.h"
#include "ledpanel.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyLayers : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase()
    {
        delete m_leds;
        delete m_rig;
    }
    void init() { m_rig->start(); }

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

void TestApplyLayers::eachPip()
{
    addColumns<int, bool>({"layer", "user"});
    for (int layer : {1, 2})
        for (bool user : {true, false})
            addRow(QString("PIP %1, %2").arg(layer).arg(user ? "user" : "device"), layer, user);
}

void TestApplyLayers::mainStatus()
{
    for (const bool user : {true, false})
        for (const QString value : {"0", "1"}) {
            m_rig->fromUser(MENU_MainLayer_Status, value == "0" ? "1" : "0");
            m_rig->set(MENU_Layout, "0");
            m_rig->forget();
            m_rig->put(user, MENU_MainLayer_Status, value);
            QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
            QCOMPARE(m_rig->layerShown(0), value == "1");
            QCOMPARE(m_rig->value(PARA_LowestLayer).toInt(), value == "1" ? 0 : 255);
            const QStringList told{LayerRig::line(MENU_MainLayer_Status, value)};
            QCOMPARE(m_rig->device->sent.take(), user ? told : QStringList());
            QCOMPARE(m_rig->reported.take(), user ? QStringList() : told);
        }
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
    QStringList sent{"MainLayerTransition=1"};
    if (user)
        sent << LayerRig::line(status, "1");
    QCOMPARE(m_rig->device->sent.take(), sent);
    QCOMPARE(m_rig->reported.take(), user ? QStringList() : QStringList{LayerRig::line(status, "1")});
    QVERIFY(m_rig->reloaded.take().contains("MainLayer_InputSource="));
}

void TestApplyLayers::pipIsRefusedUnderTheMosaic_data()
{
    eachPip();
}

/// Once the device has told its state, and before.
void TestApplyLayers::pipIsRefusedUnderTheMosaic()
{
    QFETCH(int, layer);
    QFETCH(bool, user);
    const ENUM_MenuIndex status = LayerRig::of(MENU_MainLayer_Status, layer);
    m_rig->fromUser(status, "0");
    m_rig->set(MENU_MainLayer_InputSource, LayerRig::mosaicRow);
    for (const bool started : {true, false}) {
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
}

void TestApplyLayers::pipOffGivesBack_data()
{
    addColumns<int, int, QString, bool, QString>({"layer", "item", "held", "mosaic", "transition"});
    for (int layer : {1, 2}) {
        const QString name = QString("PIP %1: ").arg(layer);
        const ENUM_MenuIndex other = LayerRig::of(MENU_MainLayer_Status, 3 - layer);
        addRow(name + "alone", layer, MENU_Mode3D_Status, "0", true, "y");
        addRow(name + "the other on", layer, other, "1", false, "n");
        addRow(name + "3D on", layer, MENU_Mode3D_Status, "1", true, "n");
        addRow(name + "mosaic shown", layer, MENU_MainLayer_InputSource, LayerRig::mosaicRow, true, "n");
        addRow(name + "sending card", layer, MENU_WorkMode, "2", false, "n");
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
    addColumns<int, QString, QString, QString>({"layer", "before", "place", "after"});
    addRow("main to the top", 0, "012", "2", "201");
    addRow("PIP 1 down", 1, "012", "0", "102");
    addRow("PIP 2 to the bottom", 2, "012", "0", "120");
    addRow("PIP 2 from the bottom", 2, "210", "1", "201");
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
    QCOMPARE(m_rig->device->sent.take(), QStringList{"PIP1_Priority=1"});
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_MainLayer_Priority, "2");
    m_rig->fromDevice(MENU_PIP1_Priority, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{"PIP1_Priority=0"});
    QCOMPARE(m_rig->value(MENU_PIP2_Priority), QString("2"));
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("1"));
}

void TestApplyLayers::fixedLayout_data()
{
    addColumns<QString, int, QString>({"layout", "width", "geometry"});
    addRow("1:1:1", "0", 1921, "641 1080 640 0, 640 1080 0 0, 640 1080 1281 0");
    addRow("1:2:1", "1", 1922, "962 1080 480 0, 480 1080 0 0, 480 1080 1442 0");
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
    QTEST(found.join(", "), "geometry");
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{"MainLayer_InitialY=0", "PIP1_InitialY=0", "PIP1_Status=1", "PIP2_InitialY=0",
                          "PIP2_Status=1", "MainLayerTransition=1"}));
    QVERIFY(!m_rig->mosaicOffered());
    QCOMPARE(m_rig->transition(), QString("n"));
    QCOMPARE(m_rig->value(MENU_Layout), layout);

    // Whatever becomes of a layer then, also as the device tells it, no layout holds any more.
    m_rig->fromDevice(MENU_PIP2_Status, "1");
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
}

void TestApplyLayers::layoutThatMovesNothing()
{
    const QString before = m_rig->geometry(0);
    m_rig->fromUser(MENU_Layout, "2");
    m_rig->fromDevice(MENU_Layout, "0");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->geometry(0), before);
}

FPD_TEST(TestApplyLayers)

#include "tst_applylayers.moc"
