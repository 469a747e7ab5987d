// The mosaic of two inputs and the backup of inputs, as the user and as the device bring their values.

#include "casetable.h"

using namespace VASK;

class TestApplyMosaic : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void valueIsApplied_data();
    void valueIsApplied();
    void totalSize_data();
    void totalSize();
    void arrangement_data();
    void arrangement();
    void rowsFollowTheLayout();
    void applyTellsWhetherItIsShown_data();
    void applyTellsWhetherItIsShown();
    void reset();
    void backupArrows_data();
    void backupArrows();
    void backupReset();

private:
    EngineRig *m_rig = nullptr;
};

namespace
{
const Values memories{{MENU_MosaicLayout0_Width, "1280"}, {MENU_MosaicLayout0_Height, "720"},
                      {MENU_MosaicLayout1_Width, "800"},  {MENU_MosaicLayout1_Height, "600"},
                      {MENU_Mosaic_Width, "1"},           {MENU_Mosaic_Height, "2"}};

Values with(Values values, const Values &more)
{
    for (auto item = more.cbegin(); item != more.cend(); ++item)
        values[item.key()] = item.value();
    return values;
}

/// Notes what the rows of the mosaic and of the backup are told beside their values.
class LookRow : public VaskUiObject
{
public:
    LookRow(ENUM_ObjectIndex object, QStringList &notes) : VaskUiObject(object), m_notes(notes) {}
    void setTwoArrow(bool on) override { m_notes << (on ? "arrows" : "no arrows"); }
    void updateSplite(QString value) override { m_notes << "layout " + value; }
    void updatePixValue(QString text) override { m_notes << "size " + text; }

private:
    QStringList &m_notes;
};

const Cases &allCases()
{
    static const Cases cases{
        Case("side by side", memories)
            .byDevice(MENU_Mosaic_Layout, "1")
            .tells({"3071=1", "3071=1"})
            .leaves({{MENU_Mosaic_Width, "1280"}, {MENU_Mosaic_Height, "720"}}),
        // No row of it is known to the protocol but the apply row.
        Case("one above the other", memories)
            .byUser(MENU_Mosaic_Layout, "0")
            .sends({"3071=0"})
            .refreshes({"3072=", "3072=", "3073=", "3073="})
            .leaves({{MENU_Mosaic_Width, "800"}, {MENU_Mosaic_Height, "600"}}),
        Case("width, side by side", with(memories, {{MENU_Mosaic_Layout, "1"}}))
            .byUser(MENU_Mosaic_Width, "640")
            .refreshes({"3074=", "3074="})
            .leaves({{MENU_MosaicLayout0_Width, "640"}, {MENU_MosaicLayout1_Width, "800"}}),
        Case("width, above", with(memories, {{MENU_Mosaic_Layout, "0"}}))
            .byDevice(MENU_Mosaic_Width, "640")
            .refreshes({"3074=", "3074=", "3072=", "3072="})
            .leaves({{MENU_MosaicLayout1_Width, "640"}, {MENU_MosaicLayout0_Width, "1280"}}),
        Case("height, side by side", with(memories, {{MENU_Mosaic_Layout, "1"}}))
            .byDevice(MENU_Mosaic_Height, "480")
            .refreshes({"3074=", "3074=", "3073=", "3073="})
            .leaves({{MENU_MosaicLayout0_Height, "480"}, {MENU_MosaicLayout1_Height, "600"}}),
        Case("height, above", with(memories, {{MENU_Mosaic_Layout, "0"}}))
            .byUser(MENU_Mosaic_Height, "480")
            .refreshes({"3074=", "3074="})
            .leaves({{MENU_MosaicLayout1_Height, "480"}, {MENU_MosaicLayout0_Height, "720"}}),
    };
    return cases;
}
} // namespace

void TestApplyMosaic::init()
{
    m_rig->reset();
}

void TestApplyMosaic::valueIsApplied_data()
{
    addCaseRows(allCases());
}

void TestApplyMosaic::valueIsApplied()
{
    QFETCH(int, row);
    runCase(*m_rig, allCases().at(row));
}

void TestApplyMosaic::totalSize_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("size"); ///< of 1280x720 side by side, 800x600 above
    QTest::newRow("side by side") << "1" << int(MENU_Mosaic_Layout) << "1"
                                  << "2560x720";
    QTest::newRow("above") << "0" << int(MENU_Mosaic_Layout) << "0"
                           << "800x1200";
    QTest::newRow("width of both") << "1" << int(MENU_Mosaic_Width) << "1920"
                                   << "3840x1080";
    QTest::newRow("height of one") << "1" << int(MENU_Mosaic_Height) << "900"
                                   << "3840x900";
    QTest::newRow("width of one") << "0" << int(MENU_Mosaic_Width) << "1000"
                                  << "1000x1080";
    QTest::newRow("height of both") << "0" << int(MENU_Mosaic_Height) << "500"
                                    << "3840x1000";
}

