#include "menu/itemindex.h"
#include "tables.h"

// All items, one row an item. The helper functions name the kind of a row and take, in this order, its
// number, its tag, what its kind needs, and its default. Families of twins stand once, as a function of their
// member.

#include <QStringList>
#include <algorithm>
#include <initializer_list>
#include <vector>

namespace VASK
{
namespace
{
// All constants of this file are built by the compiler: the maps are filled before main, in no known order of
// files.
constexpr const char *iconEdit = ":/resource/image/mainMenu/edit.png";
constexpr const char *iconDropDown = ":/resource/image/mainMenu/drop_down.png";
constexpr const char *iconArrow = ":/resource/image/mainMenu/arrow.png";
constexpr const char *iconPopup = ":/resource/image/mainMenu/popup.png";
constexpr const char *iconHook = ":/resource/image/mainMenu/hook.png";

using Texts = std::initializer_list<const char *>;

constexpr unsigned int tallRow = 72;     ///< pixels, a note of two lines
constexpr unsigned int pictureRow = 108; ///< pixels, a row with pictures

/// A row of the table in the making.
struct Item : ST_ItemInfo {
    Item(ENUM_MenuIndex number, const QString &label, const QString &defaultValue, const QString &right = {})
    {
        index = number;
        tag = label;
        value = defaultValue;
        iconRight = right;
        enable = true;
    }
    Item withIcon(const QString &file) const
    {
        Item item = *this;
        item.icon = imgPath + file;
        return item;
    }
    Item withUnit(const QString &text) const
    {
        Item item = *this;
        item.unit = text;
        return item;
    }
    Item disabled() const
    {
        Item item = *this;
        item.enable = false;
        return item;
    }
    Item high(unsigned int pixels, bool canFocus) const
    {
        Item item = *this;
        item.rowHeight = pixels;
        item.focusable = canFocus;
        return item;
    }
};

using Items = std::vector<Item>;

Item entry(ENUM_MenuIndex index, const QString &tag)
{
    return Item(index, tag, {}, iconArrow);
}

/// A part of the device in the self test: opens its details on one page and tells its state on another.
Item checkedPart(ENUM_MenuIndex index, const QString &tag)
{
    return Item(index, tag, "正常", iconArrow);
}

/// A button that opens a dialog before it acts.
Item question(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value, iconPopup);
}

Item information(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value);
}

Item action(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value);
}

Item tip(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value).high(tallRow, false);
}

Item number(ENUM_MenuIndex index, const QString &tag, const QString &min, const QString &max,
            const QString &step, const QString &value)
{
    Item item(index, tag, value, iconEdit);
    item.min = min;
    item.max = max;
    item.step = step;
    return item;
}

Item address(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value, iconEdit);
}

Item withOptions(Item item, const QStringList &options)
{
    for (int i = 0; i < options.size(); ++i) {
        item.params.insert(QString::number(i), options.at(i));
        item.params1.insert(QString::number(i), optionEnable);
    }
    return item;
}

Item list(ENUM_MenuIndex index, const QString &tag, Texts options, const QString &value)
{
    QStringList texts;
    for (const char *text : options)
        texts << text;
    return withOptions(Item(index, tag, value, iconDropDown), texts);
}

/// A choice of count pictures, whose files are numbered on from first in the place of %1.
Item pictures(ENUM_MenuIndex index, const QString &tag, const QString &file, int first, int count,
              const QString &value)
{
    constexpr int columns = 3;
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths << imgPath + QString(file).replace("%1", QString::number(first + i));
    Item item = withOptions(Item(index, tag, value, iconDropDown), paths);
    item.col = columns;
    return item;
}

Item check(ENUM_MenuIndex index, const QString &tag, const QString &choice, const QString &value)
{
    Item item(index, tag, value, iconHook);
    item.choice = choice;
    return item;
}

Item fourPictures(ENUM_MenuIndex index, const QString &value, const QString &marks)
{
    Item item = Item(index, {}, value).high(pictureRow, false);
    item.pixValue = marks;
    return item;
}

Item mosaic(ENUM_MenuIndex index, const QString &tag, const QString &value, const QString &size)
{
    Item item = Item(index, tag, value, iconDropDown).high(pictureRow, true);
    item.perBase = QString();
    item.pixValue = size;
    return item;
}

/// A value that no row shows.
Item hidden(ENUM_MenuIndex index, const QString &tag, const QString &value)
{
    return Item(index, tag, value);
}

