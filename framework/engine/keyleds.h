// The LEDs of the layer, input and scaling keys. From any thread.
#pragma once

namespace VASK
{
class ParaProcess;

/// That layer, 0 to 2, blinks; the others show whether they are on.
void showLayerLeds(unsigned char layer);
/// Every source shows its signal, and blinks while a layer that is on uses it.
void showSourceLeds();
/// Lit while the lowest layer that is on fills the screen. Gives that layer, 0 to 2; 255 if none is on.
unsigned char showScaleLed(const ParaProcess &engine);
} // namespace VASK
