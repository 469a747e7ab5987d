// Addresses of the 32-bit register space that are spoken of beside the builders' own, and who takes a packet.
#pragma once

namespace VASK
{
/// Who a packet is for: byte 6 of the frame.
enum DeviceType : unsigned char {
    TARGET_Sender = 0,  ///< the sending side
    TARGET_Scanner = 1, ///< the receiving cards
    TARGET_Stereo = 4,  ///< the 3D emitter
};

enum RegisterAddress : unsigned int {
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
    Sender_DeviceDiagnosticsBase = 0x13800000,
    ReloadParam = 0x010000FF,
    ScreenRouteWayOutLimitAddr = 0x02810008,
    HDEnableAddr = 0x03100109,
    CabinetWidthAddr = 0x02100006,
    CabinetHeighthAddr = 0x02100008,
    ScannerGrayDepthAddr = 0x02000025,
    ScannerGrayRealizeTypeAddr = 0x02000026,
    ScannerGrayQueryAddr = 0x020000B3,

    ScannerSolidifyAddr = 0x01000011,
    MappingAddr = 0x01000088,
    ScannerGammaAddr = 0x02000000,
    ScannerLightnessAddr = 0x02000001,
    ScannerRedLightnessAddr = 0x02000002,
    ScannerGreenLightnessAddr = 0x02000003,
    ScannerBlueLightnessAddr = 0x02000004,
    ScannerCabinetWidth = 0x02000017,
};
} // namespace VASK
