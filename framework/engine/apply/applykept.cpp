// Items that are neither sent nor shown when they change, each with its reason. All others that have no case
// of their own are plain: stored, then handed to the protocol or, as reported, to their rows.

#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
void keep(ParaChange &) {}

constexpr ApplyCase cases[] = {
    // The panel's own: the device has no register for them.
    {MENU_ReturntoHome, MENU_ReturntoHome, keep},
    {MENU_Test_VaskImage, MENU_Test_VaskImage, keep},
    {MENU_HDCPMemory, MENU_HDCPMemory, keep},
    // Part of a mode that an input asks for: it goes out whole, with its apply row.
    {MENU_HDMI1_EDIDFrameRate, MENU_HDMI1_EDIDFrameRate, keep},
    {MENU_HDMI1_EDIDWidth, MENU_HDMI1_EDIDCustomRate, keep},
    {MENU_HDMI2_EDIDFrameRate, MENU_HDMI2_EDIDFrameRate, keep},
    {MENU_HDMI2_EDIDWidth, MENU_HDMI2_EDIDCustomRate, keep},
    {MENU_DVI_EDIDFrameRate, MENU_DVI_EDIDFrameRate, keep},
    {MENU_DVI_EDIDWidth, MENU_DVI_EDIDCustomRate, keep},
    {MENU_DVI2_EDIDFrameRate, MENU_DVI2_EDIDFrameRate, keep},
    {MENU_DVI2_EDIDWidth, MENU_DVI2_EDIDCustomRate, keep},
};
} // namespace

ApplyFamily keptFamily()
{
    return {cases, int(std::size(cases))};
}
} // namespace VASK
