// The advanced screen configuration: the page with the record of one port, and the records of all.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

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

/// Every value of every record is another one: port 3 has 31 rows, 32 columns and so on.
QString records()
{
    QString text;
    for (int port = 1; port <= 10; ++port)
        text += QString("AdvancedPort#_{Rows=#1 Cols=#2 X=#3 Y=#4 FlowWay=#5} ")
                    .replace('#', QString::number(port));
    return text;
}
const QString rowsOfARecord = "reloads Advanced_{CabinetRow= CabinetCol= HorOffset= VerOffset= FlowWay=}; ";
const QString asksReset = "asks IfResetAdvancedScreenCfg; ", toReset = records() + "Advanced_EthernetPort=4";
const QString isReset = asksReset +
                        "reloads Advanced_{EthernetPort= CabinetRow= CabinetCol= HorOffset= "
                        "VerOffset= FlowWay=}; leaves Advanced_{EthernetPort=1 CabinetRow=1 "
                        "CabinetCol=1 HorOffset=0 VerOffset=0 FlowWay=0} AdvancedPort1_{Rows=1 Cols=1 "
                        "X=0 Y=0 FlowWay=0} AdvancedPort10_{Rows=1 Cols=1 X=0 Y=0 FlowWay=0}";
const QString ofPort2 = "Advanced_{EthernetPort=2 CabinetRow=21 FlowWay=25}";
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

    {"last port", records(), "user Advanced_EthernetPort=10",
     rowsOfARecord +
         "leaves Advanced_{CabinetRow=101 CabinetCol=102 HorOffset=103 VerOffset=104 FlowWay=105}"},
    {"second port", records(), "user Advanced_EthernetPort=2", rowsOfARecord + "leaves " + ofPort2},
    {"record of another port", records() + ofPort2, "device AdvancedPort3_FlowWay=7", "leaves " + ofPort2},
    {"a part of the record", records() + ofPort2, "device AdvancedPort2_Rows=9", "leaves " + ofPort2},
    {"the whole record", records() + ofPort2 + "; device AdvancedPort2_Rows=9",
     "device AdvancedPort2_FlowWay=7",
     "leaves Advanced_{CabinetRow=9 CabinetCol=22 HorOffset=23 VerOffset=24 FlowWay=7}"},
    {"the whole record", records() + ofPort2, "user AdvancedPort2_FlowWay=6", "leaves Advanced_FlowWay=6"},
    {"reset", toReset, "user Advanced_Reset=", isReset},
    {"reset", toReset, "device Advanced_Reset=", isReset},
    {"reset, refused", toReset + "; user Advanced_EthernetPort=4", "user Advanced_Reset=",
     asksReset + "answers 0; reloads ; leaves Advanced_{EthernetPort=4 CabinetRow=41 FlowWay=45}"},
};
} // namespace

class TestApplyAdvanced : public CaseTest
{
    CaseLines lines() const override { return table; }

    void begin() override
    {
        m_rig->reset();
        m_rig->store->UpdataItemEnable(MENU_Mode3D, false);
    }
};

FPD_TEST(TestApplyAdvanced)
