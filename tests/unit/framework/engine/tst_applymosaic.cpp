// The mosaic of two inputs and the backup of inputs, as the user and as the device bring their values; and
// the mode of an EDID that is applied.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
const QString each =
    "MosaicLayout0_{Width=1280 Height=720 Source=9} MosaicLayout1_{Width=800 Height=600 Source=9} "
    "Mosaic_{Width=1 Height=2} Mosaic_Layout=";
const QString loadsSizes = "reloads Mosaic_Width= Mosaic_Width= Mosaic_Height= Mosaic_Height=; ";
const QString loadsPlace = "reloads Mosaic_Arrangement= Mosaic_Arrangement=";
const QString placed = "leaves Mosaic_Arrangement/PixValue=";
const CaseLines sizeLines{
    {"side by side", each + "1", "user Mosaic_Layout=1",
     "sends Mosaic_Layout=1; looks layout1 2560x720 layout1 2560x720; " + loadsSizes + placed +
         "2560x720 Mosaic_{Width=1280 Height=720} MosaicLayout1_Width=800"},
    {"above", each + "0", "device Mosaic_Layout=0",
     "tells Mosaic_Layout=0 Mosaic_Layout=0; looks layout0 800x1200 layout0 800x1200; " + loadsSizes +
         placed + "800x1200 Mosaic_{Width=800 Height=600} MosaicLayout0_Width=1280"},
    {"width of both", each + "1", "user Mosaic_Width=640",
     loadsPlace + "; " + placed +
         "1280x1080 Mosaic_Height=2 MosaicLayout0_{Width=640 Height=720} MosaicLayout1_Width=800"},
    {"width of one", each + "0", "device Mosaic_Width=640",
     loadsPlace + " Mosaic_Width= Mosaic_Width=; " + placed +
         "640x1080 MosaicLayout0_Width=1280 MosaicLayout1_Width=640"},
    {"height of one", each + "1", "device Mosaic_Height=480",
     loadsPlace + " Mosaic_Height= Mosaic_Height=; " + placed +
         "3840x480 MosaicLayout0_Height=480 MosaicLayout1_Height=600"},
    {"height of both", each + "0", "user Mosaic_Height=480",
     loadsPlace + "; " + placed + "3840x960 MosaicLayout0_Height=720 MosaicLayout1_Height=480"},
};

CaseLine arrangement(const char *layout, const char *change, const char *first, const char *second)
{
    const bool above = *layout == '0';
    return {above ? "above" : "side by side", each + layout, QString("%1=%2").arg(change, first),
            loadsPlace + QString("; %1%2 Mosaic_{Arrangement=%3 Arrangement/PerBase=%4} "
                                 "MosaicLayout0_Source=%5 MosaicLayout1_Source=%6")
                             .arg(placed, "3840x1080", QString(first).left(1), second,
                                  above ? QString(first).left(1) : "9",
                                  above ? "9" : QString(first).left(1))};
}
CaseLines arrangementLines()
{
    const char *const user = "user Mosaic_Arrangement";
    return {arrangement("0", user, "0", "1"),
            arrangement("1", user, "1", "0"),
            arrangement("0", user, "2", "3"),
            arrangement("1", user, "3", "2"),
            arrangement("0", user, "4", "5"),
            arrangement("1", user, "5", "4"),
            arrangement("0", user, "6", ""),
            arrangement("1", "device Mosaic_Arrangement", "3/0", "0"),
            arrangement("0", "device Mosaic_Arrangement", "3/0", "0")};
}

const QString reset =
    "reloads Mosaic_{Layout=1 Layout=1 Width= Width= Height= Height= Arrangement=2 Arrangement=2}; "
    "looks layout1 layout1; leaves Mosaic_{Layout=1 Width=1920 Height=1080 Arrangement=2 "
    "Arrangement/PerBase=3 Arrangement/PixValue=3840x1080} MosaicLayout0_{Width=1920 Height=1080 "
    "Source=2} MosaicLayout1_{Width=1920 Height=1080 Source=2}";
