// The mosaic of two inputs and the backup of inputs, as the user and as the device bring their values.

#include "enginerig.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyMosaic : public QObject
{
    Q_OBJECT
private slots:
    /// On a model with both pages of the mosaic.
    void initTestCase()
    {
        m_rig = new EngineRig;
        m_rig->addRows({CONFIG_MosaicSplit, CONFIG_MosaicSplitTwin});
    }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void valueIsApplied_data();
    void valueIsApplied();
    void arrangement_data();
    void arrangement();
    void rowsFollowTheLayout();
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

} // namespace

void TestApplyMosaic::valueIsApplied_data()
{
    // Afterwards: rows that are told to load, the size of the page and of each layout, and that of the whole.
    addColumns<QString, int, QString, QString, QString, QString>(
        {"layout", "index", "value", "reloaded", "sizes", "total"});
    const QString sizes = "Mosaic_Width= Mosaic_Width= Mosaic_Height= Mosaic_Height=",
                  whole = "Mosaic_Arrangement= Mosaic_Arrangement=";
    addRow("side by side", "1", MENU_Mosaic_Layout, "1", sizes, "1280x720 1280x720 800x600", "2560x720");
    addRow("above", "0", MENU_Mosaic_Layout, "0", sizes, "800x600 1280x720 800x600", "800x1200");
    addRow("width of both", "1", MENU_Mosaic_Width, "640", whole, "640x2 640x720 800x600", "1280x1080");
    addRow("width of one", "0", MENU_Mosaic_Width, "640", whole, "640x2 1280x720 640x600", "640x1080");
    addRow("height of one", "1", MENU_Mosaic_Height, "480", whole, "1x480 1280x480 800x600", "3840x480");
    addRow("height of both", "0", MENU_Mosaic_Height, "480", whole, "1x480 1280x720 800x480", "3840x960");
}

void TestApplyMosaic::valueIsApplied()
{
    QFETCH(QString, layout);
    QFETCH(int, index);
    QFETCH(QString, value);
    QFETCH(QString, reloaded);
    const bool isLayout = index == MENU_Mosaic_Layout;
    const QString line = isLayout ? "Mosaic_Layout=" + value : QString();
    const QList<QPair<int, const char *>> before{
        {MENU_MosaicLayout0_Width, "1280"}, {MENU_MosaicLayout0_Height, "720"},
        {MENU_MosaicLayout1_Width, "800"},  {MENU_MosaicLayout1_Height, "600"},
        {MENU_Mosaic_Width, "1"},           {MENU_Mosaic_Height, "2"}};
    for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
        const bool user = mode == SET_XML_USER;
        m_rig->reset();
        for (const auto &item : before)
            m_rig->set(ENUM_MenuIndex(item.first), item.second);
        m_rig->set(MENU_Mosaic_Layout, layout);
        m_rig->engine->SetParaToXml(value, ENUM_MenuIndex(index), mode);
        m_rig->settle();
        QCOMPARE(m_rig->device->sent.take().join(' '), user ? line : QString());
        QCOMPARE(m_rig->reported.take().join(' '), user || !isLayout ? QString() : line + ' ' + line);
        const QString own = user || isLayout ? QString() : QString(" %1= %1=").arg(itemnames::name(index));
        QCOMPARE(m_rig->reloaded.take().join(' '), reloaded + own);
        QStringList sizes;
        for (auto width : {MENU_Mosaic_Width, MENU_MosaicLayout0_Width, MENU_MosaicLayout1_Width})
            sizes << m_rig->value(width) + 'x' + m_rig->value(ENUM_MenuIndex(width + 1));
        QTEST(sizes.join(' '), "sizes");
        QTEST(m_rig->info(MENU_Mosaic_Arrangement).pixValue, "total");
    }
}

void TestApplyMosaic::arrangement_data()
{
    addColumns<int, QString, QString, QString>({"mode", "value", "first", "second"});
    const QString other = "103254";
    for (int input = 0; input < other.size(); ++input) {
        const QString number = QString::number(input);
        addRow("user, " + number, SET_XML_USER, number, number, other.mid(input, 1));
    }
    addRow("user, in no pair", SET_XML_USER, "6", "6", "");
    addRow("device", SET_XML_DEVICE, "3/0", "3", "0");
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
        QCOMPARE(m_rig->reloaded.take(), (QStringList{"Mosaic_Arrangement=", "Mosaic_Arrangement="}));
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

void TestApplyMosaic::applyTellsWhetherItIsShown()
{
    for (const bool shown : {true, false}) {
        m_rig->reset();
        m_rig->store->changeItem(MENU_MainLayer_InputSource, [shown](ST_ItemInfo &sources) {
            sources.params["4"] = "MOSAIC";
            sources.value = shown ? "4" : "2";
        });
        const QString told = shown ? "Mosaic_Apply=1" : "Mosaic_Apply=0";
        m_rig->fromUser(MENU_Mosaic_Apply, "");
        QCOMPARE(m_rig->device->sent.take(), QStringList{told});
        QCOMPARE(m_rig->messages, QStringList{"Waiting"});
        m_rig->fromDevice(MENU_Mosaic_Apply, "");
        QCOMPARE(m_rig->reported.take(), (QStringList{told, told}));
    }
}

void TestApplyMosaic::reset()
{
    for (auto mode : {SET_XML_USER, SET_XML_DEVICE}) {
        m_rig->reset();
        for (int item = MENU_Mosaic_Layout; item <= MENU_Mosaic_Arrangement; ++item)
            m_rig->set(ENUM_MenuIndex(item), "0");
        for (int item = MENU_MosaicLayout0_Width; item <= MENU_MosaicLayout1_Source; ++item)
            m_rig->set(ENUM_MenuIndex(item), "0");
        m_rig->store->changeItem(MENU_Mosaic_Arrangement, [](ST_ItemInfo &item) { item.pixValue = "1x1"; });
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
                 QString("Mosaic_Layout=1 Mosaic_Layout=1 Mosaic_Width= Mosaic_Width= Mosaic_Height= "
                         "Mosaic_Height= Mosaic_Arrangement=2 Mosaic_Arrangement=2"));
    }
}

void TestApplyMosaic::backupArrows_data()
{
    using Inputs = QList<int>; ///< whose signal is not stable
    addColumns<int, QString, Inputs, QString>({"index", "value", "silent", "arrows"});
    addRow("HDMI", MENU_InputBackup_HDMI1, "1", Inputs{2, 3}, "arrows");
    addRow("HDMI, off", MENU_InputBackup_HDMI1, "0", Inputs{}, "no arrows");
    addRow("HDMI, one silent", MENU_InputBackup_HDMI1, "1", Inputs{1}, "no arrows");
    addRow("DVI", MENU_InputBackup_DVI1, "1", Inputs{0, 1}, "arrows");
    addRow("DVI, one silent", MENU_InputBackup_DVI1, "1", Inputs{3}, "no arrows");
    addRow("both", MENU_InputBackup_Mosaic, "1", Inputs{}, "arrows");
    addRow("both, one silent", MENU_InputBackup_Mosaic, "1", Inputs{2}, "no arrows");
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

FPD_TEST(TestApplyMosaic)

#include "tst_applymosaic.moc"
