// What the three work modes have in common.

#include "framework/engine/workmode.h"

#include "framework/input/keyevent.h"
#include "framework/object/globaltimer.h"
#include "framework/store/menuanalysis.h"
#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"
#include "widget/page/menudirectoty.h"

#include <QApplication>

namespace VASK
{
void leaveFiberMode(ParaChange &change)
{
    KeyEvent::LightFiber(false);
    MainWindow *home = change.home();
    runOnGui(home, [home] {
        GlobalTimer::getInstance()->ChangeMainWindow(home);
        if (auto *menu = poolObject<MenuDirectory>(ENUM_MAIN_MENU))
            menu->m_pparerentdirectory = home;
        // A panel that has started as a fiber converter shows nothing; with no page in front the home screen
        // is the only way back.
        const QWidget *active = QApplication::activeWindow();
        home->setVisible(!active || active == home);
    });
}

void selectFallbackInput(ParaChange &change)
{
    const QString row = QString::number(fallbackInput);
    const InputRecord input = DeviceView(change.engine).input(fallbackInput);
    change.engine.showLayerSignal(0, input, input.rateCentiHz());
    change.home()->SetLayerName(LAYER_MAIN, change.engine.GetInputNameByIndex(row));
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