void TestApplyMosaic::totalSize()
{
    QFETCH(QString, layout);
    QFETCH(int, index);
    QFETCH(QString, value);
    QFETCH(QString, size);
    for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
        m_rig->reset();
        for (auto item = memories.cbegin(); item != memories.cend(); ++item)
            m_rig->set(ENUM_MenuIndex(item.key()), item.value());
        m_rig->set(MENU_Mosaic_Layout, layout);
        QCOMPARE(m_rig->info(MENU_Mosaic_Arrangement).pixValue, QString("3840x1080"));
        m_rig->engine->SetParaToXml(value, ENUM_MenuIndex(index), mode);
        QCOMPARE(m_rig->info(MENU_Mosaic_Arrangement).pixValue, size);
    }
}

void TestApplyMosaic::arrangement_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    for (int input = 0; input < 6; ++input)
        QTest::addRow("user, %d", input) << int(SET_XML_USER) << QString::number(input)
                                         << QString::number(input) << QString("103254").mid(input, 1);
    QTest::newRow("user, in no pair") << int(SET_XML_USER) << "6"
                                      << "6"
                                      << "";
    QTest::newRow("device") << int(SET_XML_DEVICE) << "3/0"
                            << "3"
                            << "0";
}

void TestApplyMosaic::arrangement()
{
    QFETCH(int, mode);
    QFETCH(QString, value);
    QFETCH(QString, first);
    QFETCH(QString, second);
    for (const char *layout : {"0", "1"}) {
        m_rig->reset();
        m_rig->set(MENU_Mosaic_Layout, layout);
        m_rig->set(MENU_MosaicLayout0_Source, "9");
        m_rig->set(MENU_MosaicLayout1_Source, "9");
        m_rig->engine->SetParaToXml(value, MENU_Mosaic_Arrangement, ENUM_MODE_SET_XML(mode));
        const ST_ItemInfo item = m_rig->info(MENU_Mosaic_Arrangement);
        QCOMPARE(item.value, first);
        QCOMPARE(item.perBase, second);
        QCOMPARE(item.pixValue, QString("3840x1080"));
        const bool above = QString(layout) == "0";
        QCOMPARE(m_rig->value(above ? MENU_MosaicLayout0_Source : MENU_MosaicLayout1_Source), first);
        QCOMPARE(m_rig->value(above ? MENU_MosaicLayout1_Source : MENU_MosaicLayout0_Source), QString("9"));
        QCOMPARE(m_rig->reloaded.take(), (QStringList{"3074=", "3074="}));
        QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
    }
}

void TestApplyMosaic::rowsFollowTheLayout()
{
    QStringList look;
    auto *pool = ObjectPool::getInstance();
    VaskObject *usual = pool->GetObject(ENUM_ROW_Mosaic_Arrangement);
    LookRow row(ENUM_ROW_Mosaic_Arrangement, look);
    pool->InsertData(ENUM_ROW_Mosaic_Arrangement, &row);
    m_rig->set(MENU_MosaicLayout1_Width, "800");
    m_rig->set(MENU_MosaicLayout1_Height, "600");
    m_rig->fromUser(MENU_Mosaic_Layout, "0");
    QCOMPARE(look, (QStringList{"layout 0", "size 800x1200"}));
    look.clear();
    m_rig->fromUser(MENU_Mosaic_Reset, "0");
    QCOMPARE(look, QStringList{"layout 1"});
    pool->InsertData(ENUM_ROW_Mosaic_Arrangement, usual);
}

void TestApplyMosaic::applyTellsWhetherItIsShown_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("flag");
    QTest::newRow("shown") << "4"
                           << "1";
    QTest::newRow("not shown") << "2"
                               << "0";
}

void TestApplyMosaic::applyTellsWhetherItIsShown()
{
    QFETCH(QString, source);
    QFETCH(QString, flag);
    ST_ItemInfo sources = m_rig->info(MENU_MainLayer_InputSource);
    sources.params["4"] = "MOSAIC";
    sources.value = source;
    m_rig->store->updataMenuItem(MENU_MainLayer_InputSource, sources);
    m_rig->fromUser(MENU_Mosaic_Apply, "");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"3075=" + flag});
    QCOMPARE(m_rig->messages, QStringList{"Waiting"});
    m_rig->fromDevice(MENU_Mosaic_Apply, "");
    QCOMPARE(m_rig->reported.take(), (QStringList{"3075=" + flag, "3075=" + flag}));
}

