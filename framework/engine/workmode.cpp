// What the three work modes have in common.

#include "framework/engine/workmode.h"

#include "framework/engine/sourcenames.h"
#include "framework/input/keyevent.h"
#include "framework/object/globaltimer.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/home.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
void leaveFiberMode(ParaChange &change)
{
    KeyEvent::LightFiber(false);
    toHome(change.home().screen(), [](HomeScreen &home) {
        GlobalTimer::getInstance()->ChangeMainWindow(&home);
        if (auto *menu = poolObject<Page>(ENUM_MAIN_MENU))
            menu->setParentScreen(&home);
        // A panel that has started as a fiber converter shows nothing; with no page in front the home screen
        // is the only way back.
        const QWidget *front = frontWindow();
        home.setVisible(!front || front == &home);
    });
}

void selectFallbackInput(ParaChange &change)
{
    const QString row = QString::number(fallbackInput);
    const InputRecord input = DeviceView(change.engine).input(fallbackInput);
    change.home().showSignal(0, input, input.rateCentiHz());
    change.home().showLayerName(LAYER_MAIN, inputName(row));
    showAndSend(change, MENU_MainLayer_InputSource, row);
}

void enableAll(ParaChange &change, std::initializer_list<ENUM_MenuIndex> items, bool on)
{
    for (ENUM_MenuIndex item : items)
        setEnabled(change, item, on);
}

void enableRowsFrom(ParaChange &change, ENUM_MenuIndex list, int firstRow, bool on)
{
    change.store.changeItem(list, [firstRow, on](ST_ItemInfo &information) {
        for (auto option = information.params.cbegin(); option != information.params.cend(); ++option)
            if (option.key().toInt() >= firstRow)
                information.params1[option.key()] = on ? optionEnable : optionDisable;
    });
}
} // namespace VASK
