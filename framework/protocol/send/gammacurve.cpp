#include "framework/protocol/send/gammacurve.h"

#include <QtGlobal>
#include <array>
#include <cmath>

namespace VASK
{
namespace
{
constexpr int entryCount = 256;
constexpr int fullScale = 65535;
using Curve = std::array<double, entryCount>;

struct Scale {
    double top; ///< value of the last entry
    int shift;  ///< low bits that the depth does not have
};

Scale scaleOf(int bits, double ratio)
{
    constexpr double lowestTop = 1023;
    const double used = ratio < 0 || ratio > 1 ? 1.0 : ratio;
    Scale scale{};
    if (bits <= 20)
        scale = {used * std::pow(2.0, bits) - 1, qMax(0, 16 - bits)};
    else
        scale = {ratio < 0 ? fullScale : used * (fullScale + 1) - 1, 0};
    scale.top = qMax(scale.top, lowestTop);
    return scale;
}

/// The range that is smoothed: the window grows from start to middle and shrinks from there to end.
struct Range {
    int start;
    int middle;
    int end;
};

Range smoothingRange(int lastRaised)
{
    if (lastRaised < 5)
        return {2, 3, 4};
    if (lastRaised > 100)
        return {66, 99, 132};
    const int third = lastRaised / 3;
    return {2 * third, 3 * third, 4 * third};
}

/// Keeps the curve from falling below one step an entry; the last entry that was raised, 1 if none was.
int raiseToDiagonal(Curve &curve)
{
    int last = 1;
    for (int i = 1; i < entryCount; ++i) {
        if (curve[i] < i) {
            curve[i] = i;
            last = i;
        }
    }
    return last;
}

/// Smooths the bend where the raised part meets the curve.
void smooth(Curve &curve, const Range &range)
{
    Curve smoothed = curve;
    int width = 2;
    for (int i = range.start; i < range.end; ++i) {
        const int half = width / 2;
        const int third = width / 3;
        smoothed[i] =
            0.2 * (curve[i - half] + curve[i - third] + curve[i] + curve[i + third] + curve[i + half]);
        width += i < range.middle ? 1 : -1;
    }
    curve = smoothed;
}

void cap(QVector<int> &table, int limit)
{
    if (limit == 0)
        return;
    for (int &entry : table)
        entry = qMin(entry, limit);
}
} // namespace

QVector<int> CountGammaCurve(double gamma, int bits, double ratio, int limit)
{
    if (gamma < 1.0 || gamma > 4.0)
        gamma = 2.8;
    const Scale scale = scaleOf(bits, ratio);
    if (ratio < 0 || ratio > 1)
        ratio = 1.0;

    Curve curve{};
    for (int i = 0; i < entryCount; ++i)
        curve[i] = scale.top * std::pow(i / double(entryCount - 1), gamma);
    if (!qFuzzyCompare(gamma, 1.0))
        smooth(curve, smoothingRange(raiseToDiagonal(curve)));

    const double toFullScale = fullScale / scale.top;
    QVector<int> table;
    table.reserve(entryCount);
    for (double entry : curve) {
        const auto scaled = quint32(entry * toFullScale + 0.5);
        table.append(int(quint32(scaled * ratio) >> scale.shift << scale.shift));
    }
    cap(table, limit);
    return table;
}

int GetGammaBaseParameters(int depth, LowGrayQueryMode query, GrayRealizeType realize)
{
    if (depth < 1 || depth > 16)
        return 0;
    if (query == LOWGRAY_Base19)
        return 1 << (19 - depth);
    if (query == LOWGRAY_Base18 || realize == GRAY_Base18)
        return 1 << (18 - depth);
    return 0;
}

QVector<int> CountGammaCurve(double gamma, int bits, double ratio, LowGrayQueryMode query,
                             GrayRealizeType realize, int limit)
{
    QVector<int> table = CountGammaCurve(gamma, bits, ratio, 0);
    const int base = GetGammaBaseParameters(bits, query, realize);
    int first = 0;
    for (int &entry : table) {
        if (first == 0)
            first = entry;
        if (first != 0 && entry == first)
            entry += base;
    }
    cap(table, limit);
    return table;
}

QVector<int> GetGammaValue(double gamma, HDEnableType type)
{
    const int count = type == HDENABLE_12Bit ? 4096 : 1024;
    QVector<int> table;
    table.reserve(count);
    for (int i = 0; i < count; ++i)
        table.append(int(fullScale * std::pow(i / double(count - 1), gamma) + 0.5));
    return table;
}

QByteArray GetGammaTable(const QVector<int> &table)
{
    QByteArray bytes;
    bytes.reserve(table.size() * 2);
    for (int entry : table) {
        bytes.append(char(entry & 0xFF));
        bytes.append(char(entry >> 8 & 0xFF));
    }
    return bytes;
}
} // namespace VASK
