// The two forms in which the screen of cabinets is told, quick and advanced, and what low latency asks of
// them. For the cases of the items of either form; thread as theirs.
#pragma once

#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

namespace VASK
{
/// Whoever opens the page of one form is asked first, and of the other is not.
void askBeforeOpening(ParaChange &change, ENUM_MenuIndex page);
/// The user has configured the screen himself: no software on a computer has the say any more, and 3D is
/// free again where the device can have it.
void configureByHand(ParaChange &change);
void freeStereo(ParaChange &change);

/// The rows of the advanced form can be dialled or not.
void enableAdvancedForm(ParaChange &change, bool on);

/// The cabinets of the first port fill whole columns over the full height of the screen.
bool quickFormSuitsLowLatency(const ParaChange &change);
/// All ports start on the same line.
bool advancedFormSuitsLowLatency(const ParaChange &change);
/// Low latency, if it is on and does not suit the screen, goes off here and in the device, and the user is
/// told.
void keepLowLatencyIf(ParaChange &change, bool suits);
} // namespace VASK