Item hiddenNumber(ENUM_MenuIndex index, const QString &tag, const QString &min, const QString &max,
                  const QString &value)
{
    return number(index, tag, min, max, "1", value);
}

constexpr Texts offOn{"Off", "On"};
constexpr Texts inputs{"HDMI1", "HDMI2", "DVI", "SDI"};
constexpr Texts scalings{"FullScreen", "PixeltoPixel", "Custom"};
constexpr Texts priorities{"1", "2", "3"};
constexpr Texts edidKinds{"EDIDStandard", "Custom"};
constexpr Texts resolutions{"1024*768",  "1280*720",  "1280*1024", "1366*768", "1440*900",
                            "1600*1200", "1680*1050", "1920*1080", "1920*1200"};
constexpr Texts extendedResolutions{
    "1024*768",  "1280*720",  "1280*1024", "1366*768",  "1440*900",  "1600*1200", "1680*1050", "1920*1080",
    "1920*1200", "1920*2160", "2048*1080", "2048*1152", "2560*1080", "2560*1600", "3840*1080", "3840*2160"};
constexpr Texts outputRates{"23.98", "24",    "25", "29.97", "30", "47.95", "48",     "50", "59.94",
                            "60",    "71.93", "72", "75",    "85", "100",   "119.88", "120"};
constexpr Texts customRates{"23.98", "24", "25", "29.97", "30", "47.95", "48", "50",
                            "59.94", "60", "72", "75",    "85", "100",   "120"};
constexpr Texts wideRates{"23.98", "24", "25", "29.97", "30", "48", "50", "59.94", "60"};
constexpr Texts edidRates{"30", "50", "59.94", "60"};

/// A layer; the defaults are the window's start, its priority and whether it is on.
Items layerItems(int layer, const QString &status, const QString &x, const QString &y,
                 const QString &priority)
{
    return {
        list(nth(MENU_MainLayer_Status, layer, STRIDE_Layer), "Status", offOn, status),
        list(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer), "InputSource", inputs, "2"),
        list(nth(MENU_MainLayer_ScalingMode, layer, STRIDE_Layer), "ScalingMode", scalings, "2"),
        number(nth(MENU_MainLayer_HorWidth, layer, STRIDE_Layer), "HorWidth", "64", "32768", "1", "800"),
        number(nth(MENU_MainLayer_VerHeight, layer, STRIDE_Layer), "VerHeight", "64", "32768", "1", "600"),
        number(nth(MENU_MainLayer_InitialX, layer, STRIDE_Layer), "InitialX", "-32768", "32768", "1", x),
        number(nth(MENU_MainLayer_InitialY, layer, STRIDE_Layer), "InitialY", "-32768", "32768", "1", y),
        list(nth(MENU_MainLayer_Priority, layer, STRIDE_Layer), "Priority", priorities, priority),
        entry(nth(MENU_MainLayer_InputCrop, layer, STRIDE_Layer), "InputCrop"),
        number(nth(MENU_MainLayer_Opacity, layer, STRIDE_Layer), "Opacity", "0", "100", "1", "100")
            .withUnit("%"),
    };
}

/// The input crop of a layer.
Items cropItems(int layer)
{
    return {
        list(nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop), "Status", offOn, "0"),
        number(nth(MENU_MainLayerCrop_HorWidth, layer, STRIDE_Crop), "HorWidth", "64", "32768", "1", "3840"),
        number(nth(MENU_MainLayerCrop_VerHeight, layer, STRIDE_Crop), "VerHeight", "64", "32768", "1",
               "1080"),
        number(nth(MENU_MainLayerCrop_InitialX, layer, STRIDE_Crop), "InitialX", "0", "32768", "1", "0"),
        number(nth(MENU_MainLayerCrop_InitialY, layer, STRIDE_Crop), "InitialY", "0", "32768", "1", "0"),
        action(nth(MENU_MainLayerCrop_Reset, layer, STRIDE_Crop), "Reset", "0"),
    };
}

/// An input's page.
Items inputItems(int input, const QString &colourSampling)
{
    return {
        entry(nth(MENU_HDMI1_EDID, input, STRIDE_Input), "EDID"),
        entry(nth(MENU_HDMI1_InputColor, input, STRIDE_Input), "InputColor"),
        list(nth(MENU_HDMI1_LimitedtoFull, input, STRIDE_Input), "LimitedtoFull", offOn, "0"),
        entry(nth(MENU_HDMI1_Attributes, input, STRIDE_Input), "Attributes"),
        information(nth(MENU_HDMI1_ColorSample, input, STRIDE_Input), "ColorSample", colourSampling),
    };
}

