// What every full screen of the menu looks like: background, title line, scroll bar. GUI thread.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

namespace VASK
{
namespace menulook
{
constexpr int width = 320; ///< pixels, as all here
constexpr int height = 240;
constexpr int titleHeight = 24;
constexpr int titleMargin = 8;
constexpr int titlePixels = 14;
/// Titles of pages are a little larger from the start than after a change of language.
constexpr int firstTitlePixels = 16;
/// What lies below the title.
constexpr QRect below(QPoint(0, titleHeight), QPoint(width - 1, height - 1));
} // namespace menulook

QString menuTitleStyle(bool english, int pixels);
/// Read once, all screens have the same.
/// @{
const QString &menuScrollBarStyle();
const QPixmap &menuBackground();
/// @}
} // namespace VASK
