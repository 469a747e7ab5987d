// The engine's rig in the state from which the tests of the layers start: a 1920x1080 output, inputs with and
// without a signal, and a main layer that could also show the mosaic.
#pragma once

#include "menu/itemindex.h"
#include "tests/unit/rig/enginerig.h"

namespace VASK
{
class LayerRig : public EngineRig
{
public:
    /// On a model with splicing and with a row for the fixed layouts, which no page of this one has.
    LayerRig()
    {
        g_config[CONFIG_ImageMosaic].rowsMap.insert(
            layoutRow, {ENUM_ROW_Layout, ENUM_OBJECT_END, TYPE_STRINGCOMBOX, MENU_Layout, CONFIG_END});
        addRows({CONFIG_ImageMosaic});
    }
    static constexpr const char *mosaicRow = "7";

    void start()
    {
        reset();
        process(PARA_OutputWidth, 1920);
        process(PARA_OutputHeight, 1080);
        process(PARA_OutputRate, 6000);
        input(0, 97, 3, 1280, 720, 20000);
        input(1, 98, 3, 1920, 1080, 16683);
        input(2, 105, 0, 0, 0, 0);
        input(3, 48, 3, 3840, 2160, 16667);
        input(8, 254, 3, 1920, 1080, 20000);
        store->changeItem(MENU_MainLayer_InputSource, [](ST_ItemInfo &item) {
            item.params[mosaicRow] = "MOSAIC";
            item.params1[mosaicRow] = optionEnable;
        });
        for (int layer = 0; layer < 3; ++layer) {
            set(ENUM_MenuIndex(MENU_MainLayer_InputSource + layer * STRIDE_Layer), "0");
            set(ENUM_MenuIndex(MENU_MainLayer_ScalingMode + layer * STRIDE_Layer), "2");
        }
        forget();
    }

private:
    static constexpr int layoutRow = 99;
};
} // namespace VASK
