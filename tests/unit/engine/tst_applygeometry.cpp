// How a layer is scaled, where it stands, and which part of its input it shows.

#include "layerrig.h"

using namespace VASK;

class TestApplyGeometry : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new LayerRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->start(); }

    void pixelForPixel_data();
    void pixelForPixel();
    void pixelForPixelWithoutASize();
    void fullScreen_data() { eachLayer(); }
    void fullScreen();
    void customReturns_data() { eachLayer(); }
    void customReturns();
    void sameScalingMovesNothing();
    void reportedScalingFreesTheItems_data() { eachLayer(); }
    void reportedScalingFreesTheItems();
    void dialledGeometry_data();
    void dialledGeometry();
    void deviceMovesALayer_data();
    void deviceMovesALayer();
    void echoMovesNothing_data() { eachLayer(); }
    void echoMovesNothing();
    void reportedWindowIsRememberedWhole_data() { eachLayer(); }
    void reportedWindowIsRememberedWhole();
    void splicedTotalsFollow();
    void sendingCardHasItsOwnRegister();

    void cropMovesThePixelLayer_data() { eachLayer(); }
    void cropMovesThePixelLayer();
    void cropLeavesAScaledLayer_data() { eachLayer(); }
    void cropLeavesAScaledLayer();
    void reportedCropCountsWithItsLastNumber_data() { eachLayer(); }
    void reportedCropCountsWithItsLastNumber();
    void cropReset_data();
    void cropReset();
    void pipIsOfferedWhatItCanScale_data();
    void pipIsOfferedWhatItCanScale();

private:
    static void eachLayer();
    LayerRig *m_rig = nullptr;
};

void TestApplyGeometry::eachLayer()
{
    QTest::addColumn<int>("layer");
    QTest::newRow("main") << 0;
    QTest::newRow("PIP 1") << 1;
    QTest::newRow("PIP 2") << 2;
}

void TestApplyGeometry::pixelForPixel_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<bool>("cropped");
    for (int layer = 0; layer < 3; ++layer)
        for (bool cropped : {false, true})
            QTest::addRow("layer %d%s", layer, cropped ? ", cropped" : "") << layer << cropped;
}

void TestApplyGeometry::pixelForPixel()
{
    QFETCH(int, layer);
    QFETCH(bool, cropped);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    m_rig->set(LayerRig::crop(MENU_MainLayerCrop_Status, layer), cropped ? "1" : "0");
    m_rig->set(LayerRig::crop(MENU_MainLayerCrop_HorWidth, layer), "400");
    m_rig->set(LayerRig::crop(MENU_MainLayerCrop_VerHeight, layer), "300");
    m_rig->setGeometry(layer, {"800", "600", "11", "12"});
    m_rig->setDialled(layer, true);
    m_rig->store->UpdataItemEnable(LayerRig::of(MENU_MainLayer_InitialX, layer), false);
    m_rig->set(MENU_Layout, "0");
    m_rig->fromUser(scaling, "1");
    QCOMPARE(m_rig->geometry(layer), QString(cropped ? "400 300 11 12" : "1280 720 11 12"));
    QCOMPARE(m_rig->dialled(layer), QString("nnyy"));
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    const ENUM_MenuIndex height = LayerRig::of(MENU_MainLayer_VerHeight, layer);
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(height, cropped ? "300" : "720"), LayerRig::line(scaling, "1")}));
}

void TestApplyGeometry::pixelForPixelWithoutASize()
{
    m_rig->set(MENU_PIP1_InputSource, "2");
    m_rig->set(MENU_PIP1_ScalingMode, "1");
    m_rig->set(MENU_Layout, "0");
    m_rig->fromUser(MENU_PIP1_ScalingMode, "1");
    QVERIFY(m_rig->geometry(1).startsWith("1920 1080 "));
    QCOMPARE(m_rig->value(MENU_Layout), QString("0"));
}

