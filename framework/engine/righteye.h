// Where the picture of the right eye starts, in pixels, as kept for each 3D format: 0 side by side, 1 top and
// bottom. The menu shows the one in use. Any thread.
#pragma once

namespace VASK
{
class MenuAnalysis;
class ParaProcess;

int rightEyeStart(const ParaProcess &engine, int format);
void keepRightEyeStart(MenuAnalysis &store, int format, int pixels);
/// The items in which they are kept; the menu table has no rows for them.
void addRightEyeItems(MenuAnalysis &store);
} // namespace VASK
