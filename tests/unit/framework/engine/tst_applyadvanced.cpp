// The advanced screen configuration: the page with the record of one port, and the records of all.

#include "caseline.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyAdvanced : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override;
    void begin() override;

private slots:
    void portIsShown();
    void reportedRecordIsShown();
    void reset_data();
    void reset();

private:
    QString page() const;
    void fillRecords();
};

namespace
{
const QString formOn =
    "Advanced_{EthernetPort+ CabinetRow+ CabinetCol+ HorOffset+ VerOffset+ FlowWay+ Apply+} ";
const QString formOff =
    "Advanced_{EthernetPort- CabinetRow- CabinetCol- HorOffset- VerOffset- FlowWay- Apply-} ";
const QString formRefreshed =
    "reloads Advanced_{EthernetPort= CabinetRow= CabinetCol= HorOffset= VerOffset= FlowWay= Apply=}; ";
const QString closes = "sends LowLatency=0; asks FlowWayCauseCloseLowLatency; leaves LowLatency=0";
const QString third = "Advanced_EthernetPort=3 LowLatency=1 Advanced_{HorOffset=5 VerOffset=6} ",
              shifted = third + "AdvancedPort10_Y=6 "; // the last port's Y

const CaseLines table{
    {"on", "ScreenConfigKind=0", "user Advanced_Status=1",
     "sends Advanced_Status=1; " + formRefreshed + "leaves ScreenConfigKind=1 Mode3D+ " + formOn},
    {"on, sending card", "ScreenConfigKind=0 WorkMode=2", "device Advanced_Status=1",
     "tells Advanced_Status=1; leaves ScreenConfigKind=1 Mode3D- " + formOn},
    {"off", "ScreenConfigKind=1", "user Advanced_Status=0",
     "sends Advanced_Status=0; " + formRefreshed + "leaves ScreenConfigKind=0 Mode3D+ " + formOff},
    {"off", "ScreenConfigKind=1 WorkMode=1", "device Advanced_Status=0",
     "tells Advanced_Status=0; leaves ScreenConfigKind=0 Mode3D+ " + formOff},

    {"rows", third, "user Advanced_CabinetRow=7",
     "reloads Advanced_{VerOffset=6 HorOffset=5}; leaves AdvancedPort3_Rows=7 AdvancedPort1_Rows=1 "
     "LowLatency=1"},
    {"rows", shifted, "device Advanced_CabinetRow=7", "reloads; leaves AdvancedPort3_Rows=7 LowLatency=1"},
    {"rows, the starts differ", shifted, "user Advanced_CabinetRow=7",
     "reloads Advanced_{VerOffset=6 HorOffset=5} LowLatency=; " + closes},
    {"columns", third, "user Advanced_CabinetCol=8",
     "reloads Advanced_{HorOffset=5 VerOffset=6}; leaves AdvancedPort3_Cols=8 LowLatency=1"},
    {"columns", shifted, "device Advanced_CabinetCol=8", "reloads; leaves AdvancedPort3_Cols=8 LowLatency=1"},
    {"x", third, "user Advanced_HorOffset=640", "leaves AdvancedPort3_{X=640 Y=0} LowLatency=1"},
    {"x, the starts differ", shifted, "user Advanced_HorOffset=640", closes},
    {"y", third, "user Advanced_VerOffset=480", closes + " AdvancedPort3_Y=480"},
    {"y", third, "device Advanced_VerOffset=480", "reloads; leaves AdvancedPort3_Y=480 LowLatency=1"},
    {"flow way", shifted, "user Advanced_FlowWay=4", "leaves AdvancedPort3_FlowWay=4 LowLatency=1"},
    {"flow way", "", "device Advanced_FlowWay=4", "reloads; leaves AdvancedPort1_FlowWay=4"},
    // What lies behind the last record.
    {"no port", "Advanced_EthernetPort=11 MosaicLayout0_Width=64", "user Advanced_CabinetRow=9",
     "leaves MosaicLayout0_Width=64 AdvancedPort10_Rows=1"},

    {"applied", "SoftwareConfigured=1 OutputMode=1 LowLatency=1", "user Advanced_Apply=",
     "sends Advanced_Apply=; asks Waiting; leaves SoftwareConfigured=0 OutputMode=0 LowLatency=1 Mode3D+"},
    {"applied, low latency does not suit",
     "SoftwareConfigured=1 OutputMode=1 LowLatency=1 AdvancedPort10_Y=6", "user Advanced_Apply=",
     "sends LowLatency=0 Advanced_Apply=; asks Waiting FlowWayCauseCloseLowLatency; leaves LowLatency=0"},
    {"applied", "SoftwareConfigured=1 OutputMode=1 LowLatency=1", "device Advanced_Apply=",
     "tells Advanced_Apply=; asks Waiting; leaves SoftwareConfigured=0 OutputMode=0 LowLatency=1 Mode3D+"},
    {"port", "AdvancedPort3_Rows=7", "device Advanced_EthernetPort=3",
     "reloads; leaves Advanced_CabinetRow=1"},
};
} // namespace

