// The 32-bit register space by name: the registers of the catalogue, those that are spoken of by a name of
// their own, and who takes a packet.
#pragma once

namespace VASK
{
/// Who a packet is for: byte 6 of the frame.
enum DeviceType : unsigned char {
    TARGET_Sender = 0,  ///< the sending side
    TARGET_Scanner = 1, ///< the receiving cards
    TARGET_Stereo = 4,  ///< the 3D emitter
};

#define FPD_WRITE(name, address, bytes, device) REG_##name = address,
#define FPD_WRITE_EACH(name, address, stride, bytes, device) REG_##name = address,
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device) REG_##name = address,
#define FPD_READ(name, address, bytes) REG_##name = address,
#define FPD_REGISTER(name, address) REG_##name = address,
#define FPD_REGISTER_EACH(name, address, stride) REG_##name = address,
enum RegisterAddress : unsigned int {
#include "framework/protocol/packet/registercatalogue.def"

    HeartbeatAddr = 0x13001004,  ///< written by a host once a second while it holds the device
    SyncSilentAddr = 0x0200003F, ///< pushed without anybody having changed a setting

    ScreenTakeEffectAddr = 0x1300002F,
    ScreenControlSwitchTimeAddr = 0x13000030,
    HDMISourceBitsAddr = 0x13010140,
    ScenseStatusAddr = 0x13511000,
    AllOsdStatusAddr = 0x13410400,
    AllLogoStatusAddr = 0x13410500,
    AllBKGStatusAddr = 0x13410580,
    SendPicDataType = 0x13410000,
    BkgOnPgmAddr = 0x135100F0,
    TelepOnPgmAddr = 0x13600040,
    Sender_DeviceDiagnosticsBase = REG_Set_SelfTest,
    ReloadParam = 0x010000FF,
    ScreenRouteWayOutLimitAddr = 0x02810008,
    HDEnableAddr = 0x03100109,
    CabinetWidthAddr = 0x02100006,
    CabinetHeighthAddr = 0x02100008,
    ScannerGrayDepthAddr = 0x02000025,
    ScannerGrayRealizeTypeAddr = 0x02000026,
    ScannerGrayQueryAddr = 0x020000B3,

    ScannerSolidifyAddr = REG_Set_SolidifyScanner,
    MappingAddr = 0x01000088,
    ScannerGammaAddr = REG_Set_AcceptCardGammaData,
    ScannerLightnessAddr = REG_Set_AcceptCardLightnessData,
    ScannerRedLightnessAddr = REG_Set_AcceptCardRedLightnessData,
    ScannerGreenLightnessAddr = REG_Set_AcceptCardGreenLightnessData,
    ScannerBlueLightnessAddr = REG_Set_AcceptCardBlueLightnessData,
    ScannerCabinetWidth = REG_Set_AcceptOnLoadWidthAndHeight,
};

/// Distances in the rows of registers; of a pair from layer to layer, and from input to input.
enum RegisterStride : int {
#define FPD_WRITE_EACH(name, address, stride, bytes, device) STEP_##name = stride,
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device)                                        \
    STEP_##name = stride, STEP2_##name = stride2,
#define FPD_REGISTER_EACH(name, address, stride) STEP_##name = stride,
#include "framework/protocol/packet/registercatalogue.def"
};
} // namespace VASK
