// The advanced screen configuration: the page with the record of one port, and the records of all.

#include "casetable.h"

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
const QString closes = "FlowWayCauseCloseLowLatency";
const QString formOn = "2381+ 2382+ 2383+ 2384+ 2385+ 2386+ 2387+";
const QString formOff = "2381- 2382- 2383- 2384- 2385- 2386- 2387-";
const QStringList formRefreshed{"2381=", "2382=", "2383=", "2384=", "2385=", "2386=", "2387="};

Cases statusCases()
{
    return {
        Case("on", {{MENU_ScreenConfigKind, "0"}})
            .byUser(MENU_Advanced_Status, "1")
            .sends({"2380=1"})
            .refreshes(formRefreshed)
            .leaves({{MENU_ScreenConfigKind, "1"}}, formOn + " 1056+"),
        Case("on, sending card", {{MENU_ScreenConfigKind, "0"}, {MENU_WorkMode, "2"}})
            .byDevice(MENU_Advanced_Status, "1")
            .tells({"2380=1"})
            .leaves({{MENU_ScreenConfigKind, "1"}}, formOn + " 1056-"),
        Case("off", {{MENU_ScreenConfigKind, "1"}})
            .byUser(MENU_Advanced_Status, "0")
            .sends({"2380=0"})
            .refreshes(formRefreshed)
            .leaves({{MENU_ScreenConfigKind, "0"}}, formOff + " 1056+"),
        Case("off", {{MENU_ScreenConfigKind, "1"}, {MENU_WorkMode, "1"}})
            .byDevice(MENU_Advanced_Status, "0")
            .tells({"2380=0"})
            .leaves({{MENU_ScreenConfigKind, "0"}}, formOff + " 1056+"),
    };
}

Cases rowCases()
{
    const Values third{{MENU_Advanced_EthernetPort, "3"},
                       {MENU_LowLatency, "1"},
                       {MENU_Advanced_HorOffset, "5"},
                       {MENU_Advanced_VerOffset, "6"}};
    Values shifted = third;
    shifted[MENU_AdvancedPort10_Y] = "6";
    const Values on{{MENU_LowLatency, "1"}}, off{{MENU_LowLatency, "0"}};
    return {
        Case("rows", third)
            .byUser(MENU_Advanced_CabinetRow, "7")
            .refreshes({"2385=6", "2384=5"})
            .leaves({{MENU_AdvancedPort3_Rows, "7"}, {MENU_AdvancedPort1_Rows, "1"}, {MENU_LowLatency, "1"}}),
        Case("rows", shifted)
            .byDevice(MENU_Advanced_CabinetRow, "7")
            .refreshes({})
            .leaves({{MENU_AdvancedPort3_Rows, "7"}, {MENU_LowLatency, "1"}}),
        Case("rows, the starts differ", shifted)
            .byUser(MENU_Advanced_CabinetRow, "7")
            .sends({"1055=0"})
            .asks({closes})
            .refreshes({"2385=6", "2384=5", "1055="})
            .leaves(off),
        Case("columns", third)
            .byUser(MENU_Advanced_CabinetCol, "8")
            .refreshes({"2384=5", "2385=6"})
            .leaves({{MENU_AdvancedPort3_Cols, "8"}, {MENU_LowLatency, "1"}}),
        Case("columns", shifted)
            .byDevice(MENU_Advanced_CabinetCol, "8")
            .refreshes({})
            .leaves({{MENU_AdvancedPort3_Cols, "8"}, {MENU_LowLatency, "1"}}),
        Case("x", third)
            .byUser(MENU_Advanced_HorOffset, "640")
            .leaves({{MENU_AdvancedPort3_X, "640"}, {MENU_AdvancedPort3_Y, "0"}, {MENU_LowLatency, "1"}}),
        Case("x, the starts differ", shifted)
            .byUser(MENU_Advanced_HorOffset, "640")
            .sends({"1055=0"})
            .asks({closes})
            .leaves(off),
        Case("y", third)
            .byUser(MENU_Advanced_VerOffset, "480")
            .sends({"1055=0"})
            .asks({closes})
            .leaves({{MENU_AdvancedPort3_Y, "480"}, {MENU_LowLatency, "0"}}),
        Case("y", third)
            .byDevice(MENU_Advanced_VerOffset, "480")
            .refreshes({})
            .leaves({{MENU_AdvancedPort3_Y, "480"}, {MENU_LowLatency, "1"}}),
        Case("flow way", shifted)
            .byUser(MENU_Advanced_FlowWay, "4")
            .leaves({{MENU_AdvancedPort3_FlowWay, "4"}, {MENU_LowLatency, "1"}}),
        Case("flow way")
            .byDevice(MENU_Advanced_FlowWay, "4")
            .refreshes({})
            .leaves({{MENU_AdvancedPort1_FlowWay, "4"}}),
        Case("no port", {{MENU_Advanced_EthernetPort, "11"}, {MENU_MosaicLayout0_Width, "64"}})
            .byUser(MENU_Advanced_CabinetRow, "9")
            .leaves({{MENU_MosaicLayout0_Width, "64"}, {MENU_AdvancedPort10_Rows, "1"}}),
    };
}

Cases applyCases()
{
    const Values software{{MENU_SoftwareConfigured, "1"}, {MENU_OutputMode, "1"}, {MENU_LowLatency, "1"}};
    Values unfit = software;
    unfit[MENU_AdvancedPort10_Y] = "6";
    const Values byHand{{MENU_SoftwareConfigured, "0"}, {MENU_OutputMode, "0"}, {MENU_LowLatency, "1"}};
    return {
        Case("applied", software)
            .byUser(MENU_Advanced_Apply, "")
            .sends({"2387="})
            .asks({"Waiting"})
            .leaves(byHand, "1056+"),
        Case("applied, low latency does not suit", unfit)
            .byUser(MENU_Advanced_Apply, "")
            .sends({"1055=0", "2387="})
            .asks({"Waiting", closes})
            .leaves({{MENU_LowLatency, "0"}}),
        Case("applied", software)
            .byDevice(MENU_Advanced_Apply, "")
            .tells({"2387="})
            .asks({"Waiting"})
            .leaves(byHand, "1056+"),
        Case("port", {{MENU_AdvancedPort3_Rows, "7"}})
            .byDevice(MENU_Advanced_EthernetPort, "3")
            .refreshes({})
            .leaves({{MENU_Advanced_CabinetRow, "1"}}),
    };
}

const Cases &allCases()
{
    static const Cases cases = statusCases() + rowCases() + applyCases();
    return cases;
}
} // namespace

void TestApplyAdvanced::init()
{
    m_rig->reset();
    m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
}

void TestApplyAdvanced::valueIsApplied_data()
{
    addCaseRows(allCases());
}

void TestApplyAdvanced::valueIsApplied()
{
    QFETCH(int, row);
    runCase(*m_rig, allCases().at(row));
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

QTEST_MAIN(TestApplyAdvanced)
#include "tst_applyadvanced.moc"
