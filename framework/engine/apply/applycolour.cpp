// Colour of the LED screen, and the picture reset of an input.

#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
constexpr int customTemperature = 3;
constexpr ENUM_MenuIndex channels[] = {MENU_Color_R, MENU_Color_G, MENU_Color_B};

struct Temperature {
    int levels[3]; ///< red, green, blue
};
constexpr Temperature temperatures[] = {
    {{255, 249, 253}}, // standard
    {{191, 211, 255}}, // cool
    {{255, 213, 161}}, // warm
};

void enableChannels(ParaChange &change, bool on)
{
    for (ENUM_MenuIndex channel : channels) {
        change.enable(channel, on);
        change.refresh(channel);
    }
}

void showAndSendChannels(ParaChange &change, const Temperature &temperature)
{
    for (size_t i = 0; i < std::size(channels); ++i) {
        change.show(channels[i], QString::number(temperature.levels[i]));
        change.send(channels[i], QString::number(temperature.levels[i]));
    }
}

void applyTemperature(ParaChange &change)
{
    const int chosen = change.value.toInt();
    enableChannels(change, chosen == customTemperature);
    if (change.fromDevice()) {
        change.tail();
        return;
    }
    if (chosen >= 0 && chosen < int(std::size(temperatures)))
        showAndSendChannels(change, temperatures[chosen]);
}

void resetColour(ParaChange &change)
{
    const QString defaultGamma = "2.8";
    change.show(MENU_Color_Gamma, defaultGamma);
    change.send(MENU_Color_Gamma, defaultGamma);
    enableChannels(change, false);
    showAndSendChannels(change, temperatures[0]);
    change.show(MENU_Color_ColorTemp, "0");
}

/// The four values stand before their reset.
void resetPicture(ParaChange &change)
{
    static constexpr const char *defaults[] = {"50", "50", "50", "0"};
    for (int i = 0; i < 4; ++i)
        change.show(nth(change.index, i - 4), defaults[i]);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_Color_ColorTemp, applyTemperature},
    {MENU_Color_Reset, resetColour},
    {each(FAMILY_InputPicture, MENU_HDMI1_ColorReset), resetPicture},
    {MENU_SDI_ColorReset, resetPicture},
};
} // namespace

Table<ApplyCase> colourCases()
{
    return cases;
}
} // namespace VASK
