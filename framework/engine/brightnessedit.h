// The edit of the screen brightness: the value lives in the receiving cards, so its end, however it comes,
// has them save it. GUI thread.
#pragma once

namespace VASK
{
class BrightnessEdit
{
public:
    static void begin() { bSetScreenBrightness = true; }
    static bool runs() { return bSetScreenBrightness; }
    /// Nothing happens if none runs.
    static void end();

private:
    inline static bool bSetScreenBrightness = false;
};
} // namespace VASK
