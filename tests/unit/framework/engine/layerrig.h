// The engine's rig in the state from which the tests of the layers start: a 1920x1080 output, inputs with and
// without a signal, and a main layer that could also show the mosaic.
#pragma once

#include "enginerig.h"
#include "menu/itemindex.h"

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
        change(MENU_MainLayer_InputSource, [](ST_ItemInfo &item) {
            item.params[mosaicRow] = "MOSAIC";
            item.params1[mosaicRow] = optionEnable;
        });
        for (int layer = 0; layer < 3; ++layer) {
            set(of(MENU_MainLayer_InputSource, layer), "0");
            set(of(MENU_MainLayer_ScalingMode, layer), "2");
        }
        forget();
    }
    void change(ENUM_MenuIndex index, const std::function<void(ST_ItemInfo &)> &work)
    {
        store->changeItem(index, work);
    }
    /// The user's or the device's change.
    void put(bool user, ENUM_MenuIndex index, const QString &value)
    {
        if (user)
            fromUser(index, value);
        else
            fromDevice(index, value);
    }

    /// An item of a layer, of its crop page, of its memory, by that of the main layer.
    static ENUM_MenuIndex of(int main, int layer) { return ENUM_MenuIndex(main + 10 * layer); }
    static ENUM_MenuIndex crop(int main, int layer) { return ENUM_MenuIndex(main + 6 * layer); }
    static ENUM_MenuIndex memory(int main, int layer) { return ENUM_MenuIndex(main + 4 * layer); }
    static QString line(int index, const QString &value) { return itemnames::line(index, value); }

    /// Width, height, x and y.
    QString geometry(int layer) const { return four(of(MENU_MainLayer_HorWidth, layer)); }
    QString remembered(int layer) const { return four(memory(MENU_MainLayer_CustomWidth, layer)); }
    void setGeometry(int layer, const QStringList &values)
    {
        for (int field = 0; field < 4; ++field)
            set(ENUM_MenuIndex(of(MENU_MainLayer_HorWidth, layer) + field), values[field]);
    }
    /// Which of width, height, x and y can be dialled: "yyyy" for all.
    QString dialled(int layer) const
    {
        QString flags;
        for (int field = 0; field < 4; ++field)
            flags += enabled(ENUM_MenuIndex(of(MENU_MainLayer_HorWidth, layer) + field)) ? 'y' : 'n';
        return flags;
    }
    void setDialled(int layer, bool on)
    {
        for (int field = 0; field < 4; ++field)
            store->UpdataItemEnable(ENUM_MenuIndex(of(MENU_MainLayer_HorWidth, layer) + field), on);
    }
    /// Rows "0" and "1" of a list: "yn" when the first can be chosen.
    QString rows(ENUM_MenuIndex list) const
    {
        return QString(rowEnabled(list, 0) ? "y" : "n") + (rowEnabled(list, 1) ? "y" : "n");
    }
    void setRows(ENUM_MenuIndex list, bool on)
    {
        change(list, [on](ST_ItemInfo &item) {
            item.params1["0"] = item.params1["1"] = on ? optionEnable : optionDisable;
        });
    }
    bool mosaicOffered() const
    {
        return info(MENU_MainLayer_InputSource).params1.value(mosaicRow) == optionEnable;
    }
    void setMosaicOffered(bool on)
    {
        change(MENU_MainLayer_InputSource,
               [on](ST_ItemInfo &item) { item.params1[mosaicRow] = on ? optionEnable : optionDisable; });
    }
    /// The effect of the main layer and its duration: "y" free, "n" locked to a cut, "?" half of each.
    QString transition() const
    {
        const bool effect = enabled(MENU_MainLayerTransition);
        if (effect != enabled(MENU_TransitionDuration))
            return "?";
        return effect ? "y" : value(MENU_MainLayerTransition) == "1" ? "n" : "?";
    }
    void setTransition(bool free)
    {
        for (ENUM_MenuIndex item : {MENU_MainLayerTransition, MENU_TransitionDuration})
            store->UpdataItemEnable(item, free);
        set(MENU_MainLayerTransition, free ? "0" : "1");
    }

    // The home screen
    bool layerShown(int layer) const
    {
        return home->findChild<QLabel *>(QString("labWindowOffDisplay_%1").arg(layer + 1))->isHidden();
    }
    QString layerName(int layer) const
    {
        return shown(qPrintable(QString("labLayerSrc%1_Name").arg(layer + 1)));
    }
    QString layerSignal(int layer) const
    {
        return shown(qPrintable(QString("labLayerSrc%1_Res").arg(layer + 1)));
    }

private:
    static constexpr int layoutRow = 99;

    QString four(ENUM_MenuIndex first) const
    {
        QStringList values;
        for (int field = 0; field < 4; ++field)
            values << value(ENUM_MenuIndex(first + field));
        return values.join(' ');
    }
};
} // namespace VASK