/// EDID and picture of an input.
Items pictureItems(int input, Texts inputResolutions)
{
    return {
        list(nth(MENU_HDMI1_EDIDChoice, input, STRIDE_InputPicture), "EDID", edidKinds, "0"),
        list(nth(MENU_HDMI1_EDIDResolution, input, STRIDE_InputPicture), "Resolution", inputResolutions, "7"),
        list(nth(MENU_HDMI1_EDIDFrameRate, input, STRIDE_InputPicture), "FrameRate", edidRates, "3"),
        action(nth(MENU_HDMI1_EDIDApply, input, STRIDE_InputPicture), "Apply", "0"),
        number(nth(MENU_HDMI1_EDIDWidth, input, STRIDE_InputPicture), "Width", "800", "3840", "2", "1920"),
        number(nth(MENU_HDMI1_EDIDHeight, input, STRIDE_InputPicture), "Height", "600", "3840", "1", "1080"),
        list(nth(MENU_HDMI1_EDIDCustomRate, input, STRIDE_InputPicture), "FrameRate", customRates, "9"),
        number(nth(MENU_HDMI1_Brightness, input, STRIDE_InputPicture), "Brightness", "0", "100", "1", "50"),
        number(nth(MENU_HDMI1_Contrast, input, STRIDE_InputPicture), "Contrast", "0", "100", "1", "50"),
        number(nth(MENU_HDMI1_Saturation, input, STRIDE_InputPicture), "Saturation", "0", "100", "1", "50"),
        number(nth(MENU_HDMI1_Hue, input, STRIDE_InputPicture), "Hue", "-180", "180", "1", "0"),
        action(nth(MENU_HDMI1_ColorReset, input, STRIDE_InputPicture), "Reset", "0"),
    };
}

/// The custom scaling of a layer.
Items customScalingItems(int layer, const QString &name)
{
    auto number = [&](ENUM_MenuIndex first, const QString &what, const QString &min, const QString &value) {
        return hiddenNumber(nth(first, layer, STRIDE_CustomScaling), name + what, min, "32768", value);
    };
    return {
        number(MENU_MainLayer_CustomWidth, "自定义缩放宽度", "64", "800"),
        number(MENU_MainLayer_CustomHeight, "自定义缩放高度", "64", "600"),
        number(MENU_MainLayer_CustomX, "自定义缩放水平起始", "-32767", "0"),
        number(MENU_MainLayer_CustomY, "自定义缩放垂直起始", "-32767", "0"),
    };
}

/// The advanced configuration of an Ethernet port, counted from 0.
Items advancedPortItems(int port)
{
    const QString name = QString("高级配屏网口%1").arg(port + 1);
    return {
        hiddenNumber(nth(MENU_AdvancedPort1_Rows, port, STRIDE_AdvancedPort), name + "行数", "1", "255", "1"),
        hiddenNumber(nth(MENU_AdvancedPort1_Cols, port, STRIDE_AdvancedPort), name + "列数", "1", "255", "1"),
        hiddenNumber(nth(MENU_AdvancedPort1_X, port, STRIDE_AdvancedPort), name + "水平起始", "0", "8192",
                     "0"),
        hiddenNumber(nth(MENU_AdvancedPort1_Y, port, STRIDE_AdvancedPort), name + "垂直起始", "0", "8192",
                     "0"),
        hiddenNumber(nth(MENU_AdvancedPort1_FlowWay, port, STRIDE_AdvancedPort), name + "走线方式", "0", "7",
                     "0"),
    };
}

/// The frame rates that an output resolution allows; value is the default's text, looked up among them.
Item rateList(ENUM_MenuIndex index, const QString &tag, Texts rates, const QString &rate)
{
    const auto found = std::find(rates.begin(), rates.end(), rate);
    return list(index, tag, rates, QString::number(found - rates.begin()));
}

