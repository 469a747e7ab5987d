#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menu/pages/pagerows.h"

namespace VASK::pagerows
{
/// Fn key, synchronisation, output, audio, 3D, network
void addFunctionPages(Pages &pages)
{
    pages[CONFIG_Fn] = page(ENUM_PAGE_Fn, "Fn",
                            numbered({
                                row(ENUM_ROW_Fn_Synchronization, TYPE_CHECKITEM, MENU_Fn_Synchronization),
                                row(ENUM_ROW_Fn_HDMIOutput, TYPE_CHECKITEM, MENU_Fn_HDMIOutput),
                                row(ENUM_ROW_Fn_FTB, TYPE_CHECKITEM, MENU_Fn_FTB),
                                row(ENUM_ROW_Fn_Freeze, TYPE_CHECKITEM, MENU_Fn_Freeze),
                                row(ENUM_ROW_Fn_TestPattern, TYPE_CHECKITEM, MENU_Fn_TestPattern),
                            }));
    pages[CONFIG_Synchronization] = page(ENUM_PAGE_Synchronization, "Synchronization",
                                         numbered({
                                             row(ENUM_ROW_Sync_Status, TYPE_STRINGCOMBOX, MENU_Sync_Status),
                                             row(ENUM_ROW_Sync_Source, TYPE_STRINGCOMBOX, MENU_Sync_Source),
                                         }));
    pages[CONFIG_HDMIOutput] =
        page(ENUM_PAGE_HDMIOutput, "HDMIOutput",
             numbered({
                 row(ENUM_ROW_Output_Mode, TYPE_STRINGCOMBOX, MENU_Output_Mode),
                 row(ENUM_ROW_Output_Resolution, TYPE_STRINGCOMBOX, MENU_Output_Resolution),
                 row(ENUM_ROW_Output_FrameRate, TYPE_STRINGCOMBOX, MENU_Output_FrameRate),
                 row(ENUM_ROW_Output_Apply, TYPE_APPLY, MENU_Output_Apply),
             }));
    pages[CONFIG_Audio] =
        page(ENUM_PAGE_Audio, "Audio",
             numbered({
                 row(ENUM_ROW_Audio_AudioOutput, TYPE_STRINGCOMBOX, MENU_Audio_AudioOutput),
                 row(ENUM_ROW_Audio_Volume, TYPE_INTADJUST, MENU_Audio_Volume),
                 subPage(ENUM_ROW_Audio_Inputs, ENUM_PAGE_AudioInputs, MENU_Audio_Inputs, CONFIG_AudioInputs),
             }));
    pages[CONFIG_AudioInputs] =
        page(ENUM_PAGE_AudioInputs, "输入源音频设置",
             numbered({
                 row(ENUM_ROW_AudioInput_HDMI1, TYPE_STRINGCOMBOX, MENU_AudioInput_HDMI1),
                 row(ENUM_ROW_AudioInput_HDMI2, TYPE_STRINGCOMBOX, MENU_AudioInput_HDMI2),
                 row(ENUM_ROW_AudioInput_DVI, TYPE_STRINGCOMBOX, MENU_AudioInput_DVI),
                 row(ENUM_ROW_AudioInput_SDI, TYPE_STRINGCOMBOX, MENU_AudioInput_SDI),
             }));
}

/// 3D and the network.
void addStereoAndNetworkPages(Pages &pages)
{
    pages[CONFIG_Mode3D] =
        page(ENUM_PAGE_Mode3D, "Mode3D",
             numbered({
                 row(ENUM_ROW_Mode3D_Status, TYPE_STRINGCOMBOX, MENU_Mode3D_Status),
                 row(ENUM_ROW_Mode3D_Format, TYPE_STRINGCOMBOX, MENU_Mode3D_Format),
                 row(ENUM_ROW_Mode3D_EyePriority, TYPE_STRINGCOMBOX, MENU_Mode3D_EyePriority),
                 subPage(ENUM_ROW_Mode3D_MoreSettings, ENUM_PAGE_Mode3DMore, MENU_Mode3D_MoreSettings,
                         CONFIG_Mode3DMore),
                 row(ENUM_ROW_Mode3D_Tip, TYPE_TIP, MENU_Mode3D_Tip),
             }));
    pages[CONFIG_Mode3DMore] =
        page(ENUM_PAGE_Mode3DMore, "MoreSettings",
             numbered({
                 row(ENUM_ROW_Mode3D_RightEyeStart, TYPE_INTADJUST, MENU_Mode3D_RightEyeStart),
                 row(ENUM_ROW_Mode3D_SignalDelayTime, TYPE_INTADJUST, MENU_Mode3D_SignalDelayTime),
                 row(ENUM_ROW_Mode3D_ThirdPartyEmitter, TYPE_STRINGCOMBOX, MENU_Mode3D_ThirdPartyEmitter),
             }));
    pages[CONFIG_NetworkSettings] = page(ENUM_PAGE_NetworkSettings, "NetworkSettings",
                                         numbered({
                                             row(ENUM_ROW_Net_NetMode, TYPE_STRINGCOMBOX, MENU_Net_NetMode),
                                             row(ENUM_ROW_Net_IPAddress, TYPE_IPADJUST, MENU_Net_IPAddress),
                                             row(ENUM_ROW_Net_SubnetMask, TYPE_IPADJUST, MENU_Net_SubnetMask),
                                             row(ENUM_ROW_Net_Gateway, TYPE_IPADJUST, MENU_Net_Gateway),
                                             row(ENUM_ROW_Net_Apply, TYPE_APPLYRESET, MENU_Net_Apply),
                                         }));
}
} // namespace VASK::pagerows
