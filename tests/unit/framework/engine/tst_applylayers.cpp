// Which layers are on, in which order they stand, what they show, and the fixed layouts. The two PIPs are
// one: each rule stands for one of them.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"
#include "tests/unit/rig/layerrig.h"

using namespace VASK;

namespace
{
const QString free = "MainLayerTransition+ TransitionDuration+",
              locked = "MainLayerTransition- TransitionDuration-";
const QString freeBefore = "MainLayerTransition=0 " + free + " Layout=1 MainLayer_InputSource/7+";
const QString mosaic = "MainLayer_InputSource/7+ ", noMosaic = "MainLayer_InputSource/7- ";
const CaseLines statusLines{
    {"main off", "user MainLayer_Status=1; Layout=0", "user MainLayer_Status=0",
     "sends MainLayer_Status=0; visible labWindowOffDisplay_1; leaves Layout=2 LowestLayer=255"},
    {"main on", "user MainLayer_Status=0; Layout=0", "device MainLayer_Status=1",
     "tells MainLayer_Status=1; hidden labWindowOffDisplay_1; leaves Layout=2 LowestLayer=0"},
    {"PIP 1 on", "PIP1_InputSource=2 " + freeBefore, "user PIP1_Status=1",
     "sends MainLayerTransition=1 PIP1_Status=1; hidden labWindowOffDisplay_2; picture2 No Signal; "
     "reloading MainLayer_InputSource=; leaves Layout=2 MainLayerTransition=1 " +
         noMosaic + locked},
    {"PIP 2 on", "PIP2_InputSource=2 " + freeBefore, "device PIP2_Status=1",
     "sends MainLayerTransition=1; tells PIP2_Status=1; hidden labWindowOffDisplay_3; picture3 No Signal; "
     "leaves Layout=2 " +
         noMosaic + locked},
    {"PIP 1 under the mosaic", "user PIP1_Status=0; MainLayer_InputSource=7", "user PIP1_Status=1",
     "asks MosaicIsUsing; reloads PIP1_Status=; visible labWindowOffDisplay_2; leaves PIP1_Status=0 " +
         mosaic},
    {"PIP 2 under the mosaic", "MainLayer_InputSource=7", "device PIP2_Status=1",
     "asks MosaicIsUsing; reloads PIP2_Status=; leaves PIP2_Status=0"},
    {"PIP 1 under the mosaic", "MainLayer_InputSource=7; started", "device PIP1_Status=1",
     "asks MosaicIsUsing; reloads PIP1_Status=; leaves PIP1_Status=0"},
    {"PIP 1 off", "user PIP1_Status=1", "user PIP1_Status=0",
     "sends PIP1_Status=0; visible labWindowOffDisplay_2; leaves " + mosaic + free},
    {"PIP 2 off, the other on", "user PIP2_Status=1; PIP1_Status=1", "user PIP2_Status=0",
     "sends PIP2_Status=0; visible labWindowOffDisplay_3; leaves " + noMosaic + locked},
    {"PIP 1 off, 3D on", "user PIP1_Status=1; Mode3D_Status=1", "user PIP1_Status=0",
     "sends PIP1_Status=0; leaves " + mosaic + locked},
    {"PIP 2 off, mosaic shown", "user PIP2_Status=1; MainLayer_InputSource=7", "user PIP2_Status=0",
     "sends PIP2_Status=0; leaves " + mosaic + locked},
    {"PIP 1 off, sending card", "user PIP1_Status=1; WorkMode=2", "user PIP1_Status=0",
     "sends PIP1_Status=0; leaves " + noMosaic + locked},
};

/// A layer each: status, place, scaling.
QString layers(const char *on, const char *places, const char *scaling)
{
    const QStringList place = QString(places).split(' ');
    QString text;
    for (int layer = 0; layer < 3; ++layer)
        text += QString("%1_{Status=%2 Priority=%3 ScalingMode=%4} ")
                    .arg(QStringList{"MainLayer", "PIP1", "PIP2"}[layer], QString(on[layer]), place[layer],
                         QString(scaling[layer]));
    return text;
}
const QString mainOn = "device MainLayer_Status=1", toldOn = "tells MainLayer_Status=1; leaves LowestLayer=";
const QString mainOff = "device MainLayer_Status=0",
              toldOff = "tells MainLayer_Status=0; leaves LowestLayer=";
const CaseLines orderLines{
    {"main alone, full screen", layers("000", "0 1 2", "022"), mainOn, toldOn + "0; lit SCALE"},
    {"main alone, custom", layers("000", "0 1 2", "202"), mainOn, toldOn + "0; dark SCALE"},
    {"PIP 2 below", layers("011", "2 1 0", "220"), mainOn, toldOn + "2; lit SCALE"},
    {"the lowest is off", layers("010", "2 1 0", "200"), mainOn, toldOn + "1; lit SCALE"},
    {"equal: the earlier", layers("111", "0 1 1", "220"), mainOff, toldOff + "1; dark SCALE"},
    {"main without a place", layers("010", "255 1 2", "020"), mainOn, toldOn + "1; dark SCALE"},
    {"main without a place, alone", layers("000", "255 1 2", "000"), mainOn, toldOn + "255; dark SCALE"},
    {"none", layers("100", "0 1 2", "000"), mainOff, toldOff + "255; dark SCALE"},
    {"main to the top", layers("111", "0 1 2", "222"), "user MainLayer_Priority=2",
     "sends PIP1_Priority=0 PIP2_Priority=1 MainLayer_Priority=2; "
     "leaves PIP1_Priority=0 PIP2_Priority=1 LowestLayer=1"},
    {"PIP 1 down", layers("111", "0 1 2", "222"), "user PIP1_Priority=0",
     "sends MainLayer_Priority=1 PIP2_Priority=2 PIP1_Priority=0; leaves MainLayer_Priority=1 LowestLayer=1"},
    {"PIP 2 to the bottom", layers("111", "0 1 2", "222"), "user PIP2_Priority=0",
     "sends MainLayer_Priority=1 PIP1_Priority=2 PIP2_Priority=0; leaves PIP1_Priority=2 LowestLayer=2"},
    {"PIP 2 from the bottom", layers("111", "2 1 0", "222"), "user PIP2_Priority=1",
     "sends MainLayer_Priority=2 PIP1_Priority=0 PIP2_Priority=1; leaves PIP1_Priority=0 LowestLayer=1"},
    {"as it is", layers("111", "0 1 2", "222"), "user PIP1_Priority=1", "sends PIP1_Priority=1"},
    {"reported", layers("011", "2 1 2", "222"), "device PIP1_Priority=0",
     "tells PIP1_Priority=0; leaves PIP2_Priority=2 LowestLayer=1"},
};

const QString layoutSends = "sends MainLayer_InitialY=0 PIP1_InitialY=0 PIP1_Status=1 PIP2_InitialY=0 "
                            "PIP2_Status=1 MainLayerTransition=1; hidden labWindowOffDisplay_3; leaves " +
                            noMosaic + locked;
const QString dialled =
    " MainLayer_{HorWidth+ VerHeight+ InitialX+ InitialY+} PIP1_InitialX+ PIP2_HorWidth+ ";
const QString undialled =
    QString(dialled).replace('+', '-') + freeBefore +
    " MainLayer_ScalingMode=0 PIP1_ScalingMode=1; user MainLayer_Status=1; OutputWidth=";
const CaseLines layoutLines{
    {"1:1:1", undialled + "1921", "user Layout=0",
     layoutSends + dialled +
         "Layout=0 MainLayer_{HorWidth=641 VerHeight=1080 InitialX=640 ScalingMode=2} "
         "PIP1_{HorWidth=640 InitialX=0 ScalingMode=2} PIP2_{HorWidth=640 InitialX=1281}"},
    {"1:2:1", undialled + "1922", "user Layout=1",
     layoutSends + dialled +
         "Layout=1 MainLayer_{HorWidth=962 InitialX=480} PIP1_{HorWidth=480 InitialX=0} "
         "PIP2_{HorWidth=480 VerHeight=1080 InitialX=1442}"},
    {"none holds after a change of a layer", "user Layout=1", "device PIP2_Status=1",
     "sends MainLayerTransition=1; tells PIP2_Status=1; leaves Layout=2"},
    {"none", "", "user Layout=2", "leaves Layout=2"},
    {"reported", "MainLayer_HorWidth=7", "device Layout=0", "tells Layout=0; leaves MainLayer_HorWidth=7"},
};

const QString takeMosaic = "Layout/0+ Layout/1+ " + freeBefore, leaveMosaic = "user MainLayer_InputSource=0";
const QString card = "WorkMode=2 MainLayer_InputCrop-", ofCard = "sends MainLayer_InputSource=";
const CaseLines sourceLines{
    {"HDMI 2", "MainLayer_InputCrop-", "user MainLayer_InputSource=1",
     "sends MainLayer_InputSource=1; name HDMI2; picture 1920x1080@59.94; leaves MainLayer_InputCrop+; "
     "reloading MainLayer_InputCrop="},
    {"DVI", "MainLayer_InputCrop+", "device MainLayer_InputSource=2",
     "tells MainLayer_InputSource=2; name DVI; picture No Signal; leaves MainLayer_InputCrop-"},
    {"DVI on PIP 1", "PIP1_InputCrop+", "user PIP1_InputSource=2",
     "sends PIP1_InputSource=2; name2 DVI; picture2 No Signal; leaves PIP1_InputCrop-"},
    {"HDMI 2 on PIP 2", "PIP2_InputCrop-", "device PIP2_InputSource=1",
     "tells PIP2_InputSource=1; name3 HDMI2; picture3 1920x1080@59.94; leaves PIP2_InputCrop+; "
     "reloading PIP2_InputCrop="},
    {"interlaced", "InputRecordFirst+8=1", "user PIP1_InputSource=1",
     "sends PIP1_InputSource=1; picture2 1920x1080i@59.94"},
    {"mosaic", takeMosaic, "user MainLayer_InputSource=7",
     "sends MainLayerTransition=1 MainLayer_InputSource=7; name MOSAIC; leaves Layout/0- Layout/1- " +
         locked},
    {"mosaic", takeMosaic, "device MainLayer_InputSource=7",
     "sends MainLayerTransition=1; tells MainLayer_InputSource=7; leaves Layout/0- " + locked},
    {"no mosaic", "user MainLayer_InputSource=7", leaveMosaic,
     ofCard + "0; leaves Layout/0+ Layout/1+ " + free},
    {"no mosaic, PIP 1 on", "user MainLayer_InputSource=7; PIP1_Status=1", leaveMosaic,
     ofCard + "0; leaves Layout/0+ " + locked},
    {"no mosaic, PIP 2 on", "user MainLayer_InputSource=7; PIP2_Status=1", leaveMosaic,
     ofCard + "0; leaves " + locked},
    {"no mosaic, 3D on", "user MainLayer_InputSource=7; Mode3D_Status=1", leaveMosaic,
     ofCard + "0; leaves " + locked},
    {"card, input", card, "user MainLayer_InputSource=1",
     ofCard + "1; screen 1920x1080@59.94; leaves OutputRate=5994 MainLayer_InputCrop-"},
    {"card, an input without a rate", card, "user MainLayer_InputSource=2",
     ofCard + "2; screen 1920x1080@60; leaves OutputRate=6000"},
    {"card, reference", card + " Sync_Status=1", "user MainLayer_InputSource=1",
     ofCard + "1; screen 1920x1080@50; leaves OutputRate=5000"},
    {"card shows no PIP", "user PIP2_InputSource=0; WorkMode=2", "user PIP2_InputSource=1",
     "sends PIP2_InputSource=1; name3 HDMI1; picture3 1280x720@50"},
};
} // namespace

class TestApplyLayers : public CaseTest
{
    EngineRig *makeRig() const override { return new LayerRig; }
    void begin() override { static_cast<LayerRig *>(m_rig)->start(); }
    CaseLines lines() const override
    {
        static const CaseLines all = statusLines + orderLines + layoutLines + sourceLines;
        return all;
    }
};

FPD_TEST(TestApplyLayers)
