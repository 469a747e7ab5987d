// The inputs: picture, colour range, EDID, audio, copy protection, backup and the mosaic of two inputs.

#include "framework/engine/paraprocess.h"
#include "framework/protocol/inputcodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/send/sendrow.h"
#include "framework/protocol/send/videomode.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

#include <QDebug>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

/// The inputs with a page of their own.
enum EnInputSourceCardNo : int {
    CARD_HDMI1,
    CARD_HDMI2,
    CARD_DVI1,
    CARD_DVI2,
    CARD_SDI,
    CARD_END,
};
static_assert(CARD_SDI == FAMILY_InputPicture.count);

/// The codes by which the device knows them in picture and EDID registers.
constexpr quint8 cardCodes[CARD_END] = {INPUT_HDMI1, INPUT_HDMI2, INPUT_DVI1, INPUT_DVI2, INPUT_SDI};

ENUM_MenuIndex ofCard(ENUM_MenuIndex ofHdmi1, int card)
{
    if (card == CARD_SDI)
        return nth(MENU_SDI_Brightness, ofHdmi1 - MENU_HDMI1_Brightness);
    return nth(ofHdmi1, card, STRIDE_InputPicture);
}

/// Brightness, contrast, saturation, hue: the register is that of the input's place among all inputs.
int pictureValueChanged(const SendChange &change)
{
    const unsigned char input = Proto3rdReceiveParse::inputSourceCode.keyOfCode(cardCodes[change.member]);
    QByteArray data;
    change.row.form.encode(change.value, data);
    change.log(data);
    return Proto3rdSend::SendHeldBack(change, change.package(data, input));
}

int InQualityReset(const SendChange &change)
{
    const int card = change.member;
    qDebug() << "InQualityReset,Index:" << card;
    const int hue = change.number(ofCard(MENU_HDMI1_Hue, card));
    QByteArray data(PICTURE_Stride, '\0');
    data[0] = char(cardCodes[card]);
    data[PICTURE_Brightness] = char(change.number(ofCard(MENU_HDMI1_Brightness, card)));
    data[PICTURE_Contrast] = char(change.number(ofCard(MENU_HDMI1_Contrast, card)));
    data[PICTURE_Saturation] = char(change.number(ofCard(MENU_HDMI1_Saturation, card)));
    data[PICTURE_Hue] = char(hue & 0x0F);
    data[PICTURE_Hue + 1] = char(hue >> 8 & 0x0F);
    return change.sendBytes(data);
}

int EDIDApplySubmit(const SendChange &change)
{
    QByteArray mode;
    if (!videoMode(change.value, mode)) {
        qDebug() << "Invalid EDID Value:" << change.value;
        return SEND_BadValue;
    }
    const auto input = static_cast<unsigned char>(change.member);
    const inputSource source = Proto3rdReceiveParse::EDIDSourceCode.value(input);
    return change.sendBytes(littleEndian(source.SourceCode, 1) + littleEndian(source.index, 1) + mode);
}

/// The menu switches protection of all four inputs at once; their registers hold the opposite sense.
int HdcpSwitchChanged(const SendChange &change)
{
    constexpr int protectedInputs = 4;
    const QByteArray data = littleEndian(isOff(change.value), 1);
    change.log(data);
    for (int input = 0; input < protectedInputs; ++input)
        if (change.send(change.package(data, input)) != SEND_Done)
            return SEND_Failed;
    return SEND_Done;
}

/// Main input, and the one that takes over where backup is on.
int inputBackupChanged(const SendChange &change)
{
    struct Pair {
        quint8 main;
        quint8 backup;
    };
    constexpr quint8 noBackup = 255;
    static constexpr Pair pairs[] = {
        {INPUT_HDMI1, INPUT_HDMI2}, {INPUT_DVI1Alias, INPUT_DVI2}, {INPUT_Mosaic, INPUT_Mosaic}};
    const Pair &pair = pairs[change.member];
    const bool off = isOff(change.value);
    return change.sendBytes(littleEndian(pair.main, 1) + littleEndian(0, 1) +
                            littleEndian(off ? noBackup : pair.backup, 1) + littleEndian(1, 1));
}

