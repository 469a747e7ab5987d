#include "framework/engine/brightnessedit.h"

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
void BrightnessEdit::end()
{
    if (!bSetScreenBrightness)
        return;
    bSetScreenBrightness = false;
    if (auto *save = poolObject<VaskUiObject>(ENUM_ROW_SavetoRVCard))
        save->CallProtocol(QString(), MENU_SavetoRVCard);
}
} // namespace VASK