void TestApplyGeometry::fullScreen()
{
    QFETCH(int, layer);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    m_rig->setDialled(layer, true);
    const QString remembered = m_rig->remembered(layer);
    m_rig->set(LayerRig::of(MENU_MainLayer_Status, layer), "1");
    m_rig->set(LayerRig::of(MENU_MainLayer_Priority, layer), "0");
    m_rig->process(PARA_LowestLayer, 9);
    m_rig->fromUser(scaling, "0");
    QCOMPARE(m_rig->geometry(layer), QString("1920 1080 0 0"));
    QCOMPARE(m_rig->remembered(layer), remembered);
    QCOMPARE(m_rig->dialled(layer), QString("nnnn"));
    QVERIFY(m_rig->value(PARA_LowestLayer) != "9");
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(LayerRig::of(MENU_MainLayer_InitialY, layer), "0"),
                          LayerRig::line(scaling, "0")}));
}

void TestApplyGeometry::customReturns()
{
    QFETCH(int, layer);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    const QStringList values{"700", "500", "-30", "40"};
    for (int field = 0; field < 4; ++field)
        m_rig->set(ENUM_MenuIndex(LayerRig::memory(MENU_MainLayer_CustomWidth, layer) + field),
                   values[field]);
    m_rig->fromUser(scaling, "0");
    m_rig->forget();
    m_rig->fromUser(scaling, "2");
    QCOMPARE(m_rig->geometry(layer), values.join(' '));
    QCOMPARE(m_rig->dialled(layer), QString("yyyy"));
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(LayerRig::of(MENU_MainLayer_InitialY, layer), "40"),
                          LayerRig::line(scaling, "2")}));

    // A sending card has no size of its own to give.
    m_rig->fromUser(scaling, "0");
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromUser(scaling, "2");
    QCOMPARE(m_rig->geometry(layer), QString("1920 1080 -30 40"));
    QCOMPARE(m_rig->dialled(layer), QString("nnyy"));
}

void TestApplyGeometry::sameScalingMovesNothing()
{
    m_rig->setGeometry(0, {"900", "700", "1", "2"});
    m_rig->fromUser(MENU_MainLayer_ScalingMode, "2");
    QCOMPARE(m_rig->geometry(0), QString("900 700 1 2"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{"2102=2"});
}

void TestApplyGeometry::reportedScalingFreesTheItems()
{
    QFETCH(int, layer);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    const QString before = m_rig->geometry(layer);
    m_rig->setDialled(layer, false);
    m_rig->fromDevice(scaling, "2");
    QCOMPARE(m_rig->dialled(layer), QString("yyyy"));
    QCOMPARE(m_rig->geometry(layer), before);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{LayerRig::line(scaling, "2")});
    m_rig->setDialled(layer, false);
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromDevice(scaling, "2");
    QCOMPARE(m_rig->dialled(layer), QString("nnyy"));
}

void TestApplyGeometry::dialledGeometry_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("scaling");
    for (int layer = 0; layer < 3; ++layer)
        for (int field = 0; field < 4; ++field)
            for (const char *scaling : {"1", "2"})
                QTest::addRow("layer %d, field %d, scaling %s", layer, field, scaling)
                    << layer << field << scaling;
}

void TestApplyGeometry::dialledGeometry()
{
    QFETCH(int, layer);
    QFETCH(int, field);
    QFETCH(QString, scaling);
    const ENUM_MenuIndex item = ENUM_MenuIndex(LayerRig::of(MENU_MainLayer_HorWidth, layer) + field);
    const ENUM_MenuIndex memory = ENUM_MenuIndex(LayerRig::memory(MENU_MainLayer_CustomWidth, layer) + field);
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), scaling);
    m_rig->set(memory, "111");
    m_rig->set(MENU_Layout, "1");
    m_rig->fromUser(item, "333");
    QCOMPARE(m_rig->value(memory), QString(scaling == "2" ? "333" : "111"));
    QCOMPARE(m_rig->value(LayerRig::of(MENU_MainLayer_ScalingMode, layer)), scaling);
    QCOMPARE(m_rig->value(MENU_Layout), QString("2"));
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(item, "333")});
}

