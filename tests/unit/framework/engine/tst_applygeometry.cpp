// How a layer is scaled, where it stands, and which part of its input it shows. The three layers are one:
// each rule stands for one of them, and each kind of item comes with more than one layer.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"
#include "tests/unit/rig/layerrig.h"

using namespace VASK;

namespace
{
const QString free = " MainLayer_{HorWidth+ VerHeight+ InitialX+ InitialY+}",
              locked = " MainLayer_{HorWidth- VerHeight- InitialX- InitialY-}";
const QString memory = "MainLayer_{CustomWidth=700 CustomHeight=500 CustomX=-30 CustomY=40} ";
const CaseLines scalingLines{
    {"pixels", "MainLayer_{InitialX=11 InitialY=12 HorWidth+ VerHeight+ InitialX- InitialY-} Layout=0",
     "user MainLayer_ScalingMode=1",
     "sends MainLayer_{VerHeight=720 ScalingMode=1}; leaves MainLayer_{HorWidth=1280 VerHeight=720 "
     "InitialX=11 InitialY=12} Layout=2 MainLayer_{HorWidth- VerHeight- InitialX+ InitialY+}"},
    {"pixels of a crop", "PIP1Crop_{Status=1 HorWidth=400 VerHeight=300} Layout=0", "user PIP1_ScalingMode=1",
     "sends PIP1_{VerHeight=300 ScalingMode=1}; leaves PIP1_{HorWidth=400 VerHeight=300} Layout=2 "
     "PIP1_{HorWidth- VerHeight- InitialX+ InitialY+}"},
    {"pixels, PIP 2", "PIP2Crop_{Status=0 HorWidth=400}", "user PIP2_ScalingMode=1",
     "sends PIP2_{VerHeight=720 ScalingMode=1}; leaves PIP2_{HorWidth=1280 HorWidth- InitialY+}"},
    {"pixels without a size", "PIP1_{InputSource=2 ScalingMode=1} Layout=0", "user PIP1_ScalingMode=1",
     "sends PIP1_{VerHeight=1080 ScalingMode=1}; leaves PIP1_{HorWidth=1920 VerHeight=1080} Layout=0"},
    {"full screen", "MainLayer_{Status=1 Priority=0} LowestLayer=9 MainLayer_InitialX=3" + free,
     "user MainLayer_ScalingMode=0",
     "sends MainLayer_{InitialY=0 ScalingMode=0}; leaves LowestLayer=0 MainLayer_{HorWidth=1920 "
     "VerHeight=1080 InitialX=0 InitialY=0}" +
         locked},
    {"full screen, PIP 2", "PIP2_CustomWidth=123", "user PIP2_ScalingMode=0",
     "sends PIP2_{InitialY=0 ScalingMode=0}; leaves PIP2_{HorWidth=1920 CustomWidth=123 HorWidth- "
     "InitialY-}"},
    {"custom", memory + "MainLayer_ScalingMode=0" + locked, "user MainLayer_ScalingMode=2",
     "sends MainLayer_{InitialY=40 ScalingMode=2}; leaves MainLayer_{HorWidth=700 VerHeight=500 InitialX=-30 "
     "InitialY=40}" +
         free},
    {"custom, PIP 1", "PIP1_{ScalingMode=0 CustomWidth=701 CustomY=41}", "user PIP1_ScalingMode=2",
     "sends PIP1_{InitialY=41 ScalingMode=2}; leaves PIP1_{HorWidth=701 HorWidth+}"},
    // A sending card has no size of its own to give.
    {"custom of a card",
     memory + "MainLayer_ScalingMode=0 WorkMode=2 MainLayer_{HorWidth=1920 VerHeight=1080}" + locked,
     "user MainLayer_ScalingMode=2",
     "sends MainLayer_{InitialY=40 ScalingMode=2}; leaves MainLayer_{HorWidth=1920 VerHeight=1080 "
     "InitialX=-30 InitialY=40 HorWidth- VerHeight- InitialX+ InitialY+}"},
    {"custom already", memory + "MainLayer_{HorWidth=900 InitialY=2}", "user MainLayer_ScalingMode=2",
     "sends MainLayer_ScalingMode=2; leaves MainLayer_{HorWidth=900 InitialY=2}"},
    {"custom", memory + "MainLayer_{HorWidth=900 InitialY=2}" + locked, "device MainLayer_ScalingMode=2",
     "tells MainLayer_ScalingMode=2; leaves MainLayer_{HorWidth=900 InitialY=2}" + free},
    {"custom of a card", "WorkMode=2" + locked, "device MainLayer_ScalingMode=2",
     "tells MainLayer_ScalingMode=2; leaves MainLayer_{HorWidth- VerHeight- InitialX+ InitialY+}"},
    {"custom, PIP 2", "PIP2_{HorWidth- InitialY-}", "device PIP2_ScalingMode=2",
     "tells PIP2_ScalingMode=2; leaves PIP2_{HorWidth+ InitialY+}"},
};

const CaseLines windowLines{
    {"width", "MainLayer_CustomWidth=111 Layout=1", "user MainLayer_HorWidth=333",
     "sends MainLayer_HorWidth=333; leaves MainLayer_{ScalingMode=2 CustomWidth=333} Layout=2"},
    {"height, PIP 1", "Layout=1", "user PIP1_VerHeight=333",
     "sends PIP1_VerHeight=333; leaves PIP1_CustomHeight=333 Layout=2"},
    {"x, PIP 2", "Layout=1", "user PIP2_InitialX=333",
     "sends PIP2_InitialX=333; leaves PIP2_CustomX=333 Layout=2"},
    {"y", "Layout=1", "user MainLayer_InitialY=333",
     "sends MainLayer_InitialY=333; leaves MainLayer_CustomY=333 Layout=2"},
    {"start, pixel for pixel", "MainLayer_{ScalingMode=1 CustomX=111} Layout=1",
     "user MainLayer_InitialX=333",
     "sends MainLayer_InitialX=333; leaves MainLayer_{ScalingMode=1 CustomX=111} Layout=2"},
    {"size, pixel for pixel", "PIP1_{ScalingMode=1 CustomWidth=111}", "user PIP1_HorWidth=333",
     "sends PIP1_HorWidth=333; leaves PIP1_{ScalingMode=1 CustomWidth=111}"},

    // A start may be moved pixel for pixel; only a size leaves that.
    {"size, full screen", "MainLayer_{ScalingMode=0 CustomWidth=111}" + locked,
     "device MainLayer_HorWidth=640",
     "tells MainLayer_HorWidth=640; leaves MainLayer_{ScalingMode=2 CustomWidth=640}" + free},
    {"start, full screen", "PIP1_{ScalingMode=0 CustomX=111 HorWidth-}", "device PIP1_InitialX=640",
     "tells PIP1_InitialX=640; leaves PIP1_{ScalingMode=2 CustomX=640 HorWidth+}"},
    {"size, pixel for pixel", "PIP2_{ScalingMode=1 CustomHeight=111 InitialX-}", "device PIP2_VerHeight=640",
     "tells PIP2_VerHeight=640; leaves PIP2_{ScalingMode=2 CustomHeight=640 InitialX+}"},
    {"x, pixel for pixel", "PIP1_{ScalingMode=1 CustomX=111 HorWidth-}", "device PIP1_InitialX=640",
     "tells PIP1_InitialX=640; leaves PIP1_{ScalingMode=1 CustomX=111 HorWidth-}"},
    {"y, pixel for pixel", "MainLayer_{ScalingMode=1 CustomY=111}" + locked, "device MainLayer_InitialY=640",
     "tells MainLayer_InitialY=640; leaves MainLayer_{ScalingMode=1 CustomY=111}" + locked},
    {"y, custom", "MainLayer_InitialY-", "device MainLayer_InitialY=640",
     "tells MainLayer_InitialY=640; leaves MainLayer_{ScalingMode=2 CustomY=640 InitialY-}"},
    // What the device tells is the user's own window from then on, number by number, moved or not.
    {"size as it stands", memory + "MainLayer_{ScalingMode=0 HorWidth=1920} Layout=1" + locked,
     "device MainLayer_HorWidth=1920",
     "tells MainLayer_HorWidth=1920; leaves MainLayer_{ScalingMode=2 CustomWidth=1920 CustomHeight=500 "
     "CustomX=-30 CustomY=40} Layout=2" +
         free},
    {"start as it stands", memory + "PIP1_{ScalingMode=0 InitialX=0} Layout=0 PIP1_HorWidth-",
     "device PIP1_InitialX=0",
     "tells PIP1_InitialX=0; leaves PIP1_{ScalingMode=2 CustomX=0} Layout=2 PIP1_HorWidth+"},

    {"spliced", "ImageMosaic_Status=1", "user MainLayer_HorWidth=3200",
     "sends MainLayer_HorWidth=3200; leaves ImageMosaic_TotalHPixels=3200"},
    {"spliced", "ImageMosaic_Status=1", "device MainLayer_VerHeight=2100",
     "tells MainLayer_VerHeight=2100; leaves ImageMosaic_TotalVPixels=2100"},
    {"spliced, PIP", "ImageMosaic_{Status=1 TotalHPixels=77}", "user PIP1_HorWidth=900",
     "sends PIP1_HorWidth=900; leaves ImageMosaic_TotalHPixels=77"},
    {"not spliced", "ImageMosaic_TotalHPixels=77", "user MainLayer_HorWidth=3200",
     "sends MainLayer_HorWidth=3200; leaves ImageMosaic_TotalHPixels=77"},
    {"sending card", "WorkMode=2", "user MainLayer_InitialX=5", "sends SendingCardX= MainLayer_InitialX=5"},
    {"sending card", "WorkMode=2", "user MainLayer_InitialY=6", "sends SendingCardY= MainLayer_InitialY=6"},
    {"sending card, size", "WorkMode=2", "user MainLayer_HorWidth=700", "sends MainLayer_HorWidth=700"},
    {"sending card, PIP", "WorkMode=2", "user PIP1_InitialX=7", "sends PIP1_InitialX=7"},
};

const CaseLines cropLines{
    {"on", "PIP1_ScalingMode=1 PIP1Crop_{HorWidth=400 VerHeight=300}", "user PIP1Crop_Status=1",
     "sends PIP1_VerHeight=300 PIP1Crop_Status=1; leaves PIP1_{HorWidth=400 VerHeight=300}"},
    {"width while off", "PIP1_{ScalingMode=1 HorWidth=900}", "user PIP1Crop_HorWidth=400",
     "sends PIP1Crop_HorWidth=400; leaves PIP1_HorWidth=900"},
    {"width", "MainLayer_ScalingMode=1 MainLayerCrop_Status=1", "user MainLayerCrop_HorWidth=400",
     "sends MainLayer_HorWidth=400 MainLayerCrop_HorWidth=400; leaves MainLayer_HorWidth=400"},
    // 2000 x 1624 = 3248000 pixels are the most that a PIP scales, 3250000 are too many.
    {"the last that fits", "PIP1Crop_{Status=1 HorWidth=2000} PIP1_ScalingMode/1-",
     "user PIP1Crop_VerHeight=1624", "sends PIP1Crop_VerHeight=1624; leaves PIP1_ScalingMode/1+"},
    {"the first too large", "PIP1Crop_{Status=1 HorWidth=2000} PIP1_{ScalingMode/0+ ScalingMode/1+}",
     "user PIP1Crop_VerHeight=1625",
     "sends PIP1Crop_VerHeight=1625; leaves PIP1_{ScalingMode/0+ ScalingMode/1-}"},
    {"fits, but spliced", "ImageMosaic_Status=1 PIP1Crop_{Status=1 HorWidth=2000} PIP1_ScalingMode/1-",
     "user PIP1Crop_VerHeight=1624", "sends PIP1Crop_VerHeight=1624; leaves PIP1_ScalingMode/1-"},
    {"on, fits", "PIP2Crop_{HorWidth=2000 VerHeight=1624} PIP2_ScalingMode/1-", "user PIP2Crop_Status=1",
     "sends PIP2Crop_Status=1; leaves PIP2_ScalingMode/1+"},
    {"on, too large", "PIP2Crop_{HorWidth=2000 VerHeight=1625} PIP2_ScalingMode/1+", "user PIP2Crop_Status=1",
     "sends PIP2Crop_Status=1; leaves PIP2_ScalingMode/1-"},
    {"off, however large the input", "PIP2_InputSource=3 PIP2Crop_Status=1 PIP2_ScalingMode/1-",
     "user PIP2Crop_Status=0", "sends PIP2Crop_Status=0; leaves PIP2_ScalingMode/1+"},
    {"off, but spliced", "ImageMosaic_Status=1 PIP2Crop_Status=1 PIP2_ScalingMode/1-",
     "user PIP2Crop_Status=0", "sends PIP2Crop_Status=0; leaves PIP2_ScalingMode/1-"},
};
} // namespace

class TestApplyGeometry : public CaseTest
{
    EngineRig *makeRig() const override { return new LayerRig; }
    void begin() override { static_cast<LayerRig *>(m_rig)->start(); }
    CaseLines lines() const override
    {
        static const CaseLines all = scalingLines + windowLines + cropLines;
        return all;
    }
};

FPD_TEST(TestApplyGeometry)
