// Splicing: what it takes from the layers, what it gives back, and the area that this device loads.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"
#include "tests/unit/rig/layerrig.h"

using namespace VASK;

namespace
{
const QString pageOn = " ImageMosaic_{TotalHPixels+ TotalVPixels+ LoadAreaWidth+ LoadAreaHeight+ "
                       "LoadAreaInitialX+ LoadAreaInitialY+ Reset+}";
const QString pageOff = " ImageMosaic_{TotalHPixels- TotalVPixels- LoadAreaWidth- LoadAreaHeight- "
                        "LoadAreaInitialX- LoadAreaInitialY- Reset-}";
const QString dialled =
    "ImageMosaic_{TotalHPixels=77 TotalVPixels=77 LoadAreaWidth=77 LoadAreaHeight=77 LoadAreaInitialX=77 "
    "LoadAreaInitialY=77} MainLayer_{HorWidth=800 VerHeight=600 InitialX=11 InitialY=12} ";
const QString factory =
    "leaves ImageMosaic_{TotalHPixels=3840 TotalVPixels=2160 LoadAreaWidth=1920 LoadAreaHeight=1080 "
    "LoadAreaInitialX=0 LoadAreaInitialY=0} MainLayer_{InitialX=11 InitialY=12} ";
const QString cut = "MainLayerTransition=1 MainLayerTransition- TransitionDuration-";
const QString leavesCut = "of Layout:; leaves " + cut;
const CaseLines table{
    {"on, all stands already", "MainLayer_Status=1 Sync_Status=1", "user ImageMosaic_Status=1",
     "sends ImageMosaic_{LoadAreaWidth=1920 LoadAreaHeight=1080} MainLayer_{HorWidth=3840 VerHeight=2160 "
     "InitialX=0 InitialY=0} ImageMosaic_{Status=1 TotalHPixels=3840 TotalVPixels=2160 LoadAreaInitialY=0 "
     "Status=1}"},
    {"on",
     "ImageMosaic_{TotalHPixels=3000 TotalVPixels=2000 LoadAreaInitialY=9} PIP1_Status=1 "
     "MainLayer_{ScalingMode=1 HorWidth=700 InitialY=5} PIP1_{ScalingMode/0+ ScalingMode/1-}",
     "device ImageMosaic_Status=1",
     "sends ImageMosaic_{TotalHPixels=3000 TotalVPixels=2000 LoadAreaInitialY=9}; tells "
     "ImageMosaic_Status=1; leaves MainLayer_ScalingMode=2 PIP1_Status=1 MainLayer_{HorWidth=700 InitialY=5 "
     "ScalingMode/0- ScalingMode/1-} PIP1_{ScalingMode/0+ ScalingMode/1-}" +
         pageOn},
    {"off",
     "PIP1_Status=1 MainLayer_{ScalingMode=1 HorWidth=700 InitialY=5} PIP1_{ScalingMode/0+ ScalingMode/1-}",
     "device ImageMosaic_Status=0",
     "tells ImageMosaic_Status=0; leaves MainLayer_ScalingMode=1 PIP1_Status=1 MainLayer_{HorWidth=700 "
     "InitialY=5 ScalingMode/0+ ScalingMode/1+} PIP1_{ScalingMode/0+ ScalingMode/1-}" +
         pageOff},
    {"width", "", "user ImageMosaic_TotalHPixels=5000",
     "sends MainLayer_HorWidth=5000 ImageMosaic_TotalHPixels=5000; leaves MainLayer_{HorWidth=5000 "
     "CustomWidth=5000}"},
    {"width", "MainLayer_HorWidth=5000", "device ImageMosaic_TotalHPixels=4000",
     "tells ImageMosaic_TotalHPixels=4000; leaves MainLayer_HorWidth=5000"},
    {"height", "", "user ImageMosaic_TotalVPixels=5000",
     "sends MainLayer_VerHeight=5000 ImageMosaic_TotalVPixels=5000; leaves MainLayer_{VerHeight=5000 "
     "CustomHeight=5000}"},
    {"height", "MainLayer_VerHeight=5000", "device ImageMosaic_TotalVPixels=4000",
     "tells ImageMosaic_TotalVPixels=4000; leaves MainLayer_VerHeight=5000"},
    {"area holds its start", "ImageMosaic_{LoadAreaInitialX=32000 LoadAreaInitialY=100}",
     "user ImageMosaic_LoadAreaWidth=1000",
     "sends ImageMosaic_LoadAreaWidth=1000; reloads ImageMosaic_{LoadAreaInitialX=31768 "
     "LoadAreaInitialY=100}; leaves ImageMosaic_{LoadAreaInitialX=31768 LoadAreaInitialY=100}"},
    {"reset", dialled + "ImageMosaic_Status=1", "user ImageMosaic_Reset=0",
     "sends ImageMosaic_LoadAreaInitialY=0 MainLayer_VerHeight=2160; " + factory +
         "MainLayer_{HorWidth=3840 VerHeight=2160 CustomWidth=3840 CustomHeight=2160}"},
    {"reset, not spliced", dialled + "MainLayer_{CustomWidth=1 CustomHeight=2}", "user ImageMosaic_Reset=0",
     factory + "MainLayer_{HorWidth=800 VerHeight=600 CustomWidth=1 CustomHeight=2}"},
    {"on takes everything",
     "MainLayer_Status=0 PIP1_Status=1 PIP2_Status=1 Sync_Status=0; user MainLayer_Status=0; user "
     "PIP1_Status=1; "
     "user PIP2_Status=1; MainLayer_{HorWidth=800 VerHeight=600 InitialX=11 InitialY=12 HorWidth- InitialY- "
     "ScalingMode=1} PIP1_{HorWidth=320 VerHeight=240 InitialX=21 InitialY=22 InitialX- ScalingMode=1 "
     "ScalingMode/0+ ScalingMode/1+} PIP2_{VerHeight- ScalingMode=1} Layout=0",
     "user ImageMosaic_Status=1",
     "sends MainLayer_Status=1 ImageMosaic_{LoadAreaWidth=1920 LoadAreaHeight=1080} MainLayer_{HorWidth=3840 "
     "VerHeight=2160 InitialX=0 InitialY=0} PIP1_Status=0 PIP2_Status=0 Sync_Status=1 ImageMosaic_{Status=1 "
     "TotalHPixels=3840 TotalVPixels=2160 LoadAreaInitialY=0 Status=1}; hidden labWindowOffDisplay_1; "
     "visible labWindowOffDisplay_2; leaves MainLayer_{HorWidth=3840 VerHeight=2160 InitialX=0 InitialY=0 "
     "CustomWidth=3840 CustomHeight=2160 HorWidth+ InitialY+ ScalingMode=2 ScalingMode/0- ScalingMode/1-} "
     "PIP1_{CustomWidth=320 CustomY=22 InitialX+ ScalingMode=2 ScalingMode/0- ScalingMode/1-} "
     "PIP2_{VerHeight+ "
     "ScalingMode=2 ScalingMode/0-} MainLayer_InputSource/7+ MainLayerTransition+ TransitionDuration+ "
     "Sync_Status=1 Layout=2 LowestLayer=0" +
         pageOn},
    {"on, sending card", "WorkMode=2 MainLayer_{HorWidth- InitialX-}", "user ImageMosaic_Status=1",
     "of MainLayer_{HorWidth VerHeight InitialX InitialY}: MainLayer_{InitialX=0 InitialY=0}; "
     "leaves MainLayer_{HorWidth- InitialX+ CustomWidth=3840 CustomHeight=2160}"},
    {"on, 3D", "Mode3D_Status=1 " + cut, "user ImageMosaic_Status=1", leavesCut},
    {"on, mosaic", "MainLayer_InputSource=7 " + cut, "user ImageMosaic_Status=1", leavesCut},
    {"on, card", "WorkMode=2 " + cut, "user ImageMosaic_Status=1", leavesCut},
    {"off, all fit", "user ImageMosaic_Status=1", "user ImageMosaic_Status=0",
     "sends ImageMosaic_Status=0; leaves MainLayer_{ScalingMode/0+ ScalingMode/1+} PIP1_{ScalingMode/0+ "
     "ScalingMode/1+}" +
         pageOff},
    {"off, output too large", "user ImageMosaic_Status=1; OutputWidth=3840", "user ImageMosaic_Status=0",
     "sends ImageMosaic_Status=0; leaves PIP1_{ScalingMode/0- ScalingMode/1+} PIP2_{ScalingMode/0- "
     "ScalingMode/1+}"},
    {"off, input too large", "user ImageMosaic_Status=1; PIP1_InputSource=3 PIP2_InputSource=3",
     "user ImageMosaic_Status=0",
     "sends ImageMosaic_Status=0; leaves PIP1_{ScalingMode/0+ ScalingMode/1-} PIP2_{ScalingMode/0+ "
     "ScalingMode/1-}"},
    {"off, what a crop leaves of it",
     "user ImageMosaic_Status=1; PIP1_InputSource=3 PIP1Crop_{Status=1 HorWidth=1000}",
     "user ImageMosaic_Status=0", "sends ImageMosaic_Status=0; leaves PIP1_ScalingMode/1+"},
};
} // namespace

class TestApplySplicing : public CaseTest
{
    EngineRig *makeRig() const override { return new LayerRig; }
    void begin() override { static_cast<LayerRig *>(m_rig)->start(); }
    CaseLines lines() const override { return table; }
};

FPD_TEST(TestApplySplicing)
