// The flash snapshot as the panel reads it: where each block lies and what its bytes mean. The device reports
// many of its records in the same form. All numbers are little-endian; offsets are bytes from the start of
// their block or record.
#pragma once

#include "framework/protocol/devicecodes.h"
#include "framework/protocol/packet/registeraddress.h"

namespace VASK
{
/// Addresses of the blocks, bytes into the snapshot.
enum SnapshotAddress : unsigned int {
    SNAPSHOT_Device = 0x2000,
    SNAPSHOT_Stereo = 0x2400,
    SNAPSHOT_OutputMode = 0x2F00,
    SNAPSHOT_PresetInUse = 0x2F10,
    SNAPSHOT_FirstPreset = 0x3000,
    SNAPSHOT_LiveRecord = 0xE400, ///< the slot behind the last preset
    SNAPSHOT_Output = 0xF600,
    SNAPSHOT_InputBackup = 0x10600,
    SNAPSHOT_LoadArea = 0x12600,
    SNAPSHOT_Inputs = 0x15600,
    SNAPSHOT_RenameFlag = 0xD14000,
    SNAPSHOT_Name = 0xD14100,
};

/// Lengths of the blocks in bytes.
enum SnapshotLength : unsigned int {
    LENGTH_Device = 161,
    LENGTH_Stereo = 11,
    LENGTH_OutputMode = 1,
    LENGTH_PresetInUse = 2,
    LENGTH_Preset = 0x1200,
    LENGTH_LiveRecord = 0x1200,
    LENGTH_Output = 16,
    LENGTH_InputBackup = 53,
    LENGTH_LoadArea = 28,
    LENGTH_Inputs = 64,
    LENGTH_Name = 64,
};

/// Offsets in the device block.
enum DeviceOffset : int {
    DEVICE_Transition = 1,      ///< u8, non-zero fade
    DEVICE_TransitionTime = 2,  ///< u16, hundredths of a second
    DEVICE_TestPattern = 5,     ///< u8, family in the upper four bits, pattern in the lower
    DEVICE_IpAddress = 6,       ///< u16 x 4
    DEVICE_SubnetMask = 14,     ///< u16 x 4
    DEVICE_Gateway = 22,        ///< u8 x 4
    DEVICE_Dhcp = 26,           ///< u8, 168 on
    DEVICE_BlackTime = 51,      ///< u16, hundredths of a second
    DEVICE_TestBrightness = 66, ///< u8
    DEVICE_TestSpacing = 67,    ///< u8
    DEVICE_TestSpeed = 68,      ///< u8
    DEVICE_Splicing = 83,       ///< u8, 168 on
    DEVICE_AudioOutput = 158,   ///< u8, 240 line in
    DEVICE_Volume = 159,        ///< u8
};

/// Offsets in the 3D block.
enum StereoOffset : int {
    STEREO_Switch = 0,      ///< u8, 168 on
    STEREO_EyePriority = 1, ///< u8, 100 left, 50 right
    STEREO_Format = 2,      ///< u8, 40, 8 or 24
    STEREO_StartSide = 3,   ///< u16, right-eye start of format 40
    STEREO_StartTop = 5,    ///< u16, right-eye start of format 8
    STEREO_Emitter = 7,     ///< u8
    STEREO_Delay = 8,       ///< 24 bits, in ticks of 8 ns
};

/// The live record lies where the record behind the last preset would.
constexpr int snapshotPresets = 10;
static_assert(SNAPSHOT_FirstPreset + snapshotPresets * LENGTH_Preset == SNAPSHOT_LiveRecord);

/// Offsets in a preset record.
enum PresetOffset : int {
    PRESET_Stored = 10, ///< u8, 168 when it holds data
    PRESET_Name = 512,  ///< 19 bytes in GB2312
};
constexpr int presetNameLength = 19;

/// Offsets in the live record.
enum LiveOffset : int {
    LIVE_Windows = 0x400,
    LIVE_Pictures = 0x600,
    LIVE_Crops = 0xA00,
    LIVE_Unused1 = 0xF00,  ///< 48 bytes that nobody here reads
    LIVE_Unused2 = 0x1000, ///< 257 bytes, the same
};

/// Offsets in the window table of the live record; one record a layer.
enum WindowOffset : int {
    WINDOW_First = 0x10,
    WINDOW_Stride = STEP_Set_SenderFormsStatusData,
    WINDOW_Status = 0,   ///< u8
    WINDOW_Input = 2,    ///< u8
    WINDOW_Priority = 3, ///< u8
    WINDOW_X = 5,        ///< i32
    WINDOW_Y = 9,        ///< i32
    WINDOW_Width = 13,   ///< i32
    WINDOW_Height = 17,  ///< i32
    WINDOW_Opacity = 47, ///< u8
};

/// Offsets in the picture table of the live record; one record an input.
enum PictureOffset : int {
    PICTURE_Stride = STEP_Set_ScreenQulityReset,
    PICTURE_Brightness = 1, ///< u8
    PICTURE_Contrast = 2,   ///< u8
    PICTURE_Saturation = 4, ///< u8
    PICTURE_Hue = 5,        ///< u16
    PICTURE_FullRange = 19, ///< u8
};

/// Offsets in the crop table of the live record; a record for every input in every layer.
enum CropOffset : int {
    CROP_First = 0x14,
    CROP_LayerStride = STEP_Set_SenderInterception,
    CROP_InputStride = STEP2_Set_SenderInterception,
    CROP_Status = 2, ///< u8
    CROP_X = 3,      ///< u16
    CROP_Y = 5,      ///< u16
    CROP_Width = 7,  ///< u16
    CROP_Height = 9, ///< u16
    CROP_End = 11,   ///< behind the last byte
};

/// Offsets in the output block.
enum OutputOffset : int {
    OUTPUT_Width = 3,           ///< u16
    OUTPUT_Height = 5,          ///< u16
    OUTPUT_Rate = 7,            ///< u16, hundredths of a hertz
    OUTPUT_SoftwareWidth = 10,  ///< u16
    OUTPUT_SoftwareHeight = 12, ///< u16
    OUTPUT_SoftwareRate = 14,   ///< u16, hundredths of a hertz
};

/// Offsets in the input-backup block.
enum BackupOffset : int {
    BACKUP_Switch = 0,  ///< u8, 0x5B on
    BACKUP_Hdmi = 18,   ///< u8
    BACKUP_Dvi = 22,    ///< u8
    BACKUP_Mosaic = 26, ///< u8
};

/// Offsets in the load-area block.
enum LoadAreaOffset : int {
    LOADAREA_X = 16,      ///< i32
    LOADAREA_Y = 20,      ///< i32
    LOADAREA_Width = 24,  ///< u16
    LOADAREA_Height = 26, ///< u16
};

/// Offsets in the block of the inputs.
enum InputsOffset : int {
    INPUTS_Hdcp = 48,  ///< u8, lowest bit
    INPUTS_Audio = 49, ///< u8, one every second byte
    INPUTS_AudioStride = 2,
};

/// The byte that says that the device has a name of its own.
constexpr int renamedMark = 0x9A;
} // namespace VASK