// Main menu
Items mainMenuItems()
{
    return {
        number(MENU_ScreenBrightness, "ScreenBrightness", "0", "100", "1", "60")
            .withUnit("%")
            .withIcon("mainMenu/brightness.png"),
        entry(MENU_ScreenSetting, "ScreenSetting"),
        entry(MENU_LayerSettings, "LayerSettings").withIcon("mainMenu/layer.png"),
        entry(MENU_InputSettings, "InputSettings").withIcon("mainMenu/input.png"),
        entry(MENU_OSDSettings, "OSDSettings").withIcon("mainMenu/osd.png"),
        entry(MENU_PresetSettings, "PresetSettings").withIcon("mainMenu/preset.png"),
        entry(MENU_ImageMosaic, "ImageMosaic"),
        entry(MENU_DisplayControl, "DisplayControl").withIcon("mainMenu/display.png"),
        entry(MENU_AdvancedSetting, "AdvancedSetting").withIcon("mainMenu/advanced.png"),
        entry(MENU_SystemSetting, "SystemSetting").withIcon("mainMenu/system.png"),
        entry(MENU_FactoryReset, "FactoryReset").withIcon("mainMenu/reset.png"),
        entry(MENU_CommunicationSettings, "CommunicationSettings").withIcon("mainMenu/communication.png"),
        entry(MENU_WorkingMode, "WorkingMode"),
        entry(MENU_Language, "Language"),
    };
}

// Second level
Items secondLevelItems()
{
    return {
        entry(MENU_QuickConfiguration, "QuickConfiguration"),
        entry(MENU_LoadCabFiles, "LoadCabFiles"),
        question(MENU_SavetoRVCard, "SavetoRVCard", ""),
        entry(MENU_MoreSettings, "MoreSettings"),
        entry(MENU_MainLayer, "MainLayer"),
        entry(MENU_PIP1, "PIP1"),
        entry(MENU_PIP2, "PIP2"),
        list(MENU_Layout, "Layout", {"1:1:1", "1:2:1", "Custom"}, "2"),
        list(MENU_OSDState, "OSDState", offOn, "0"),
        pictures(MENU_OSDChoice, "OSDChoice", "osd/OSD_%1_normal.png", 1, 8, "0"),
        number(MENU_OSDInitialX, "InitialX", "-32767", "32768", "1", "0"),
        number(MENU_OSDInitialY, "InitialY", "-32767", "32768", "1", "0"),
        list(MENU_OSDPriority, "Priority", {"LOW", "HIGH"}, "1"),
        entry(MENU_HDMI1, "HDMI1"),
        entry(MENU_HDMI2, "HDMI2"),
        entry(MENU_DVI, "DVI"),
        entry(MENU_SDI, "SDI"),
        list(MENU_MainLayerTransition, "MainLayerTransition", {"Fade", "Cut"}, "0"),
        number(MENU_TransitionDuration, "TransitionDuration", "0.5", "2.0", "0.1", "0.5"),
        check(MENU_Normal, "Normal", "1", ""),
        check(MENU_Freeze, "Freeze", "0", ""),
        check(MENU_FTB, "FTB", "0", ""),
        number(MENU_FTBDuration, "FTBDuration", "0.0", "2.0", "0.1", "0"),
        entry(MENU_TestPattern, "TestPattern"),
    };
}

