// The three layers: what they show, where, in which order and which part of their input. A change of one
// number of a window sends the whole window.

#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/send/sendrow.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

#include <QDebug>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

/// The value is the number of the input among all inputs.
int InputSourceValueChanged(const SendChange &change)
{
    const auto input = static_cast<unsigned char>(change.value.toInt());
    const inputSource source = Proto3rdReceiveParse::inputSourceCode.value(input);
    return change.sendBytes(littleEndian(source.index, 1) + littleEndian(0, 1) +
                            littleEndian(source.SourceCode, 1));
}

QByteArray windowStart(const SendChange &change, int layer)
{
    return littleEndian(change.number(nth(MENU_MainLayer_InitialX, layer, STRIDE_Layer)), 4) +
           littleEndian(change.number(nth(MENU_MainLayer_InitialY, layer, STRIDE_Layer)), 4);
}

int WindowValueChanged(const SendChange &change)
{
    const int layer = change.member;
    const QByteArray data =
        windowStart(change, layer) +
        littleEndian(change.number(nth(MENU_MainLayer_HorWidth, layer, STRIDE_Layer)), 4) +
        littleEndian(change.number(nth(MENU_MainLayer_VerHeight, layer, STRIDE_Layer)), 4);
    change.log(data);
    return Proto3rdSend::SendHeldBack(change, change.package(data));
}

/// A sending card has one window; its own register takes the start.
int MAINWindowChangedtoSend(const SendChange &change)
{
    return change.sendBytes(windowStart(change, 0));
}

/// Items of the crop page of a layer, in their order.
enum CropPlace { CROP_Switch, CROP_Width, CROP_Height, CROP_X, CROP_Y, CROP_END };

/// The crop of a layer belongs to the input that the layer shows: the register is that of both.
int InterceptionValueChanged(const SendChange &change)
{
    const int layer = change.member;
    QString part[CROP_END];
    for (int place = 0; place < CROP_END; ++place) {
        const ENUM_MenuIndex item = nth(nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop), place);
        part[place] = place == change.place ? change.value : QString();
        if (part[place].isEmpty())
            part[place] = change.item(item);
    }
    const QString input = change.item(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer));
    const auto key = static_cast<unsigned char>(input.toInt());
    if (key == InputTable::noKey) {
        qDebug("Invalid Source Name:%s", qPrintable(input));
        return SEND_BadValue;
    }
    const inputSource source = Proto3rdReceiveParse::inputSourceCode.value(key);
    QByteArray data = littleEndian(source.SourceCode, 1) + littleEndian(source.index, 1) +
                      littleEndian(isOn(part[CROP_Switch]), 1);
    for (CropPlace place : {CROP_X, CROP_Y, CROP_Width, CROP_Height})
        data += littleEndian(part[place].toInt(), 2);
    change.log(data);
    return Proto3rdSend::SendHeldBack(
        change, toAllBoards(P::Set_SenderInterception, data, change.tag(), layer, source.index));
}

constexpr SendRow rows[] = {
    plain(each(FAMILY_Layer, MENU_MainLayer_Status), zeroElse(0, 1), P::Set_SenderFormsStatusData),
    own(each(FAMILY_Layer, MENU_MainLayer_InputSource), InputSourceValueChanged,
        P::Set_SenderFormsRosourceCard),
    own(each(FAMILY_Layer, MENU_MainLayer_HorWidth, MENU_MainLayer_InitialY), WindowValueChanged,
        P::Set_SenderFormsHorStartData),
    plain(each(FAMILY_Layer, MENU_MainLayer_Priority), number(), P::Set_SenderFormsPriorityData),
    plain(each(FAMILY_Layer, MENU_MainLayer_Opacity), number(), P::Set_SenderFormsTransparent),
    own(each(FAMILY_Crop, MENU_MainLayerCrop_Status, MENU_MainLayerCrop_InitialY), InterceptionValueChanged),
    own(range(EVENT_SendingCardX, EVENT_SendingCardY), MAINWindowChangedtoSend, P::Set_HorStartDataToSend),
};
} // namespace

Table<SendRow> layerRows()
{
    return rows;
}
} // namespace VASK
