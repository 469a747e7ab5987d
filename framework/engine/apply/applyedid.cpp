// The mode that an input asks of its source, its EDID: one of the standard modes or a custom one, each with a
// page of its own in the same place.

#include "framework/engine/layers.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

namespace VASK
{
namespace
{
constexpr int inputPages = ENUM_PAGE_HDMI2_EDID - ENUM_PAGE_HDMI1_EDID;
constexpr int inputConfigs = CONFIG_HDMI2_EDID - CONFIG_HDMI1_EDID;

constexpr ENUM_ObjectIndex parentPages[] = {ENUM_PAGE_HDMI1, ENUM_PAGE_HDMI2, ENUM_PAGE_DVI, ENUM_PAGE_DVI2};

const QString standardEdid = QStringLiteral("0");
const QString customEdid = QStringLiteral("1");

void applyChoice(ParaChange &change)
{
    const bool custom = change.value == customEdid;
    if (!custom && change.value != standardEdid)
        return;
    const int input = change.member;
    swapPage({nth(ENUM_PAGE_HDMI1_EDID, input, inputPages),
              nth(custom ? ENUM_PAGE_HDMI1_EDIDCustom : ENUM_PAGE_HDMI1_EDIDStandard, input, inputPages),
              nth(custom ? CONFIG_HDMI1_EDIDCustom : CONFIG_HDMI1_EDIDStandard, input, inputConfigs),
              parentPages[input]});
    // The row stands on all pages; the one that opens may have been left with the other choice.
    change.refresh(change.index);
}

QString standardMode(const ParaChange &change, int input)
{
    const QStringList size =
        change.chosenOption(nth(MENU_HDMI1_EDIDResolution, input, STRIDE_InputPicture)).split('*');
    return size.value(0) + 'x' + size.value(1) + 'x' +
           change.chosenOption(nth(MENU_HDMI1_EDIDFrameRate, input, STRIDE_InputPicture));
}

QString customMode(const ParaChange &change, int input)
{
    return change.item(nth(MENU_HDMI1_EDIDWidth, input, STRIDE_InputPicture)) + 'x' +
           change.item(nth(MENU_HDMI1_EDIDHeight, input, STRIDE_InputPicture)) + 'x' +
           change.chosenOption(nth(MENU_HDMI1_EDIDCustomRate, input, STRIDE_InputPicture));
}

void applyEdid(ParaChange &change)
{
    if (!change.fromUser())
        return;
    const int input = change.member;
    change.value = change.isOn(nth(MENU_HDMI1_EDIDChoice, input, STRIDE_InputPicture))
                       ? customMode(change, input)
                       : standardMode(change, input);
    change.dialog(MSG_Waiting);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDChoice), applyChoice},
    {each(FAMILY_InputPicture, MENU_HDMI1_EDIDApply), applyEdid},
};
} // namespace

Table<ApplyCase> edidCases()
{
    return cases;
}
} // namespace VASK