/// The pages below the main menu from the presets on.
Items deviceItems()
{
    return {
        question(MENU_Preset1, "Preset1", "Blank"),
        question(MENU_Preset2, "Preset2", "Blank"),
        question(MENU_Preset3, "Preset3", "Blank"),
        question(MENU_Preset4, "Preset4", "Blank"),
        question(MENU_Preset5, "Preset5", "Blank"),
        question(MENU_Preset6, "Preset6", "Blank"),
        question(MENU_Preset7, "Preset7", "Blank"),
        question(MENU_Preset8, "Preset8", "Blank"),
        question(MENU_Preset9, "Preset9", "Blank"),
        question(MENU_Preset10, "Preset10", "Blank"),
        list(MENU_ImageMosaic_Status, "Status", offOn, "0"),
        number(MENU_ImageMosaic_TotalHPixels, "TotalHPixels", "64", "32768", "1", "128").disabled(),
        number(MENU_ImageMosaic_TotalVPixels, "TotalVPixels", "64", "32768", "1", "128").disabled(),
        number(MENU_ImageMosaic_LoadAreaWidth, "LoadAreaWidth", "64", "32768", "1", "128").disabled(),
        number(MENU_ImageMosaic_LoadAreaHeight, "LoadAreaHeight", "64", "32768", "1", "128").disabled(),
        number(MENU_ImageMosaic_LoadAreaInitialX, "LoadAreaInitialX", "-32767", "32768", "1", "0").disabled(),
        number(MENU_ImageMosaic_LoadAreaInitialY, "LoadAreaInitialY", "-32767", "32768", "1", "0").disabled(),
        action(MENU_ImageMosaic_Reset, "Reset", "0").disabled(),
        list(MENU_DeviceBackup, "DeviceBackup", {"SetasPrimary", "SetasBackup"}, "0"),
        entry(MENU_InputBackupEntry, "InputBackup"),
        entry(MENU_Fn, "Fn"),
        entry(MENU_Synchronization, "Synchronization"),
        entry(MENU_HDMIOutput, "HDMIOutput"),
        entry(MENU_Audio, "Audio"),
        list(MENU_HDCP, "HDCP", offOn, "0"),
        list(MENU_LowLatency, "LowLatency", offOn, "0"),
        entry(MENU_Mode3D, "Mode3D"),
        list(MENU_OPT2Mode, "OPT2Mode", {"Backup", "Copy"}, "0"),
        number(MENU_ReturntoHome, "ReturntoHome", "30", "3600", "1", "60"),
        question(MENU_SelfTest, "SelfTest", ""),
        entry(MENU_AboutUs, "AboutUs"),
        question(MENU_SaveIP, "SaveIP", ""),
        question(MENU_SaveUserData, "SaveUserData", ""),
        question(MENU_ResetAll, "ResetAll", ""),
        tip(MENU_TipReset, "TipReset", "0"),
        list(MENU_CommunicationMode, "CommunicationMode", {"LANPreferred", "USBPreferred"}, "0"),
        entry(MENU_NetworkSettings, "NetworkSettings"),
        check(MENU_VideoController, "VideoController", "1", ""),
        check(MENU_FiberConverter, "FiberConverter", "0", ""),
        check(MENU_SendingCard, "SendingCard", "0", ""),
        check(MENU_LanguageEn, "LanguageEn", "0", ""),
        check(MENU_LanguageZh, "LanguageZh", "1", ""),
        hidden(MENU_RestoreDone, {}, "0"),
    };
}

// Screen configuration and LED screen colour
Items screenItems()
{
    return {
        number(MENU_Quick_CabinetRow, "CabinetRow", "1", "255", "1", "1"),
        number(MENU_Quick_CabinetCol, "CabinetCol", "1", "255", "1", "1"),
        number(MENU_Quick_PortOneCab, "PortOneCab", "1", "65535", "1", "1"),
        pictures(MENU_Quick_FlowWay, "FlowWay", "screen/RoutingWay/RoutingWay_0%1.png", 0, 8, "0"),
        question(MENU_CabinetFile1, "104.rcfgx", ""),
        question(MENU_CabinetFile2, "105.rcfgx", ""),
        question(MENU_CabinetFile3, "106.rcfgx", ""),
        question(MENU_CabinetFile4, "107.rcfgx", ""),
        question(MENU_CabinetFile5, "108.rcfgx", ""),
        question(MENU_CabinetFile6, "109.rcfgx", ""),
        question(MENU_CabinetFile7, "110.rcfgx", ""),
        question(MENU_CabinetFile8, "111.rcfgx", ""),
        entry(MENU_AdvancedCfg, "AdvancedCfg"),
        list(MENU_Mapping, "Mapping", offOn, "0"),
        entry(MENU_LEDScreenColor, "LEDScreenColor"),
        list(MENU_OutputFrameRate, "OutputFrameRate", outputRates, "9"),
        list(MENU_Advanced_Status, "Status", offOn, "0"),
        number(MENU_Advanced_EthernetPort, "EthernetPort", "1", "6", "1", "1").disabled(),
        number(MENU_Advanced_CabinetRow, "CabinetRow", "1", "255", "1", "1").disabled(),
        number(MENU_Advanced_CabinetCol, "CabinetCol", "1", "255", "1", "1").disabled(),
        number(MENU_Advanced_HorOffset, "HorOffset", "0", "10240", "1", "0").disabled(),
        number(MENU_Advanced_VerOffset, "VerOffset", "0", "8192", "1", "0").disabled(),
        pictures(MENU_Advanced_FlowWay, "FlowWay", "screen/RoutingWay/RoutingWay_0%1.png", 0, 8, "0")
            .disabled(),
        action(MENU_Advanced_Apply, "Apply", "0").disabled(),
        action(MENU_Advanced_Reset, "Reset", "0"),
        number(MENU_Color_Gamma, "Gamma", "1.0", "4.0", "0.1", "2.8"),
        list(MENU_Color_ColorTemp, "ColorTemp", {"Standard", "Cool", "Warm", "Custom"}, "0"),
        number(MENU_Color_R, "R", "0", "255", "1", "255").disabled(),
        number(MENU_Color_G, "G", "0", "255", "1", "249").disabled(),
        number(MENU_Color_B, "B", "0", "255", "1", "253").disabled(),
        action(MENU_Color_Reset, "Reset", "0"),
    };
}

