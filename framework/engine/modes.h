// The modes of the device and the choices of a few lists, as items and process data number them. Any thread.
#pragma once

#include <QString>

namespace VASK
{
/// MENU_WorkMode.
enum WorkMode : int { WORK_CONTROLLER = 0, WORK_FIBER = 1, WORK_SENDER = 2 };

/// PARA_DisplayMode; the device's own codes are those of DisplayCode.
enum DisplayMode : int { MODE_Normal, MODE_Frozen, MODE_Black, MODE_Testing };

/// MENU_FnMode, in the order of the rows of the Fn page.
enum FnFunction : int { FN_Synchronization, FN_Output, FN_Black, FN_Freeze, FN_Test };

/// MENU_Mode3D_Format.
enum StereoFormat : int { SideBySide, TopAndBottom, FrameSequential };

/// MENU_Net_NetMode.
inline const QString manualAddress = QStringLiteral("0");
inline const QString automaticAddress = QStringLiteral("1");

/// Rows of the scaling lists.
inline const QString fullScreen = QStringLiteral("0");
inline const QString pixelToPixel = QStringLiteral("1");
inline const QString customScaling = QStringLiteral("2");
constexpr int fullScreenRow = 0;
constexpr int pixelToPixelRow = 1;

/// MENU_Layout.
inline const QString equalLayout = QStringLiteral("0"); ///< 1:1:1
inline const QString customLayout = QStringLiteral("2");

/// MENU_Mosaic_Layout.
inline const QString mosaicAbove = QStringLiteral("0"); ///< one above the other
inline const QString mosaicBeside = QStringLiteral("1");

/// Text of the options of a source list that select the input mosaic.
inline const QString mosaicOption = QStringLiteral("MOSAIC");
} // namespace VASK