const CaseLines applyLines{
    {"shown", "MainLayer_InputSource/4+ MainLayer_InputSource=4",
     "user Mosaic_Apply=", "asks Waiting; sends Mosaic_Apply=1"},
    {"not shown", "MainLayer_InputSource=2",
     "device Mosaic_Apply=", "asks Waiting; tells Mosaic_Apply=0 Mosaic_Apply=0"},
    {"reset", each + "0 Mosaic_Arrangement/PixValue=1x1", "user Mosaic_Reset=0", reset},
    {"reset", each + "0 Mosaic_Arrangement/PixValue=1x1", "device Mosaic_Reset=0", reset},
};

/// Of the four inputs that back each other up the digits tell the signal.
QString inputs(const char *states)
{
    static constexpr int codes[] = {97, 98, 105, 106};
    QString text;
    for (int input = 0; input < 4; ++input)
        text += QString("input %1 %2 %3 1920 1080 16667; ").arg(input).arg(codes[input]).arg(states[input]);
    return text.chopped(2);
}
const CaseLines backupLines{
    {"HDMI", inputs("3322"), "user InputBackup_HDMI1=1", "looks arrows; leaves InputBackup_HDMI1=1"},
    {"HDMI, off", inputs("3333"), "device InputBackup_HDMI1=0", "looks plain; leaves InputBackup_HDMI1=0"},
    {"HDMI, one silent", inputs("3233"), "user InputBackup_HDMI1=1",
     "looks plain; leaves InputBackup_HDMI1=1"},
    {"DVI", inputs("2233"), "device InputBackup_DVI1=1", "looks arrows; leaves InputBackup_DVI1=1"},
    {"DVI, one silent", inputs("3332"), "user InputBackup_DVI1=1", "looks plain"},
    {"both", inputs("3333"), "user InputBackup_Mosaic=1", "looks arrows"},
    {"both, one silent", inputs("3323"), "device InputBackup_Mosaic=1", "looks plain"},
    {"reset", "InputBackup_{Status=1 HDMI1=1 DVI1=1 Mosaic=1}", "user InputBackup_Reset=0",
     "leaves InputBackup_{Status=0 HDMI1=0 DVI1=1 Mosaic=1}"},
};

CaseLines edidLines()
{
    CaseLines lines;
    for (const QString input : {"HDMI1", "HDMI2", "DVI", "DVI2"})
        for (const bool custom : {false, true})
            lines << CaseLine{custom ? "custom" : "standard",
                              QString("%1_{EDIDChoice=%2 EDIDResolution=8 EDIDFrameRate=1 EDIDWidth=1366 "
                                      "EDIDHeight=769 EDIDCustomRate=8}; device %1_EDIDApply=1")
                                  .arg(input)
                                  .arg(custom),
                              QString("user %1_EDIDApply=").arg(input),
                              QString("asks Waiting; sends %1_EDIDApply=%2")
                                  .arg(input, custom ? "1366x769x59.94" : "1920x1200x50")};
    return lines << CaseLine{"reported", "", "device HDMI1_EDIDApply=1", ""};
}
} // namespace

class TestApplyMosaic : public CaseTest
{
    /// On a model with both pages of the mosaic, with rows for the backup, and with a second DVI input.
    EngineRig *makeRig() const override
    {
        auto *rig = new EngineRig;
        rig->addRows({CONFIG_MosaicSplit, CONFIG_MosaicSplitTwin, CONFIG_DVI2_EDID});
        for (int item = MENU_InputBackup_HDMI1; item <= MENU_InputBackup_Mosaic; ++item)
            rig->addRow(ENUM_ObjectIndex(ENUM_ROW_InputBackup_HDMI1 + item - MENU_InputBackup_HDMI1));
        return rig;
    }
    CaseLines lines() const override
    {
        static const CaseLines all = sizeLines + arrangementLines() + applyLines + backupLines + edidLines();
        return all;
    }
};

FPD_TEST(TestApplyMosaic)