void TestApplyMosaic::reset()
{
    for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
        m_rig->reset();
        for (int item = MENU_Mosaic_Layout; item <= MENU_Mosaic_Arrangement; ++item)
            m_rig->set(ENUM_MenuIndex(item), "0");
        for (int item = MENU_MosaicLayout0_Width; item <= MENU_MosaicLayout1_Source; ++item)
            m_rig->set(ENUM_MenuIndex(item), "0");
        ST_ItemInfo item = m_rig->info(MENU_Mosaic_Arrangement);
        item.pixValue = "1x1";
        m_rig->store->updataMenuItem(MENU_Mosaic_Arrangement, item);
        m_rig->engine->SetParaToXml("0", MENU_Mosaic_Reset, mode);
        QStringList values;
        for (int index = MENU_Mosaic_Layout; index <= MENU_Mosaic_Arrangement; ++index)
            values << m_rig->value(ENUM_MenuIndex(index));
        for (int index = MENU_MosaicLayout0_Width; index <= MENU_MosaicLayout1_Source; ++index)
            values << m_rig->value(ENUM_MenuIndex(index));
        QCOMPARE(values.join(' '), QString("1 1920 1080 2 1920 1080 2 1920 1080 2"));
        QCOMPARE(m_rig->info(MENU_Mosaic_Arrangement).perBase, QString("3"));
        QCOMPARE(m_rig->info(MENU_Mosaic_Arrangement).pixValue, QString("3840x1080"));
        QCOMPARE(m_rig->device->sent.take() + m_rig->messages, QStringList());
        QCOMPARE(m_rig->reloaded.take().join(' '),
                 QString("3071=1 3071=1 3072= 3072= 3073= 3073= 3074=2 3074=2"));
    }
}

void TestApplyMosaic::backupArrows_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QList<int>>("silent"); ///< inputs whose signal is not stable
    QTest::addColumn<QString>("arrows");
    const int hdmi = MENU_InputBackup_HDMI1, dvi = MENU_InputBackup_DVI1, both = MENU_InputBackup_Mosaic;
    const QString yes = "arrows", no = "no arrows";
    QTest::newRow("HDMI") << hdmi << "1" << QList<int>{2, 3} << yes;
    QTest::newRow("HDMI, off") << hdmi << "0" << QList<int>{} << no;
    QTest::newRow("HDMI, one silent") << hdmi << "1" << QList<int>{1} << no;
    QTest::newRow("DVI") << dvi << "1" << QList<int>{0, 1} << yes;
    QTest::newRow("DVI, one silent") << dvi << "1" << QList<int>{3} << no;
    QTest::newRow("both") << both << "1" << QList<int>{} << yes;
    QTest::newRow("both, one silent") << both << "1" << QList<int>{2} << no;
}

void TestApplyMosaic::backupArrows()
{
    QFETCH(int, index);
    QFETCH(QString, value);
    QFETCH(QList<int>, silent);
    QFETCH(QString, arrows);
    static constexpr int codes[] = {97, 98, 105, 106};
    for (int input = 0; input < int(std::size(codes)); ++input)
        m_rig->input(input, codes[input], silent.contains(input) ? 2 : 3, 1920, 1080, 16667);
    QStringList look;
    const auto object = ENUM_ObjectIndex(ENUM_ROW_InputBackup_HDMI1 + index - MENU_InputBackup_HDMI1);
    LookRow row(object, look);
    ObjectPool::getInstance()->InsertData(object, &row);
    for (auto mode : {SET_XML_USER, SET_XML_DEVICE})
        m_rig->engine->SetParaToXml(value, ENUM_MenuIndex(index), mode);
    ObjectPool::getInstance()->RemoveByIndex(object);
    QCOMPARE(look, (QStringList{arrows, arrows}));
    QCOMPARE(m_rig->value(ENUM_MenuIndex(index)), value);
}

void TestApplyMosaic::backupReset()
{
    for (int item = MENU_InputBackup_Status; item <= MENU_InputBackup_Mosaic; ++item)
        m_rig->set(ENUM_MenuIndex(item), "1");
    m_rig->fromUser(MENU_InputBackup_Reset, "0");
    QStringList values;
    for (int item = MENU_InputBackup_Status; item <= MENU_InputBackup_Mosaic; ++item)
        values << m_rig->value(ENUM_MenuIndex(item));
    QCOMPARE(values.join(' '), QString("0 0 1 1"));
}

QTEST_MAIN(TestApplyMosaic)
#include "tst_applymosaic.moc"
