// The advanced screen configuration: the page with the record of one port, and the records of all.

#include "caseline.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyAdvanced : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void valueIsApplied_data();
    void valueIsApplied();
    void portIsShown();
    void reportedRecordIsShown();
    void reset_data();
    void reset();

private:
    QString page() const;
    void fillRecords();
    EngineRig *m_rig = nullptr;
};

namespace
{
const QString formOn = "2381+ 2382+ 2383+ 2384+ 2385+ 2386+ 2387+ ";
const QString formOff = "2381- 2382- 2383- 2384- 2385- 2386- 2387- ";
const QString formRefreshed = "reloads 2381= 2382= 2383= 2384= 2385= 2386= 2387=; ";
const QString closes = "sends 1055=0; asks FlowWayCauseCloseLowLatency; leaves 1055=0";
const QString third = "2381=3 1055=1 2384=5 2385=6 ", shifted = third + "3199=6 "; // the last port's Y

const CaseLines lines{
    {"on", "3138=0", "user 2380=1", "sends 2380=1; " + formRefreshed + "leaves 3138=1 1056+ " + formOn},
    {"on, sending card", "3138=0 3210=2", "device 2380=1", "tells 2380=1; leaves 3138=1 1056- " + formOn},
    {"off", "3138=1", "user 2380=0", "sends 2380=0; " + formRefreshed + "leaves 3138=0 1056+ " + formOff},
    {"off", "3138=1 3210=1", "device 2380=0", "tells 2380=0; leaves 3138=0 1056+ " + formOff},

    {"rows", third, "user 2382=7", "reloads 2385=6 2384=5; leaves 3161=7 3151=1 1055=1"},
    {"rows", shifted, "device 2382=7", "reloads; leaves 3161=7 1055=1"},
    {"rows, the starts differ", shifted, "user 2382=7", "reloads 2385=6 2384=5 1055=; " + closes},
    {"columns", third, "user 2383=8", "reloads 2384=5 2385=6; leaves 3162=8 1055=1"},
    {"columns", shifted, "device 2383=8", "reloads; leaves 3162=8 1055=1"},
    {"x", third, "user 2384=640", "leaves 3163=640 3164=0 1055=1"},
    {"x, the starts differ", shifted, "user 2384=640", closes},
    {"y", third, "user 2385=480", closes + " 3164=480"},
    {"y", third, "device 2385=480", "reloads; leaves 3164=480 1055=1"},
    {"flow way", shifted, "user 2386=4", "leaves 3165=4 1055=1"},
    {"flow way", "", "device 2386=4", "reloads; leaves 3155=4"},
    // What lies behind the last record.
    {"no port", "2381=11 3201=64", "user 2382=9", "leaves 3201=64 3196=1"},

    {"applied", "3211=1 3209=1 1055=1",
     "user 2387=", "sends 2387=; asks Waiting; leaves 3211=0 3209=0 1055=1 1056+"},
    {"applied, low latency does not suit", "3211=1 3209=1 1055=1 3199=6",
     "user 2387=", "sends 1055=0 2387=; asks Waiting FlowWayCauseCloseLowLatency; leaves 1055=0"},
    {"applied", "3211=1 3209=1 1055=1",
     "device 2387=", "tells 2387=; asks Waiting; leaves 3211=0 3209=0 1055=1 1056+"},
    {"port", "3161=7", "device 2381=3", "reloads; leaves 2382=1"},
};
} // namespace

void TestApplyAdvanced::init()
{
    m_rig->reset();
    m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
}

void TestApplyAdvanced::valueIsApplied_data()
{
    addCaseLines(lines);
}

void TestApplyAdvanced::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, lines.at(row));
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
    QCOMPARE(m_rig->reloaded.take(), (QStringList{"2382=", "2383=", "2384=", "2385=", "2386="}));
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
    QCOMPARE(m_rig->reloaded.take(), (QStringList{"2381=", "2382=", "2383=", "2384=", "2385=", "2386="}));
    for (int item = MENU_AdvancedPort1_Rows; item <= MENU_AdvancedPort10_FlowWay; ++item)
        QCOMPARE(m_rig->value(ENUM_MenuIndex(item)), QString("11000").mid((item - 3151) % 5, 1));
}

FPD_TEST(TestApplyAdvanced)

#include "tst_applyadvanced.moc"
