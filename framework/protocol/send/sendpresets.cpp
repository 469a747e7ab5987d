// Presets, and the splicing of several devices to one picture.

#include "framework/protocol/send/sendrow.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

#include <QStringList>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

int SceneDeleteItem(const SendChange &change)
{
    return change.sendBytes(littleEndian(0, 1) + littleEndian(change.value.toInt(), 1));
}

/// The value names the preset that is copied and the one it goes to.
int SceneCopyItem(const SendChange &change)
{
    const QStringList numbers = change.value.split('_');
    if (numbers.size() != 2)
        return SEND_BadValue;
    QByteArray data;
    for (const QString &number : numbers)
        data += littleEndian(0, 1) + littleEndian(number.toInt(), 1);
    return change.sendBytes(data);
}

int MosaicSwitchChanged(const SendChange &change)
{
    const bool on = isOn(change.value);
    Proto3rdSend::SetOpenMosaicFlag(on ? MOSAIC_On : MOSAIC_Off);
    return sendPlain(change);
}

/// This device's window on the spliced picture: start, then size.
int MosaicScreenChanged(const SendChange &change)
{
    return change.sendBytes(littleEndian(change.number(MENU_ImageMosaic_LoadAreaInitialX), 4) +
                            littleEndian(change.number(MENU_ImageMosaic_LoadAreaInitialY), 4) +
                            littleEndian(change.number(MENU_ImageMosaic_LoadAreaWidth), 2) +
                            littleEndian(change.number(MENU_ImageMosaic_LoadAreaHeight), 2));
}

/// The reset sets the items, and each of them is sent for itself.
int MosaicResetClick(const SendChange &)
{
    return SEND_Done;
}

constexpr SendRow rows[] = {
    plain(EVENT_PresetSave, number(), P::SaveSence),
    plain(EVENT_PresetLoad, number(), P::LoadSence),
    own(EVENT_PresetDelete, SceneDeleteItem, P::DeleteSence),
    own(EVENT_PresetCopy, SceneCopyItem, P::CopySence),

    own(MENU_ImageMosaic_Status, MosaicSwitchChanged, P::Set_MosaicSwitch, onOff(deviceOn, 0)),
    own(range(MENU_ImageMosaic_LoadAreaWidth, MENU_ImageMosaic_LoadAreaInitialY), MosaicScreenChanged,
        P::Set_MosaicScreenPara),
    own(MENU_ImageMosaic_Reset, MosaicResetClick),
};
} // namespace

Table<SendRow> presetRows()
{
    return rows;
}

int Proto3rdSend::PresetLoad(unsigned char preset)
{
    return getInstance()->HandleMenuValueChanged(EVENT_PresetLoad, QString::number(preset));
}
} // namespace VASK