void TestApplyGeometry::deviceMovesALayer_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<QString>("after");
    for (int layer = 0; layer < 3; ++layer)
        for (int field = 0; field < 4; ++field)
            for (const char *scaling : {"0", "1", "2"})
                // A start may be moved pixel for pixel; only a size leaves that.
                QTest::addRow("layer %d, field %d, scaling %s", layer, field, scaling)
                    << layer << field << scaling << (scaling[0] == '1' && field >= 2 ? "1" : "2");
}

void TestApplyGeometry::deviceMovesALayer()
{
    QFETCH(int, layer);
    QFETCH(int, field);
    QFETCH(QString, scaling);
    QFETCH(QString, after);
    const ENUM_MenuIndex item = ENUM_MenuIndex(LayerRig::of(MENU_MainLayer_HorWidth, layer) + field);
    const ENUM_MenuIndex memory = ENUM_MenuIndex(LayerRig::memory(MENU_MainLayer_CustomWidth, layer) + field);
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), scaling);
    m_rig->set(memory, "111");
    m_rig->setDialled(layer, false);
    m_rig->fromDevice(item, "640");
    QCOMPARE(m_rig->value(LayerRig::of(MENU_MainLayer_ScalingMode, layer)), after);
    QCOMPARE(m_rig->dialled(layer), QString(scaling == after ? "nnnn" : "yyyy"));
    QCOMPARE(m_rig->value(memory), QString(after == "2" ? "640" : "111"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(m_rig->reported.take(), QStringList{LayerRig::line(item, "640")});
}

/// The device answers what it is sent with the whole window.
void TestApplyGeometry::echoMovesNothing()
{
    QFETCH(int, layer);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    m_rig->fromUser(scaling, "0");
    m_rig->set(MENU_Layout, "1");
    m_rig->forget();
    for (int field = 0; field < 4; ++field) {
        const ENUM_MenuIndex item = ENUM_MenuIndex(LayerRig::of(MENU_MainLayer_HorWidth, layer) + field);
        m_rig->fromDevice(item, m_rig->value(item));
    }
    QCOMPARE(m_rig->value(scaling), QString("0"));
    QCOMPARE(m_rig->dialled(layer), QString("nnnn"));
    QCOMPARE(m_rig->value(MENU_Layout), QString("1"));
    QCOMPARE(m_rig->reported.take().size(), 4);
}

/// A window of which the device changes one number leaves full screen whole: the others were only repeated.
void TestApplyGeometry::reportedWindowIsRememberedWhole()
{
    QFETCH(int, layer);
    m_rig->setGeometry(layer, {"1920", "1080", "0", "0"});
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), "0");
    const QStringList told{"0", "0", "1920", "540"};
    for (int i = 0; i < 4; ++i) // start before size
        m_rig->fromDevice(ENUM_MenuIndex(LayerRig::of(MENU_MainLayer_HorWidth, layer) + (i + 2) % 4),
                          told[i]);
    QStringList remembered;
    for (int field = 0; field < 4; ++field)
        remembered << m_rig->value(
            ENUM_MenuIndex(LayerRig::memory(MENU_MainLayer_CustomWidth, layer) + field));
    QCOMPARE(remembered, (QStringList{"1920", "540", "0", "0"}));
}

void TestApplyGeometry::splicedTotalsFollow()
{
    m_rig->setGeometry(0, {"3000", "2000", "0", "0"});
    m_rig->fromUser(MENU_MainLayer_HorWidth, "3100");
    QVERIFY(m_rig->value(MENU_ImageMosaic_TotalHPixels) != "3100");
    m_rig->set(MENU_ImageMosaic_Status, "1");
    m_rig->fromUser(MENU_MainLayer_HorWidth, "3200");
    m_rig->fromDevice(MENU_MainLayer_VerHeight, "2100");
    m_rig->fromUser(MENU_PIP1_HorWidth, "900");
    QCOMPARE(m_rig->value(MENU_ImageMosaic_TotalHPixels), QString("3200"));
    QCOMPARE(m_rig->value(MENU_ImageMosaic_TotalVPixels), QString("2100"));
}

