// Bytes by which the device names states and choices, the same in what it is sent, in what it reports and in
// its flash snapshot. No state; any thread.
#pragma once

namespace VASK
{
/// The byte that many registers take for "on".
constexpr unsigned char deviceOn = 168;
/// Switch of the input backup.
constexpr unsigned char backupOn = 91;

/// Display modes.
enum DisplayCode : unsigned char {
    DISPLAY_Normal = 3,
    DISPLAY_Freeze = 4,
    DISPLAY_Black = 5,
    DISPLAY_Test = 6
};

/// Formats of a 3D source.
enum StereoCode : unsigned char { STEREO_SideBySide = 40, STEREO_TopAndBottom = 8, STEREO_Sequential = 24 };
/// Which eye comes first.
enum EyeCode : unsigned char { EYE_LeftFirst = 100, EYE_RightFirst = 50 };
/// The emitter's delay is counted in steps of 8 ns.
constexpr int delayStepsPerMicrosecond = 125;

/// Sound of the output that comes from no input; in the menu it is the row behind the inputs.
constexpr unsigned char audioLineIn = 240;
constexpr int audioLineInRow = 4;

constexpr unsigned char lowLatencyOn = 'x';
/// Mapping pattern of the receiving cards.
constexpr unsigned char mappingOn = 5;
} // namespace VASK