// SDI input, input mosaic, audio of the inputs, input backup
Items inputExtraItems()
{
    return {
        entry(MENU_SDI_InputColor, "InputColor"),
        entry(MENU_SDI_Attributes, "Attributes"),
        information(MENU_SDI_ColorSample, "ColorSample", "RGB 4:4:4"),
        entry(MENU_MosaicSplit, "MosaicSplit"),
        entry(MENU_MosaicBackup, "MosaicBackup"),
        number(MENU_SDI_Brightness, "Brightness", "0", "100", "1", "50"),
        number(MENU_SDI_Contrast, "Contrast", "0", "100", "1", "50"),
        number(MENU_SDI_Saturation, "Saturation", "0", "100", "1", "50"),
        number(MENU_SDI_Hue, "Hue", "-180", "180", "1", "0"),
        action(MENU_SDI_ColorReset, "Reset", "0"),
        list(MENU_Mosaic_Layout, "MosaicLayout", {"1x2", "2x1"}, "1"),
        number(MENU_Mosaic_Width, "Width", "64", "2048", "2", "1920"),
        number(MENU_Mosaic_Height, "Height", "64", "2048", "1", "1080"),
        mosaic(MENU_Mosaic_Arrangement, "Arrangement", "0", "3840x1080"),
        action(MENU_Mosaic_Apply, "Apply", "0"),
        action(MENU_Mosaic_Reset, "Reset", "0"),
        list(MENU_AudioInput_HDMI1, "HDMI1", {"伴随", "Audio In"}, "0"),
        list(MENU_AudioInput_HDMI2, "HDMI2", {"伴随", "Audio In"}, "0"),
        list(MENU_AudioInput_DVI, "DVI", {"无", "Audio In"}, "0"),
        list(MENU_AudioInput_DVI2, "DVI2", {"无", "Audio In"}, "0"),
        list(MENU_AudioInput_SDI, "SDI", {"无", "Audio In"}, "0"),
        list(MENU_AudioInput_OPT1_1, "OPT1-1", {"无", "Audio In"}, "0"),
        list(MENU_AudioInput_OPT1_2, "OPT1-2", {"无", "Audio In"}, "0"),
        list(MENU_AudioInput_Mosaic, "MOSAIC", {"无", "Audio In"}, "0"),
        list(MENU_InputBackup_Status, "InputBackup", offOn, "0"),
        list(MENU_InputBackup_HDMI1, "HDMI1", offOn, "0"),
        list(MENU_InputBackup_DVI1, "DVI1", offOn, "0"),
        list(MENU_InputBackup_Mosaic, "MOSAIC(H)", offOn, "0"),
        action(MENU_InputBackup_Reset, "Reset", "0"),
    };
}

// Test pattern
Items testPatternItems()
{
    return {
        list(MENU_Test_Type, "Type", {"PureColor", "Gradient", "Grid"}, "0"),
        pictures(MENU_Test_PureColor, "PureColor", "imageControl/pure_0%1.png", 0, 8, "5"),
        pictures(MENU_Test_Gradient, "Gradient", "imageControl/grad_0%1.png", 0, 8, "0"),
        pictures(MENU_Test_Grid, "Grid", "imageControl/grid_0%1.png", 1, 6, "0"),
        pictures(MENU_Test_VaskImage, "维斯克测试图", "imageControl/custom/VaskTestImage.png", 0, 1, "0"),
        entry(MENU_Test_Custom, "自定义"),
        number(MENU_Test_Brightness, "Brightness", "1", "4", "1", "3"),
        number(MENU_Test_Spacing, "Spacing", "1", "8", "1", "5"),
        number(MENU_Test_Speed, "Speed", "1", "4", "1", "3"),
        fourPictures(MENU_Test_CustomPictures, "1", "0001"),
        action(MENU_Test_Snapshot, "抓拍", "0"),
        question(MENU_Test_CustomPicture1, "自定义测视图1", "Blank"),
        question(MENU_Test_CustomPicture2, "自定义测视图2", "Blank"),
        question(MENU_Test_CustomPicture3, "自定义测视图3", "Blank"),
        question(MENU_Test_CustomPicture4, "自定义测视图4", "Blank"),
    };
}

