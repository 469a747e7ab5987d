#include "widget/home/panelkeys.h"

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"

#include <iterator>

namespace VASK
{
namespace
{
/// Sets of work modes.
enum WorkModes : unsigned {
    InController = 1u << 0,
    InConverter = 1u << 1,
    InSendingCard = 1u << 2,
    ExceptConverter = InController | InSendingCard,
};

struct PanelKey {
    unsigned char key;
    KEY_TYPE type;
    unsigned modesOnPage;
    unsigned modesAtHome;
    void (*handler)(QWidget *screen, unsigned char key);
};

constexpr PanelKey panelKeys[] = {
    {KEY_MAIN, KEY_RELEASED, InController, ExceptConverter, keypadLayerEvent},
    {KEY_PIP1, KEY_RELEASED, InController, ExceptConverter, keypadLayerEvent},
    {KEY_PIP2, KEY_RELEASED, InController, ExceptConverter, keypadLayerEvent},
    {KEY_MAIN, KEY_LONG_PRESS, InController, ExceptConverter, keypadLayerLongEvent},
    {KEY_PIP1, KEY_LONG_PRESS, InController, ExceptConverter, keypadLayerLongEvent},
    {KEY_PIP2, KEY_LONG_PRESS, InController, ExceptConverter, keypadLayerLongEvent},

    {KEY_SCALE, KEY_RELEASED, InController, InController, keypadScaleEvent},

    {KEY_INPUT1, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT2, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT3, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT4, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT6, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT7, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT8, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadSourceEvent},
    {KEY_INPUT1, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT2, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT3, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT4, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT6, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT7, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},
    {KEY_INPUT8, KEY_LONG_PRESS, ExceptConverter, ExceptConverter, keypadSourceLongEvent},

    {KEY_FN, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadFnEvent},
    {KEY_FREEZE, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadFreezeEvent},
    {KEY_TEST, KEY_RELEASED, ExceptConverter, ExceptConverter, keypadTestEvent},
    {KEY_PRESET, KEY_RELEASED, InController, InController, keypadPresetEvent},
};

/// From the first input key upward.
constexpr unsigned char digits[] = {1, 2, 3, 6, noDigit, 9, 7, noDigit, 0, 8, noDigit, 5};

unsigned modeBit(WorkMode workMode)
{
    if (workMode == WORK_FIBER)
        return InConverter;
    return workMode == WORK_SENDER ? InSendingCard : InController;
}
} // namespace

unsigned char GetkeypadNum(unsigned char key)
{
    const int place = key - KEY_INPUT1;
    return place >= 0 && place < int(std::size(digits)) ? digits[place] : noDigit;
}

WorkMode currentWorkMode()
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    return engine ? DeviceView(*engine).workMode() : WORK_CONTROLLER;
}

bool runPanelKey(QWidget *screen, PanelScreen kind, const KeypadEvent &event)
{
    for (const PanelKey &entry : panelKeys) {
        if (entry.key != event.key() || entry.type != event.type())
            continue;
        const unsigned modes = kind == PanelScreen::Home ? entry.modesAtHome : entry.modesOnPage;
        if (!(modes & modeBit(currentWorkMode())))
            return false;
        entry.handler(screen, event.key());
        return true;
    }
    return false;
}
} // namespace VASK
