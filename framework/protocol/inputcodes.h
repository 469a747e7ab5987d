// The codes by which the device names its inputs, in its list, in registers and in what it reports. HDMI and
// the first DVI input have codes of two families; a device lists its inputs by one of them. No state; any
// thread.
#pragma once

namespace VASK
{
enum InputCode : unsigned char {
    INPUT_DVI1 = 0,
    INPUT_HDMI1 = 17,
    INPUT_HDMI2 = 18,
    INPUT_SDI = 48,
    INPUT_DVI2 = 106,
    INPUT_Mosaic = 224,
    INPUT_OPT1 = 233,
    INPUT_OPT2 = 234,
    INPUT_SyncReference = 254, ///< the last record that the device lists

    // The second family
    INPUT_HDMI1Alias = 97,
    INPUT_HDMI2Alias = 98,
    INPUT_DVI1Alias = 105,

    // Further inputs of a kind, which share the page of the first one or two
    INPUT_DVI1Twin = 1,
    INPUT_DVI2Twin = 2,
    INPUT_HDMI1AliasTwin = 96,
    INPUT_DVI1AliasTwin = 104,
};

/// The code of the same input in the other family; an input of one code has no other.
constexpr int otherCode(int code)
{
    constexpr InputCode pairs[][2] = {
        {INPUT_HDMI1, INPUT_HDMI1Alias}, {INPUT_HDMI2, INPUT_HDMI2Alias}, {INPUT_DVI1, INPUT_DVI1Alias}};
    for (const auto &pair : pairs)
        if (code == pair[0] || code == pair[1])
            return code == pair[0] ? pair[1] : pair[0];
    return code;
}
} // namespace VASK
