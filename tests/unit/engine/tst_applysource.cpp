// What a layer shows: its source, and what follows from the signal of the source.

#include "layerrig.h"

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
    void mosaicTakesEverything_data();
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
    QTest::addColumn<int>("layer");
    QTest::addColumn<bool>("user");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("signal");
    for (int layer = 0; layer < 3; ++layer)
        for (bool user : {true, false}) {
            auto row = [=](const char *source, const char *name, const char *signal) {
                QTest::addRow("layer %d, %s, %s", layer, user ? "user" : "device", name)
                    << layer << user << source << name << signal;
            };
            row("1", "HDMI2", "1920x1080@59.94");
            row("2", "DVI", "No Signal");
            row("3", "SDI", "3840x2160@60");
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

void TestApplySource::mosaicTakesEverything_data()
{
    QTest::addColumn<bool>("user");
    QTest::newRow("user") << true;
    QTest::newRow("device") << false;
}

void TestApplySource::mosaicTakesEverything()
{
    QFETCH(bool, user);
    m_rig->setRows(MENU_Layout, true);
    m_rig->setTransition(true);
    m_rig->put(user, MENU_MainLayer_InputSource, LayerRig::mosaicRow);
    QCOMPARE(m_rig->rows(MENU_Layout), QString("nn"));
    QCOMPARE(m_rig->transition(), QString("n"));
    QCOMPARE(m_rig->layerName(0), QString("MOSAIC"));
    QStringList sent{"1019=1"};
    if (user)
        sent << "2101=7";
    QCOMPARE(m_rig->device->sent.take(), sent);
}

void TestApplySource::plainSourceGivesBack_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("transition");
    QTest::newRow("main layer alone") << int(MENU_OSDState) << "y";
    QTest::newRow("PIP 1 on") << int(MENU_PIP1_Status) << "n";
    QTest::newRow("PIP 2 on") << int(MENU_PIP2_Status) << "n";
    QTest::newRow("3D on") << int(MENU_Mode3D_Status) << "n";
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
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2101=0"});
}

void TestApplySource::outputOfASendingCardFollows_data()
{
    QTest::addColumn<QString>("sync");
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("resolution");
    QTest::newRow("the input") << "0"
                               << "1" << 5994 << "1920x1080@59.94";
    QTest::newRow("an input that tells no rate") << "0"
                                                 << "2" << 6000 << "1920x1080@60";
    QTest::newRow("the reference") << "1"
                                   << "1" << 5000 << "1920x1080@50";
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
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(2101, source)});
}

void TestApplySource::sendingCardShowsNoPip()
{
    m_rig->fromUser(MENU_PIP2_InputSource, "0");
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromUser(MENU_PIP2_InputSource, "1");
    QCOMPARE(m_rig->layerName(2), QString("HDMI1"));
    QCOMPARE(m_rig->layerSignal(2), QString("1280x720@50"));
}

QTEST_MAIN(TestApplySource)
#include "tst_applysource.moc"