// Fn key, synchronisation, output, audio, 3D
Items functionItems()
{
    return {
        check(MENU_Fn_Synchronization, "Synchronization", "1", "1"),
        check(MENU_Fn_HDMIOutput, "HDMIOutput", "0", ""),
        check(MENU_Fn_FTB, "FTB", "0", ""),
        check(MENU_Fn_Freeze, "Freeze", "0", ""),
        check(MENU_Fn_TestPattern, "TestPattern", "0", ""),
        list(MENU_Sync_Status, "Status", offOn, "0"),
        list(MENU_Sync_Source, "Source", inputs, "2"),
        list(MENU_Output_Mode, "Mode", {"Monitor", "Video Output"}, "0"),
        list(MENU_Output_Resolution, "Resolution", resolutions, "7"),
        list(MENU_Output_FrameRate, "FrameRate", wideRates, "8"),
        action(MENU_Output_Apply, "Apply", "0"),
        list(MENU_Audio_AudioOutput, "AudioOutput",
             {"AudioOutputOFF", "AudioOutputMainLay", "AudioOutputPIP1", "AudioOutputPIP2", "Audio In"}, "1"),
        number(MENU_Audio_Volume, "Volume", "0", "100", "1", "50"),
        entry(MENU_Audio_Inputs, "输入源音频设置"),
        list(MENU_Mode3D_Status, "Status", offOn, "0"),
        list(MENU_Mode3D_Format, "Format3D", {"SidebySide", "TopandBottom", "FrameSequential"}, "0"),
        list(MENU_Mode3D_EyePriority, "EyePriority", {"LeftEye", "RightEye"}, "0"),
        entry(MENU_Mode3D_MoreSettings, "MoreSettings"),
        tip(MENU_Mode3D_Tip, "Tip3D", "0"),
        number(MENU_Mode3D_RightEyeStart, "RightEyeStart", "800", "4092", "1", "960"),
        number(MENU_Mode3D_SignalDelayTime, "SignalDelayTime", "800", "65535", "1", "7000"),
        list(MENU_Mode3D_ThirdPartyEmitter, "ThirdPartyEmitter", offOn, "0"),
    };
}

// Self test, About, network, hidden menus, versions
Items systemItems()
{
    return {
        entry(MENU_SelfTest_ProgramVersion, "ProgramVersion"),
        checkedPart(MENU_SelfTest_FPGA, "FPGA"),
        checkedPart(MENU_SelfTest_ARM, "ARM"),
        checkedPart(MENU_SelfTest_MCU, "MCU"),
        information(MENU_About_HardwareVersion, "HardwareVersion", ""),
        information(MENU_About_VersionValue, "", "V1.0.0.0"),
        information(MENU_About_OfficialWebsite, "OfficialWebsite", ""),
        information(MENU_About_WebsiteValue, "", "OfficialWebsiteContext"),
        information(MENU_About_TechnicalSupport, "TechnicalSupport", ""),
        information(MENU_About_SupportValue, {}, "support@example.com"),
        list(MENU_Net_NetMode, "NetMode", {"Manual", "Automatic"}, "0"),
        address(MENU_Net_IPAddress, "IPAddress", "192.168.0.10"),
        address(MENU_Net_SubnetMask, "SubnetMask", "255.255.255.0"),
        address(MENU_Net_Gateway, "Gateway", "192.168.0.1"),
        action(MENU_Net_Apply, "Apply", "0"),
        action(MENU_Net_Reset, "NetReset", "0"),
        list(MENU_HDCPMemory, "HDCP状态", {"断电不保存", "断电保存"}, "1"),
        question(MENU_ClearAllParameters, "清除所有参数", ""),
        list(MENU_BootLogo, "开机画面", {"关闭", "开启"}, "1"),
        list(MENU_MakerSign, "厂商标识", {"关闭", "开启"}, "1"),
        information(MENU_FPGAVersion, "FPGA", "V1.0.0.0"),
        information(MENU_MCUVersion, "MCU", "V1.0.0.0"),
    };
}

