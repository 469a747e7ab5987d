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
    {MENU_ReturntoHome, keep},
    {MENU_Test_VaskImage, keep},
    {MENU_HDCPMemory, keep},
    // Part of a mode that an input asks for: it goes out whole, with its apply row.
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDFrameRate), keep},
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDWidth, MENU_HDMI1_EDIDCustomRate), keep},
};
} // namespace

Table<ApplyCase> keptCases()
{
    return cases;
}
} // namespace VASK
