#include "framework/engine/sdichoice.h"

#include "framework/engine/parachange.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"

namespace VASK
{
void offerSdi(ParaProcess &engine, MenuAnalysis &store, bool has)
{
    ParaChange change(engine, store, QString(), MENU_SDI, SET_XML_DEVICE);
    for (ENUM_MenuIndex item : {MENU_SDI, MENU_AudioInput_SDI}) {
        change.enable(item, has);
        change.refresh(item);
    }
    constexpr int sdiRow = 3;
    for (ENUM_MenuIndex list :
         {MENU_MainLayer_InputSource, MENU_PIP1_InputSource, MENU_PIP2_InputSource, MENU_Sync_Source})
        change.enableRow(list, sdiRow, has);
}
} // namespace VASK