// Values held across resets
Items heldItems()
{
    return {
        hidden(MENU_ScreenConfigKind, "快捷/高级配屏标志", "1"),
        hiddenNumber(MENU_MosaicLayout0_Width, "输入拼接模式0宽度暂存", "64", "2048", "1920"),
        hiddenNumber(MENU_MosaicLayout0_Height, "输入拼接模式0高度暂存", "64", "2048", "1080"),
        hidden(MENU_MosaicLayout0_Source, "输入拼接模式0源暂存", "0"),
        hiddenNumber(MENU_MosaicLayout1_Width, "输入拼接模式1宽度暂存", "64", "2048", "1920"),
        hiddenNumber(MENU_MosaicLayout1_Height, "输入拼接模式1高度暂存", "64", "2048", "1080"),
        hidden(MENU_MosaicLayout1_Source, "输入拼接模式1源暂存", "0"),
        hidden(MENU_TransitionMemory, "切源特效暂存", "0"),
        hidden(MENU_FnMode, "FN模式暂存", "0"),
        hidden(MENU_OutputMode, "输出模式暂存", "0"),
        hidden(MENU_WorkMode, "设备工作模式暂存", "0"),
        hidden(MENU_SoftwareConfigured, "软件配屏标志暂存", "0"),
        hidden(MENU_DhcpDone, "DHCP获取完成标志暂存", "0"),
        hidden(MENU_ScreenLock, "锁屏", "0"),
    };
}

// Frame rates of the output resolutions
Items rateItems()
{
    return {
        rateList(MENU_Rates_1024x768, "1024*768帧率表", {"48", "50", "59.94", "60", "75", "85"}, "60"),
        rateList(MENU_Rates_1280x720, "1280*720帧率表",
                 {"23.98", "24", "25", "29.97", "30", "48", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_1280x1024, "1280*1024帧率表", {"48", "50", "59.94", "60", "75", "85"}, "60"),
        rateList(MENU_Rates_1366x768, "1366*768帧率表", {"50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_1440x900, "1440*900帧率表", {"60", "75", "85"}, "60"),
        rateList(MENU_Rates_1600x1200, "1600*1200帧率表", {"48", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_1680x1050, "1680*1050帧率表", {"60"}, "60"),
        rateList(MENU_Rates_1920x1080, "1920*1080帧率表",
                 {"23.98", "24", "25", "29.97", "30", "48", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_1920x1200, "1920*1200帧率表", {"50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_1920x2160, "1920*2160帧率表",
                 {"23.98", "24", "25", "29.97", "30", "48", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_2048x1080, "2048*1080帧率表", {"30", "48", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_2048x1152, "2048*1152帧率表", {"30", "60"}, "60"),
        rateList(MENU_Rates_2560x1080, "2560*1080帧率表", {"50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_2560x1600, "2560*1600帧率表", {"50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_3840x1080, "3840*1080帧率表", {"30", "50", "59.94", "60"}, "60"),
        rateList(MENU_Rates_3840x2160, "3840*2160帧率表", {"30"}, "30"),
    };
}
} // namespace

QVector<ST_ItemInfo> menuItemRows()
{
    constexpr int portCount = 10;
    std::vector<Items> groups{
        mainMenuItems(),
        secondLevelItems(),
        deviceItems(),
        screenItems(),
        layerItems(0, "1", "0", "0", "0"),
        layerItems(1, "0", "100", "50", "1"),
        layerItems(2, "0", "200", "100", "2"),
        cropItems(0),
        cropItems(1),
        cropItems(2),
        inputItems(0, "RGB4:4:4"),
        inputItems(1, "YCbCr 4:4:4"),
        inputItems(2, "RGB 4:4:4"),
        inputItems(3, "RGB 4:4:4"),
        pictureItems(0, resolutions),
        pictureItems(1, resolutions),
        pictureItems(2, resolutions),
        pictureItems(3, extendedResolutions),
        inputExtraItems(),
        testPatternItems(),
        functionItems(),
        systemItems(),
        customScalingItems(0, "主窗口"),
        customScalingItems(1, "PIP1"),
        customScalingItems(2, "PIP2"),
        heldItems(),
        rateItems(),
    };
    for (int port = 0; port < portCount; ++port)
        groups.push_back(advancedPortItems(port));

    QVector<ST_ItemInfo> rows;
    for (const Items &group : groups)
        for (const Item &item : group)
            rows.push_back(item);
    return rows;
}

QMap<ENUM_MenuIndex, ST_ItemInfo> menuItems()
{
    QMap<ENUM_MenuIndex, ST_ItemInfo> items;
    for (const ST_ItemInfo &item : menuItemRows())
        items.insert(item.index, item);
    return items;
}
} // namespace VASK