void TestApplyGeometry::sendingCardHasItsOwnRegister()
{
    m_rig->set(MENU_WorkMode, "2");
    m_rig->fromUser(MENU_MainLayer_InitialX, "5");
    m_rig->fromUser(MENU_MainLayer_InitialY, "6");
    m_rig->fromUser(MENU_MainLayer_HorWidth, "700");
    m_rig->fromUser(MENU_PIP1_InitialX, "7");
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{"3398=", "2105=5", "3399=", "2106=6", "2103=700", "2115=7"}));
}

void TestApplyGeometry::cropMovesThePixelLayer()
{
    QFETCH(int, layer);
    const int status = LayerRig::crop(MENU_MainLayerCrop_Status, layer);
    const ENUM_MenuIndex width = ENUM_MenuIndex(status + 1);
    const ENUM_MenuIndex height = ENUM_MenuIndex(status + 2);
    const int layerWidth = LayerRig::of(MENU_MainLayer_HorWidth, layer);
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), "1");
    m_rig->set(width, "400");
    m_rig->set(height, "300");

    m_rig->fromUser(ENUM_MenuIndex(status), "1");
    QVERIFY(m_rig->geometry(layer).startsWith("400 300 "));
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(layerWidth + 1, "300"), LayerRig::line(status, "1")}));
    m_rig->fromUser(width, "410");
    m_rig->fromUser(height, "310");
    QVERIFY(m_rig->geometry(layer).startsWith("410 310 "));
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(layerWidth, "410"), LayerRig::line(width, "410"),
                          LayerRig::line(layerWidth + 1, "310"), LayerRig::line(height, "310")}));
    m_rig->fromUser(ENUM_MenuIndex(status), "0");
    QVERIFY(m_rig->geometry(layer).startsWith("1280 720 "));
    m_rig->forget();
    m_rig->fromUser(width, "420");
    QVERIFY(m_rig->geometry(layer).startsWith("1280 720 "));
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(width, "420")});
}

void TestApplyGeometry::cropLeavesAScaledLayer()
{
    QFETCH(int, layer);
    const int status = LayerRig::crop(MENU_MainLayerCrop_Status, layer);
    const QString before = m_rig->geometry(layer);
    m_rig->fromUser(ENUM_MenuIndex(status), "1");
    m_rig->fromUser(ENUM_MenuIndex(status + 1), "400");
    m_rig->fromUser(ENUM_MenuIndex(status + 3), "5");
    m_rig->fromUser(ENUM_MenuIndex(status + 4), "6");
    QCOMPARE(m_rig->geometry(layer), before);
    QCOMPARE(m_rig->device->sent.take(),
             (QStringList{LayerRig::line(status, "1"), LayerRig::line(status + 1, "400"),
                          LayerRig::line(status + 3, "5"), LayerRig::line(status + 4, "6")}));
}

void TestApplyGeometry::reportedCropCountsWithItsLastNumber()
{
    QFETCH(int, layer);
    const int status = LayerRig::crop(MENU_MainLayerCrop_Status, layer);
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), "1");
    m_rig->set(ENUM_MenuIndex(status), "1");
    const QString before = m_rig->geometry(layer);
    m_rig->fromDevice(ENUM_MenuIndex(status + 1), "500");
    m_rig->fromDevice(ENUM_MenuIndex(status + 2), "400");
    m_rig->fromDevice(ENUM_MenuIndex(status + 3), "0");
    QCOMPARE(m_rig->geometry(layer), before);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    m_rig->fromDevice(ENUM_MenuIndex(status + 4), "0");
    QVERIFY(m_rig->geometry(layer).startsWith("500 400 "));
    const int height = LayerRig::of(MENU_MainLayer_VerHeight, layer);
    QCOMPARE(m_rig->device->sent.take(), QStringList{LayerRig::line(height, "400")});
    QCOMPARE(m_rig->reported.take().size(), 4);
}

