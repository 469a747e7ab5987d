// The LEDs of the layer and input keys. From any thread.
#pragma once

namespace VASK
{
/// That layer, 0 to 2, blinks; the others show whether they are on.
void showLayerLeds(unsigned char layer);
/// Every source shows its signal, and blinks while a layer that is on uses it.
void showSourceLeds();
} // namespace VASK