CaseLines TestApplyAdvanced::lines() const
{
    return table;
}

void TestApplyAdvanced::begin()
{
    m_rig->reset();
    m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
}

/// The rows that show a record.
QString TestApplyAdvanced::page() const
{
    QStringList values;
    for (int row = MENU_Advanced_CabinetRow; row <= MENU_Advanced_FlowWay; ++row)
        values << m_rig->value(ENUM_MenuIndex(row));
    return values.join(' ');
}

/// Every value of every record is another one.
void TestApplyAdvanced::fillRecords()
{
    for (int item = MENU_AdvancedPort1_Rows; item <= MENU_AdvancedPort10_FlowWay; ++item)
        m_rig->set(ENUM_MenuIndex(item), QString::number(item));
}

void TestApplyAdvanced::portIsShown()
{
    fillRecords();
    m_rig->fromUser(MENU_Advanced_EthernetPort, "10");
    QCOMPARE(page(), QString("3196 3197 3198 3199 3200"));
    QCOMPARE(m_rig->reloaded.take(),
             (QStringList{"Advanced_CabinetRow=", "Advanced_CabinetCol=", "Advanced_HorOffset=",
                          "Advanced_VerOffset=", "Advanced_FlowWay="}));
    m_rig->fromUser(MENU_Advanced_EthernetPort, "2");
    QCOMPARE(page(), QString("3156 3157 3158 3159 3160"));
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
}

void TestApplyAdvanced::reportedRecordIsShown()
{
    fillRecords();
    m_rig->set(MENU_Advanced_EthernetPort, "2");
    const QString before = page();
    m_rig->fromDevice(MENU_AdvancedPort3_FlowWay, "7");
    QCOMPARE(page(), before); // another port's
    m_rig->fromDevice(MENU_AdvancedPort2_Rows, "9");
    QCOMPARE(page(), before);
    m_rig->fromDevice(MENU_AdvancedPort2_FlowWay, "7");
    QCOMPARE(page(), QString("9 3157 3158 3159 7"));
    m_rig->fromUser(MENU_AdvancedPort2_FlowWay, "6");
    QCOMPARE(page(), QString("9 3157 3158 3159 6"));
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
}

void TestApplyAdvanced::reset_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("mode");
    QTest::newRow("yes, user") << 1 << int(SET_XML_USER);
    QTest::newRow("no, user") << 0 << int(SET_XML_USER);
    QTest::newRow("yes, device") << 1 << int(SET_XML_DEVICE);
}

void TestApplyAdvanced::reset()
{
    QFETCH(int, answer);
    QFETCH(int, mode);
    fillRecords();
    m_rig->fromUser(MENU_Advanced_EthernetPort, "4");
    m_rig->forget();
    m_rig->answer = answer;
    m_rig->engine->SetParaToXml("", MENU_Advanced_Reset, ENUM_MODE_SET_XML(mode));
    QCOMPARE(m_rig->messages, QStringList{"IfResetAdvancedScreenCfg"});
    QCOMPARE(m_rig->device->sent.take() + m_rig->reported.take(), QStringList());
    if (answer == 0) {
        QCOMPARE(page(), QString("3166 3167 3168 3169 3170"));
        QCOMPARE(m_rig->reloaded.take(), QStringList());
        return;
    }
    QCOMPARE(m_rig->value(MENU_Advanced_EthernetPort), QString("1"));
    QCOMPARE(page(), QString("1 1 0 0 0"));
    QCOMPARE(m_rig->reloaded.take(),
             (QStringList{"Advanced_EthernetPort=", "Advanced_CabinetRow=", "Advanced_CabinetCol=",
                          "Advanced_HorOffset=", "Advanced_VerOffset=", "Advanced_FlowWay="}));
    for (int item = MENU_AdvancedPort1_Rows; item <= MENU_AdvancedPort10_FlowWay; ++item)
        QCOMPARE(m_rig->value(ENUM_MenuIndex(item)), QString("11000").mid((item - 3151) % 5, 1));
}

FPD_TEST(TestApplyAdvanced)

#include "tst_applyadvanced.moc"
