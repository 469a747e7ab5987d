#include "emulator/model/videomode.h"

#include <QRegularExpression>
#include <cmath>

namespace
{
constexpr int centi = 100;
constexpr int most = 0xffff;
constexpr int leastRateCentiHz = 1600; ///< the period of a slower one has no room in 16 bits
} // namespace

QString VideoMode::text() const
{
    return QString("%1x%2%3@%4")
        .arg(width)
        .arg(height)
        .arg(interlaced ? "i" : "")
        .arg(double(rateCentiHz) / centi);
}

std::optional<VideoMode> VideoMode::parse(const QString &text)
{
    static const QRegularExpression form("^(\\d{1,5})x(\\d{1,5})(i?)@(\\d{1,3}(?:\\.\\d{1,2})?)$");
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    VideoMode mode;
    mode.width = match.captured(1).toInt();
    mode.height = match.captured(2).toInt();
    mode.interlaced = !match.captured(3).isEmpty();
    mode.rateCentiHz = int(std::lround(match.captured(4).toDouble() * centi));
    const auto fits = [](int number, int least) { return number >= least && number <= most; };
    if (!fits(mode.width, 1) || !fits(mode.height, 1) || !fits(mode.rateCentiHz, leastRateCentiHz))
        return std::nullopt;
    return mode;
}
