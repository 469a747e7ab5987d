// Which layers are on, and in which order they stand.

#include "framework/engine/layers.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// What every change of a layer's status ends with.
void showStatus(ParaChange &change, const LayerItems &layer)
{
    leaveFixedLayout(change);
    change.windowState(layer.number, !change.turnsOff());
    change.lowLayerUpdate();
    change.tail();
}

void applyMainStatus(ParaChange &change)
{
    showStatus(change, layers[0]);
}

/// The mosaic takes the whole processing of the device: no layer can stand over it.
void refusePip(ParaChange &change)
{
    change.set(change.index, "0");
    change.refresh(change.index);
    if (change.fromDevice() && ParaProcess::init_20m_flg)
        emit change.engine.signal_popup_window(MSG_MosaicIsUsing);
    else
        change.dialog(MSG_MosaicIsUsing);
}

void applyPipStatus(ParaChange &change)
{
    const LayerItems &layer = layerOf(change);
    const bool on = change.turnsOn();
    if (on && mainShowsMosaic(change)) {
        refusePip(change);
        return;
    }
    if (on) {
        offerMosaic(change, false);
        lockTransition(change);
        change.engine.SetLayerSrc_Res(layer.number);
    } else if (change.turnsOff()) {
        const bool alone = bothPipsOff(change);
        const bool sender = isSendingCard(change);
        offerMosaic(change, alone && !sender);
        if (alone && stereoIsOff(change) && !sender && !mainShowsMosaic(change))
            freeTransition(change);
    }
    showStatus(change, layer);
}

/// The layers between the old place and the new one close up.
int placeAfterMove(int place, int oldPlace, int newPlace)
{
    if (oldPlace < newPlace && place > oldPlace && place <= newPlace)
        return place - 1;
    if (oldPlace > newPlace && place < oldPlace && place >= newPlace)
        return place + 1;
    return place;
}

void applyPriority(ParaChange &change)
{
    const int oldPlace = uint8_t(change.oldValue.toInt());
    const int newPlace = uint8_t(change.value.toInt());
    if (change.fromUser() && oldPlace == newPlace) {
        change.tail();
        return;
    }
    if (change.fromUser()) {
        for (const LayerItems &other : layers) {
            if (other.priority == change.index)
                continue;
            const int place = uint8_t(change.number(other.priority));
            showAndSend(change, other.priority, QString::number(placeAfterMove(place, oldPlace, newPlace)));
        }
    }
    change.lowLayerUpdate();
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_MainLayer_Status, applyMainStatus},
    {each(FAMILY_Pip, MENU_PIP1_Status), applyPipStatus},
    {each(FAMILY_Layer, MENU_MainLayer_Priority), applyPriority},
};
} // namespace

Table<ApplyCase> layersCases()
{
    return cases;
}
} // namespace VASK
