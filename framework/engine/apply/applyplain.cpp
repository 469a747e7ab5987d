// Items on which nothing depends: the value goes on to the protocol or to the widget.

#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
void applyPlain(ParaChange &change)
{
    change.tail();
}

/// The value is stored and shown nowhere.
void applyStoredOnly(ParaChange &) {}

constexpr ENUM_MenuIndex of(ENUM_MenuIndex first, int distance)
{
    return ENUM_MenuIndex(first + distance);
}

constexpr ApplyCase single(ENUM_MenuIndex index)
{
    return {index, index, applyPlain};
}

constexpr ApplyCase cases[] = {
    {MENU_OSDState, MENU_OSDPriority, applyPlain},
    single(MENU_MainLayerTransition),
    single(MENU_TransitionDuration),
    single(MENU_FTBDuration),
    {MENU_ImageMosaic_LoadAreaInitialX, MENU_ImageMosaic_LoadAreaInitialY, applyPlain},
    single(MENU_HDCP),
    single(MENU_Mapping),
    single(MENU_MainLayer_Opacity),
    single(MENU_PIP1_Opacity),
    single(MENU_PIP2_Opacity),
    single(MENU_HDMI1_LimitedtoFull),
    single(MENU_HDMI2_LimitedtoFull),
    single(MENU_DVI_LimitedtoFull),
    single(MENU_DVI2_LimitedtoFull),
    {MENU_Test_Brightness, MENU_Test_Speed, applyPlain},
    single(MENU_InputBackup_Status),
    single(MENU_Output_FrameRate),
    {MENU_Audio_AudioOutput, MENU_Audio_Volume, applyPlain},
    single(MENU_Mode3D_EyePriority),
    single(MENU_About_VersionValue),
    {MENU_Net_SubnetMask, MENU_Net_Gateway, applyPlain},
    single(MENU_Color_Gamma),
    {MENU_Color_R, MENU_Color_B, applyPlain},
    single(MENU_MainLayerCrop_InitialX),
    single(MENU_PIP1Crop_InitialX),
    single(MENU_PIP2Crop_InitialX),
    {MENU_HDMI1_Brightness, MENU_HDMI1_Hue, applyPlain},
    {MENU_HDMI2_Brightness, MENU_HDMI2_Hue, applyPlain},
    {MENU_DVI_Brightness, MENU_DVI_Hue, applyPlain},
    {MENU_DVI2_Brightness, MENU_DVI2_Hue, applyPlain},
    {MENU_SDI_Brightness, MENU_SDI_Hue, applyPlain},
    {MENU_AudioInput_HDMI1, MENU_AudioInput_Mosaic, applyPlain},
    {PARA_PortActive, of(PARA_PortActive, 5), applyStoredOnly},
};
} // namespace

ApplyFamily plainFamily()
{
    return {cases, int(std::size(cases))};
}
} // namespace VASK
