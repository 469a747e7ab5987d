// The panel's dedicated keys: layers, scale, sources, Fn, freeze, test and preset. They do the same from the
// home screen and from every page of the menu; only the work modes in which they count differ. GUI thread.
#pragma once

#include "framework/engine/modes.h"
#include "framework/input/keypadevent.h"
#include "menu/objectindex.h"

#include <QString>
#include <initializer_list>

class QWidget;

namespace VASK
{
class ParaProcess;

/// Where a key was pressed.
enum class PanelScreen { Home, Page };

/// A video controller's, as long as there is no engine.
WorkMode currentWorkMode();

/// Does the work of a dedicated key. False if the key has none on that screen or in the present work mode.
bool runPanelKey(QWidget *screen, PanelScreen kind, const KeypadEvent &event);

/// The handlers, one a group of keys. The screen is the one that is shown; it is hidden when a page opens.
/// @{
/// Opens the page of a layer and turns the layer on.
void keypadLayerEvent(QWidget *screen, unsigned char key);
/// Turns the layer off.
void keypadLayerLongEvent(QWidget *screen, unsigned char key);
/// Toggles the lowest layer between full screen and custom size.
void keypadScaleEvent(QWidget *screen, unsigned char key);
/// Gives the source to the layer whose page is open, else to the main layer.
void keypadSourceEvent(QWidget *screen, unsigned char key);
/// Opens the page of the input.
void keypadSourceLongEvent(QWidget *screen, unsigned char key);
/// Does what the Fn key is assigned to.
void keypadFnEvent(QWidget *screen, unsigned char key);
/// Freezes the picture and releases it.
void keypadFreezeEvent(QWidget *screen, unsigned char key);
/// Opens the test pattern page, or ends a test pattern that runs.
void keypadTestEvent(QWidget *screen, unsigned char key);
/// Opens the presets.
void keypadPresetEvent(QWidget *screen, unsigned char key);
/// @}

constexpr unsigned char noSource = 255;
/// The source number of an input key; noSource for a key without one and for SDI in a device without it.
unsigned char GetSourceNum(unsigned char key);

constexpr unsigned char noDigit = 255;
/// The digit on a key; noDigit for a key without one.
unsigned char GetkeypadNum(unsigned char key);

/// Opens the last page of a path that starts at the main menu, as if the user had walked it: every page on it
/// has the one above as its parent and its cursor on the row that leads on. False, and nothing changes, if a
/// page is missing.
bool openMenuPath(QWidget *screen, std::initializer_list<ENUM_ObjectIndex> path);
} // namespace VASK
