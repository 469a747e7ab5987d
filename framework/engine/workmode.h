// The change between the device's three ways to work, which takes the video path from the user or gives it
// back. For the cases of the work mode items only; thread as theirs.
#pragma once

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

#include <initializer_list>

namespace VASK
{
/// The input on which the device falls back when it works as a sending card.
constexpr int fallbackInput = 2;

/// The panel has its keys' LEDs and its home screen again. A home screen behind an open page stays hidden.
void leaveFiberMode(ParaChange &change);

/// The video path is the user's again: layers, layout, outputs and rate. nextMode is the mode that begins.
void giveBackVideoPath(ParaChange &change, WorkMode nextMode);

/// The video path goes to the sending card: the main layer shows the fallback input over the whole output,
/// and all that would need the path is off and dimmed.
void takeVideoPath(ParaChange &change);

/// The main layer shows the fallback input, with or without a signal.
void selectFallbackInput(ParaChange &change);

// Verbs of these cases, for items one by one in their order.
void enableAll(ParaChange &change, std::initializer_list<ENUM_MenuIndex> items, bool on);
/// Options of a list from one on; the widget is not reloaded.
void enableRowsFrom(ParaChange &change, ENUM_MenuIndex list, int firstRow, bool on);
} // namespace VASK
