// What a layer shows: its source, and what follows from the signal of the source.

#include "layerrig.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplySource : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new LayerRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->start(); }

    void sourceIsShownAndSent_data();
    void sourceIsShownAndSent();
    void interlacedSourceIsTold();
    void mosaicTakesEverything();
    void plainSourceGivesBack_data();
    void plainSourceGivesBack();
    void outputOfASendingCardFollows_data();
    void outputOfASendingCardFollows();
    void sendingCardShowsNoPip();

private:
    LayerRig *m_rig = nullptr;
};

void TestApplySource::sourceIsShownAndSent_data()
{
    addColumns<int, bool, QString, QString, QString>({"layer", "user", "source", "name", "signal"});
    for (int layer = 0; layer < 3; ++layer)
        for (bool user : {true, false}) {
            const QString who = QString("layer %1, %2, ").arg(layer).arg(user ? "user" : "device");
            addRow(who + "HDMI2", layer, user, "1", "HDMI2", "1920x1080@59.94");
            addRow(who + "DVI", layer, user, "2", "DVI", "No Signal");
        }
}

void TestApplySource::sourceIsShownAndSent()
{
    QFETCH(int, layer);
    QFETCH(bool, user);
    QFETCH(QString, source);
    QFETCH(QString, signal);
    const ENUM_MenuIndex item = LayerRig::of(MENU_MainLayer_InputSource, layer);
    const ENUM_MenuIndex cropPage = LayerRig::of(MENU_MainLayer_InputCrop, layer);
    const bool stable = signal != "No Signal";
    m_rig->store->UpdataItemEnable(cropPage, !stable);
    m_rig->put(user, item, source);
    QTEST(m_rig->layerName(layer), "name");
    QCOMPARE(m_rig->layerSignal(layer), signal);
    QCOMPARE(m_rig->enabled(cropPage), stable);
    QVERIFY(m_rig->reloaded.take().contains(LayerRig::line(cropPage, "")));
    const QStringList told{LayerRig::line(item, source)};
    QCOMPARE(m_rig->device->sent.take(), user ? told : QStringList());
    QCOMPARE(m_rig->reported.take(), user ? QStringList() : told);
}

void TestApplySource::interlacedSourceIsTold()
{
    m_rig->process(ENUM_MenuIndex(PARA_InputRecordFirst + STRIDE_InputRecord + 1), 1);
    m_rig->fromUser(MENU_PIP1_InputSource, "1");
    QCOMPARE(m_rig->layerSignal(1), QString("1920x1080i@59.94"));
}

void TestApplySource::mosaicTakesEverything()
{
    for (const bool user : {true, false}) {
        m_rig->start();
        m_rig->setRows(MENU_Layout, true);
        m_rig->setTransition(true);
        m_rig->put(user, MENU_MainLayer_InputSource, LayerRig::mosaicRow);
        QCOMPARE(m_rig->rows(MENU_Layout), QString("nn"));
        QCOMPARE(m_rig->transition(), QString("n"));
        QCOMPARE(m_rig->layerName(0), QString("MOSAIC"));
        QCOMPARE(m_rig->device->sent.take().join(' '),
                 QString(user ? "MainLayerTransition=1 MainLayer_InputSource=7" : "MainLayerTransition=1"));
    }
}

void TestApplySource::plainSourceGivesBack_data()
{
    addColumns<int, QString>({"item", "transition"});
    addRow("main layer alone", MENU_OSDState, "y");
    addRow("PIP 1 on", MENU_PIP1_Status, "n");
    addRow("PIP 2 on", MENU_PIP2_Status, "n");
    addRow("3D on", MENU_Mode3D_Status, "n");
}

void TestApplySource::plainSourceGivesBack()
{
    QFETCH(int, item);
    m_rig->fromUser(MENU_MainLayer_InputSource, LayerRig::mosaicRow);
    m_rig->set(ENUM_MenuIndex(item), "1");
    m_rig->forget();
    m_rig->fromUser(MENU_MainLayer_InputSource, "0");
    QCOMPARE(m_rig->rows(MENU_Layout), QString("yy"));
    QTEST(m_rig->transition(), "transition");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"MainLayer_InputSource=0"});
}

void TestApplySource::outputOfASendingCardFollows_data()
{
    addColumns<QString, QString, int, QString>({"sync", "source", "rate", "resolution"});
    addRow("the input", "0", "1", 5994, "1920x1080@59.94");
    addRow("an input that tells no rate", "0", "2", 6000, "1920x1080@60");
    addRow("the reference", "1", "1", 5000, "1920x1080@50");
}

void TestApplySource::outputOfASendingCardFollows()
{
    QFETCH(QString, sync);
    QFETCH(QString, source);
    m_rig->set(MENU_WorkMode, "2");
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->store->UpdataItemEnable(MENU_MainLayer_InputCrop, false);
    m_rig->fromUser(MENU_MainLayer_InputSource, source);
    QTEST(m_rig->value(PARA_OutputRate).toInt(), "rate");
    QTEST(m_rig->shown("labScreenRes"), "resolution");
    QVERIFY(!m_rig->enabled(MENU_MainLayer_InputCrop)); // a sending card does not crop
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(MENU_MainLayer_InputSource, source)});
}

void TestApplySource::sendingCardShowsNoPip()
{
    m_rig->fromUser(MENU_PIP2_InputSource, "0");
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromUser(MENU_PIP2_InputSource, "1");
    QCOMPARE(m_rig->layerName(2), QString("HDMI1"));
    QCOMPARE(m_rig->layerSignal(2), QString("1280x720@50"));
}

FPD_TEST(TestApplySource)

#include "tst_applysource.moc"