void TestApplyGeometry::cropReset_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<QString>("scaling");
    for (int layer = 0; layer < 3; ++layer)
        for (const char *scaling : {"1", "2"})
            QTest::addRow("layer %d, scaling %s", layer, scaling) << layer << scaling;
}

void TestApplyGeometry::cropReset()
{
    QFETCH(int, layer);
    QFETCH(QString, scaling);
    const int status = LayerRig::crop(MENU_MainLayerCrop_Status, layer);
    const int height = LayerRig::of(MENU_MainLayer_VerHeight, layer);
    m_rig->set(LayerRig::of(MENU_MainLayer_ScalingMode, layer), scaling);
    m_rig->set(ENUM_MenuIndex(status), "1");
    m_rig->set(ENUM_MenuIndex(status + 3), "30");
    m_rig->set(ENUM_MenuIndex(status + 4), "40");
    m_rig->fromUser(ENUM_MenuIndex(status + 5), "0");
    QStringList crop;
    for (int place = 1; place <= 4; ++place)
        crop << m_rig->value(ENUM_MenuIndex(status + place));
    QCOMPARE(crop, (QStringList{"1280", "720", "0", "0"}));
    QStringList sent{LayerRig::line(status + 2, "720")};
    if (scaling == "1")
        sent << LayerRig::line(height, "720");
    QCOMPARE(m_rig->device->sent.take(), sent);
    QCOMPARE(m_rig->geometry(layer).startsWith("1280 720 "), scaling == "1");
}

void TestApplyGeometry::pipIsOfferedWhatItCanScale_data()
{
    QTest::addColumn<int>("layer");
    QTest::addColumn<QString>("height");
    QTest::addColumn<bool>("splicing");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("offered");
    for (int layer : {1, 2}) {
        auto row = [layer](const char *name, const char *height, bool splicing, bool before, bool offered) {
            QTest::addRow("PIP %d: %s", layer, name) << layer << height << splicing << before << offered;
        };
        row("the last that fits", "1624", false, false, true);  // 2000 x 1624 = 3248000
        row("the first too large", "1625", false, true, false); // 3250000
        row("fits, but spliced", "1624", true, false, false);
    }
}

void TestApplyGeometry::pipIsOfferedWhatItCanScale()
{
    QFETCH(int, layer);
    QFETCH(QString, height);
    QFETCH(bool, splicing);
    QFETCH(bool, before);
    QFETCH(bool, offered);
    const int status = LayerRig::crop(MENU_MainLayerCrop_Status, layer);
    const ENUM_MenuIndex scaling = LayerRig::of(MENU_MainLayer_ScalingMode, layer);
    m_rig->set(MENU_ImageMosaic_Status, splicing ? "1" : "0");
    m_rig->set(ENUM_MenuIndex(status), "1");
    m_rig->set(ENUM_MenuIndex(status + 1), "2000");
    m_rig->set(ENUM_MenuIndex(status + 2), height);
    for (int place : {0, 2}) {
        m_rig->setRows(scaling, before);
        m_rig->fromUser(ENUM_MenuIndex(status + place), place == 0 ? "1" : height);
        QCOMPARE(m_rig->rowEnabled(scaling, 1), offered);
        QCOMPARE(m_rig->rowEnabled(scaling, 0), before);
    }
    // Without a crop the whole input counts.
    m_rig->set(LayerRig::of(MENU_MainLayer_InputSource, layer), "3");
    m_rig->setRows(scaling, true);
    m_rig->fromUser(ENUM_MenuIndex(status), "0");
    QVERIFY(!m_rig->rowEnabled(scaling, 1));
}

QTEST_MAIN(TestApplyGeometry)
#include "tst_applygeometry.moc"