QByteArray mosaicPart(const inputSource &source, int x, int y, int width, int height)
{
    return (littleEndian(source.SourceCode, 1) + littleEndian(source.index, 1) + littleEndian(x, 2) +
            littleEndian(y, 2) + littleEndian(width, 2) + littleEndian(height, 2))
        .leftJustified(16, '\0');
}

/// Two inputs make one picture, one above the other or side by side: a head and a part for each.
int InputMosaicParaChanged(const SendChange &change)
{
    ST_ItemInfo arrangement;
    if (const ParaProcess *engine = Proto3rdSend::engine())
        engine->GetInfoFromIndex(MENU_Mosaic_Arrangement, arrangement);
    auto source = [](const QString &number) {
        return Proto3rdReceiveParse::MosaicSourceCode.value(static_cast<unsigned char>(number.toInt()));
    };
    const bool above = change.number(MENU_Mosaic_Layout) == 0;
    const int width = change.number(MENU_Mosaic_Width);
    const int height = change.number(MENU_Mosaic_Height);

    const char rows = above ? 2 : 1;
    const char columns = above ? 1 : 2;
    QByteArray data = QByteArray("\x02\x01", 2) + rows + columns + QByteArray("\x01\x01", 2);
    data = data.leftJustified(16, '\0');
    data += mosaicPart(source(arrangement.value), 0, 0, width, height);
    data += mosaicPart(source(arrangement.perBase), above ? 0 : width, above ? height : 0, width, height);
    return change.sendBytes(data);
}

constexpr Family sdi{0, 1, CARD_SDI};
constexpr Family hdmiInputs{1, 2};
constexpr Family silentInputs{1, 6, hdmiInputs.count}; ///< without sound of their own
constexpr Family backupPairs{1, 3};

constexpr SendRow rows[] = {
    // The pages of the inputs are twins; SDI has one of its own.
    own(each(FAMILY_InputPicture, MENU_HDMI1_Brightness), pictureValueChanged, P::Set_ScreenQulityLightness),
    own(each(sdi, MENU_SDI_Brightness), pictureValueChanged, P::Set_ScreenQulityLightness),
    own(each(FAMILY_InputPicture, MENU_HDMI1_Contrast), pictureValueChanged, P::Set_ScreenQulityContrast),
    own(each(sdi, MENU_SDI_Contrast), pictureValueChanged, P::Set_ScreenQulityContrast),
    own(each(FAMILY_InputPicture, MENU_HDMI1_Saturation), pictureValueChanged, P::Set_ScreenQulitySaturation),
    own(each(sdi, MENU_SDI_Saturation), pictureValueChanged, P::Set_ScreenQulitySaturation),
    own(each(FAMILY_InputPicture, MENU_HDMI1_Hue), pictureValueChanged, P::Set_ScreenQulityHue, number(2)),
    own(each(sdi, MENU_SDI_Hue), pictureValueChanged, P::Set_ScreenQulityHue, number(2)),
    own(each(FAMILY_InputPicture, MENU_HDMI1_ColorReset), InQualityReset, P::Set_ScreenQulityReset),
    own(each(sdi, MENU_SDI_ColorReset), InQualityReset, P::Set_ScreenQulityReset),

    plain(each(FAMILY_Input, MENU_HDMI1_LimitedtoFull), zeroOneElse(0, 1, 0), P::Set_ScreenColorRange),
    own(each(FAMILY_InputPicture, MENU_HDMI1_EDIDApply), EDIDApplySubmit,
        P::Set_InResolutionRatioAndRefreshRateResource),

    plain(each(hdmiInputs, MENU_AudioInput_HDMI1), zeroElse(1, 2), P::Set_AudioSettingInputsource),
    plain(each(silentInputs, MENU_AudioInput_DVI), zeroElse(0, 2), P::Set_AudioSettingInputsource),

    own(MENU_HDCP, HdcpSwitchChanged, P::Set_HdcpStatus),

    plain(MENU_InputBackup_Status, onOff(backupOn, 255), P::Set_InputSourceHotBackUpSwitch),
    own(each(backupPairs, MENU_InputBackup_HDMI1), inputBackupChanged, P::Set_InputSourceHotBackUpSource),

    own(MENU_Mosaic_Apply, InputMosaicParaChanged, P::Set_InputMosaicPara),
};
} // namespace

Table<SendRow> inputRows()
{
    return rows;
}
} // namespace VASK
