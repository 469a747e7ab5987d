// Gamma curves as the cards take them: tables of 16-bit entries computed from an exponent. Pure functions;
// any thread.
#pragma once

#include <QByteArray>
#include <QVector>

namespace VASK
{
enum LowGrayQueryMode : int { LOWGRAY_Off = 0, LOWGRAY_Base18 = 1, LOWGRAY_Base19 = 2 };
enum GrayRealizeType : int { GRAY_Plain = 0, GRAY_Base18 = 3 };

/// Types of the sending side's table.
enum HDEnableType : unsigned char { HDENABLE_10Bit = 0x5A, HDENABLE_12Bit = 0x78, HDENABLE_None = 255 };

/// The 256 entries of a receiving card's curve, scaled to 16 bits and cut to the depth in bits. A gamma
/// outside 1.0 to 4.0 counts as 2.8, a ratio outside 0 to 1 as 1.0; a limit of 0 caps nothing.
QVector<int> CountGammaCurve(double gamma, int bits, double ratio, int limit);
/// The same, with the first step of the curve raised by what mode and type ask for.
QVector<int> CountGammaCurve(double gamma, int bits, double ratio, LowGrayQueryMode query,
                             GrayRealizeType realize, int limit);
/// What the first step is raised by; 0 for the plain modes and outside depths of 1 to 16 bits.
int GetGammaBaseParameters(int depth, LowGrayQueryMode query, GrayRealizeType realize);

/// The entries of the sending side's curve: 4096 for the 12-bit type, else 1024.
QVector<int> GetGammaValue(double gamma, HDEnableType type);

/// Each entry as two bytes, low byte first.
QByteArray GetGammaTable(const QVector<int> &table);
} // namespace VASK
