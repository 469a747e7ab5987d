// The registers of the flood, a row each.
#include "benchmark/flood.h"
#include "framework/protocol/packet/registeraddress.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "menu/itemindex.h"

using namespace VASK;

namespace
{
using Items = QMap<int, QString>;

/// A number in a record: it moves with the count, within its limits.
struct Field {
    int item;
    int offset;
    int length;
    int first;
    int range;
};

int valueOf(const Field &field, int number)
{
    return field.first + (number * 7 + field.offset) % field.range;
}

FloodRegister record(quint32 address, int size, const QVector<Field> &fields, int deviceType = 0)
{
    return {address, deviceType,
            [size, fields](int number) {
                QByteArray bytes(size, 0);
                for (const Field &field : fields)
                    for (int i = 0; i < field.length; ++i)
                        bytes[field.offset + i] = char(valueOf(field, number) >> 8 * i);
                return bytes;
            },
            [fields](int number) {
                Items items;
                for (const Field &field : fields)
                    items[field.item] = QString::number(valueOf(field, number));
                return items;
            }};
}

/// A byte of so many flags, each one an item.
FloodRegister flags(quint32 address, int firstItem, int count, int firstBit = 0, int bitsEach = 1,
                    bool inverse = false)
{
    return {address, 0, [](int number) { return QByteArray(1, char(number * 37)); },
            [=](int number) {
                Items items;
                for (int i = 0; i < count; ++i)
                    items[firstItem + i] = QString::number(
                        ((number * 37 & 0xFF) >> (firstBit + i * bitsEach) & 1) != (inverse ? 1 : 0));
                return items;
            }};
}

/// A byte each for so many switches.
FloodRegister switches(quint32 address, int firstItem, int count, int on)
{
    const auto isOn = [](int number, int i) { return (number + i) % 3 == 0; };
    return {address, 0,
            [=](int number) {
                QByteArray bytes;
                for (int i = 0; i < count; ++i)
                    bytes += char(isOn(number, i) ? on : 0);
                return bytes;
            },
            [=](int number) {
                Items items;
                for (int i = 0; i < count; ++i)
                    items[firstItem + i] = QString::number(isOn(number, i) ? 1 : 0);
                return items;
            }};
}

/// A byte that is one of two codes, for 0 and 1.
FloodRegister either(quint32 address, int item, int code0, int code1)
{
    return {address, 0, [=](int number) { return QByteArray(1, char(number % 2 ? code1 : code0)); },
            [=](int number) {
                return Items{{item, QString::number(number % 2)}};
            }};
}

FloodRegister brightness()
{
    return {REG_Set_AcceptCardLightnessData, TARGET_Scanner,
            [](int number) { return QByteArray(1, char(number)); },
            [](int number) {
                return Items{{MENU_ScreenBrightness, QString::number(int((number & 0xFF) / 2.55 + 0.5))}};
            }};
}

FloodRegister address()
{
    return {REG_Set_NetCommunicateData, TARGET_Sender,
            [](int number) {
                QByteArray bytes = QByteArray::fromHex("c000a80000000000ff00ff00ff000000c0a80001");
                bytes[6] = char(number % 250);
                return bytes;
            },
            [](int number) {
                return Items{{MENU_Net_IPAddress, QString("192.168.0.%1").arg(number % 250)},
                             {MENU_Net_SubnetMask, "255.255.255.0"},
                             {MENU_Net_Gateway, "192.168.0.1"}};
            }};
}

QVector<FloodRegister> ports()
{
    QVector<FloodRegister> list;
    struct Group {
        quint32 link, backup, engaged;
        int count;
    };
    constexpr Group groups[] = {
        {REG_PortLink_Group1, REG_PortBackup_Group1, REG_PortBackupEngaged_Group1, 4},
        {REG_PortLink_Group2, REG_PortBackup_Group2, REG_PortBackupEngaged_Group2, 4},
        {REG_PortLink_Group3, REG_PortBackup_Group3, REG_PortBackupEngaged_Group3, 2}};
    for (int g = 0; g < 3; ++g) {
        const Group &group = groups[g];
        list += {flags(group.link, PARA_PortLink + 4 * g, group.count),
                 switches(group.backup, PARA_PortBackup + 4 * g, group.count, 0x80),
                 flags(group.engaged, PARA_PortBackupEngaged + 4 * g, group.count, 1, 2),
                 flags(REG_OPT1BackupEngaged + g, PARA_OPT1BackupEngaged + 4 * g, group.count, 1, 2),
                 flags(REG_OPT2BackupEngaged + g, PARA_OPT2BackupEngaged + 4 * g, group.count, 1, 2)};
    }
    for (int g = 0; g < 2; ++g) {
        const int count = g == 0 ? 8 : 2;
        list += {flags(REG_OPT1PortLink + g, PARA_OPT1PortLink + 8 * g, count),
                 flags(REG_OPT2PortLink + g, PARA_OPT2PortLink + 8 * g, count),
                 flags(REG_PortActive + g, PARA_PortActive + 8 * g, count, 0, 1, true)};
    }
    list += flags(REG_OPTLink, PARA_OPT1Link, 2);
    return list;
}

QVector<FloodRegister> layers()
{
    QVector<FloodRegister> list;
    for (int n = 0; n < 3; ++n) {
        const int base = MENU_MainLayer_Status + STRIDE_Layer * n;
        const auto item = [base](ENUM_MenuIndex ofMain) { return base + ofMain - MENU_MainLayer_Status; };
        list += record(REG_Set_SenderFormsStatusData + WINDOW_Stride * n, WINDOW_Stride,
                       {{item(MENU_MainLayer_InitialX), WINDOW_X, 4, 0, 400},
                        {item(MENU_MainLayer_InitialY), WINDOW_Y, 4, 0, 400},
                        {item(MENU_MainLayer_HorWidth), WINDOW_Width, 4, 300, 500},
                        {item(MENU_MainLayer_VerHeight), WINDOW_Height, 4, 300, 500},
                        {item(MENU_MainLayer_Opacity), WINDOW_Opacity, 1, 0, 100}});
        const int crop = MENU_MainLayerCrop_Status + STRIDE_Crop * n;
        list += record(REG_Set_SenderInterception + CROP_LayerStride * n, CROP_InputStride,
                       {{crop, CROP_Status, 1, 0, 2},
                        {crop + 1, CROP_Width, 2, 300, 500},
                        {crop + 2, CROP_Height, 2, 300, 500},
                        {crop + 3, CROP_X, 2, 0, 300},
                        {crop + 4, CROP_Y, 2, 0, 300}});
    }
    return list;
}

QVector<FloodRegister> pictures()
{
    QVector<FloodRegister> list;
    constexpr ENUM_MenuIndex first[] = {MENU_HDMI1_Brightness, MENU_HDMI2_Brightness, MENU_DVI_Brightness,
                                        MENU_DVI2_Brightness, MENU_SDI_Brightness};
    for (int k = 0; k < 5; ++k)
        list += record(REG_Set_ScreenQulityReset + PICTURE_Stride * k, PICTURE_Hue + 2,
                       {{first[k], PICTURE_Brightness, 1, 0, 100},
                        {first[k] + 1, PICTURE_Contrast, 1, 0, 100},
                        {first[k] + 2, PICTURE_Saturation, 1, 0, 100},
                        {first[k] + 3, PICTURE_Hue, 2, 0, 180}});
    for (int k = 0; k < 8; ++k)
        list += k < 2 ? either(REG_InputAudio + STEP_InputAudio * k, MENU_AudioInput_HDMI1 + k, 1, 2)
                      : either(REG_InputAudio + STEP_InputAudio * k, MENU_AudioInput_HDMI1 + k, 0, 1);
    return list;
}

QVector<FloodRegister> settings()
{
    return {
        brightness(),
        address(),
        either(REG_Set_DHCPSwitchData, MENU_Net_NetMode, 0, 168),
        record(REG_OutputResolution, 6,
               {{PARA_ReportedWidth, 0, 2, 800, 1000},
                {PARA_ReportedHeight, 2, 2, 600, 500},
                {PARA_OutputRate, 4, 2, 2400, 4000}}),
        record(REG_SenderOutput, 9,
               {{PARA_ReportedWidthAlias, OUTPUT_Width, 2, 800, 1000},
                {PARA_ReportedHeightAlias, OUTPUT_Height, 2, 600, 500},
                {PARA_ReportedRate, OUTPUT_Rate, 2, 2400, 4000}}),
        record(CabinetWidthAddr, 4,
               {{PARA_CabinetWidth, 0, 2, 64, 200}, {PARA_CabinetHeight, 2, 2, 64, 200}}),
        record(REG_Set_AudioSettingVolume, 1, {{MENU_Audio_Volume, 0, 1, 0, 101}}),
        record(REG_GenlockState, 1, {{PARA_GenlockState, 0, 1, 0, 5}}),
        record(REG_Set_OSD_Switch, 40,
               {{MENU_OSDState, 0, 1, 0, 2},
                {MENU_OSDChoice, 3, 1, 0, 8},
                {MENU_OSDInitialX, 32, 4, 0, 500},
                {MENU_OSDInitialY, 36, 4, 0, 500}}),
        either(REG_Set_LowLatency, MENU_LowLatency, 0, 'x'),
        either(MappingAddr, MENU_Mapping, 0, 5),
        either(REG_Set_3DStatusChanged, MENU_Mode3D_Status, 0, 168),
        either(REG_Set_3DEyePriorChanged, MENU_Mode3D_EyePriority, 100, 50),
        either(REG_Set_3DSourceFormatChanged, MENU_Mode3D_Format, 40, 8),
        record(REG_RightEyeStart, 2, {{MENU_Mode3D_RightEyeStart, 0, 2, 0, 2000}}),
    };
}

/// 1920x1080 in every input, its period as the number.
FloodRegister inputRecord(int n, int code)
{
    return {quint32(REG_InputRecord + STEP_InputRecord * n), TARGET_Sender,
            [code](int number) {
                QByteArray bytes = QByteArray::fromHex("0000038007380400000000").leftJustified(32, '\0');
                bytes[0] = char(code);
                bytes[7] = char(number);
                bytes[8] = char(number >> 8);
                return bytes;
            },
            [n](int number) {
                return Items{{PARA_InputRecordFirst + STRIDE_InputRecord * n + 5, QString::number(number)}};
            }};
}
} // namespace

const QVector<FloodRegister> &foldingRegisters()
{
    static const QVector<FloodRegister> list = settings() + ports() + layers() + pictures();
    return list;
}

const QVector<FloodRegister> &inputRegisters()
{
    static const QVector<FloodRegister> list = [] {
        constexpr int codes[] = {17, 18, 0, 48, 106, 233, 234, 224, 254};
        QVector<FloodRegister> registers;
        for (int n = 0; n < 9; ++n)
            registers += inputRecord(n, codes[n]);
        return registers;
    }();
    return list;
}

const QVector<quint32> &pictureRegisters()
{
    static const QVector<quint32> list{REG_MovingPictures, 0x13400003, 0x13400006, 0x13400010, 0x13400015};
    return list;
}
