// 3D: switch, format and the start of the right eye's picture.

#include "framework/engine/layers.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/righteye.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
namespace
{
struct OutputLoad {
    int width;
    int height;
    int rateCentiHz;
};

/// What the output carries now, without the doubling of 3D. Before the device has told its size, the size
/// that start-up found counts.
OutputLoad currentLoad(const ParaChange &change)
{
    if (!change.isOn(MENU_OutputMode)) {
        const bool reported = change.number(PARA_ReportedWidth) != 0;
        return {change.number(reported ? PARA_ReportedWidth : PARA_OutputWidth),
                change.number(reported ? PARA_ReportedHeight : PARA_OutputHeight),
                change.number(PARA_OutputRate)};
    }
    const QStringList size = change.chosenOption(MENU_Output_Resolution).split('*');
    return {size.value(0).toInt(), size.value(1).toInt(),
            qRound(change.chosenOption(MENU_Output_FrameRate).toFloat() * 100)};
}

void showDoubled(ParaChange &change, bool doubles)
{
    const OutputLoad load = currentLoad(change);
    change.home().showResolution(DeviceView::sizeText(load.width, load.height, false,
                                                      doubles ? 2 * load.rateCentiHz : load.rateCentiHz));
}

bool overloads(const ParaChange &change)
{
    const OutputLoad load = currentLoad(change);
    return VideoBandwidthConstrain(uint16_t(load.width), uint16_t(load.height),
                                   uint16_t(2 * load.rateCentiHz), wholeOutputPixelRate, 1);
}

void stereoOn(ParaChange &change)
{
    if (change.fromUser())
        change.dialog(MSG_Open3DOnlyMainLayer);
    change.enable(MENU_MainLayerTransition, false);
    change.show(MENU_MainLayerTransition, "1");
    if (change.fromUser())
        change.send(MENU_MainLayerTransition, "1");
    change.enable(MENU_TransitionDuration, false);
    change.refresh(MENU_TransitionDuration);
    if (change.fromUser()) {
        switchLayer(change, layers[1], false);
        switchLayer(change, layers[2], false);
        change.enableRowsWithText(MENU_MainLayer_InputSource, mosaicOption, true);
    }
    change.tail();
}

void stereoOff(ParaChange &change)
{
    if (bothPipsOff(change) && !mainShowsMosaic(change))
        freeTransition(change);
    change.tail();
}

void applyStereo(ParaChange &change)
{
    const bool on = change.turnsOn();
    const bool doubles = on && change.number(MENU_Mode3D_Format) != FrameSequential;
    if (doubles && change.fromUser() && overloads(change)) {
        change.set(MENU_Mode3D_Status, switchOff);
        change.refresh(MENU_Mode3D_Status);
        change.dialog(MSG_OverLoad);
        return;
    }
    showDoubled(change, doubles);
    if (on)
        stereoOn(change);
    else
        stereoOff(change);
}

void applyFormat(ParaChange &change)
{
    const int format = change.value.toInt();
    if (change.isOn(MENU_Mode3D_Status) && format != FrameSequential && change.fromUser() &&
        overloads(change)) {
        change.set(MENU_Mode3D_Format, change.oldValue);
        change.refresh(MENU_Mode3D_Format);
        change.dialog(MSG_OverLoad);
        return;
    }
    showDoubled(change, change.isOn(MENU_Mode3D_Status) && format != FrameSequential);
    change.enable(MENU_Mode3D_RightEyeStart, format != FrameSequential);
    if (format == FrameSequential) {
        change.refresh(MENU_Mode3D_RightEyeStart);
    } else {
        const QString start = QString::number(rightEyeStart(change.engine, format));
        change.show(MENU_Mode3D_RightEyeStart, start);
        if (change.fromUser())
            change.send(MENU_Mode3D_RightEyeStart, start);
    }
    change.tail();
}

void applyRightEyeStart(ParaChange &change)
{
    const int format = change.number(MENU_Mode3D_Format);
    if (format == SideBySide || format == TopAndBottom)
        keepRightEyeStart(change.store, format, change.value.toInt());
    change.tail();
}

/// A reported value goes on to the device as well.
void applyEmitter(ParaChange &change)
{
    if (change.fromDevice())
        change.send(change.index, change.value);
    else
        change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_Mode3D_Status, applyStereo},
    {MENU_Mode3D_Format, applyFormat},
    {MENU_Mode3D_RightEyeStart, applyRightEyeStart},
    {range(MENU_Mode3D_SignalDelayTime, MENU_Mode3D_ThirdPartyEmitter), applyEmitter},
};
} // namespace

Table<ApplyCase> stereoCases()
{
    return cases;
}
} // namespace VASK
