// What every full screen of the menu looks like: background, title line, scroll bar. GUI thread.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

class QLabel;
class QTableWidget;

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

/// Titles and notes: their font and their colour.
void setNoteLook(QLabel &label, bool english, int pixels);
/// The rows of a page: the font, the colour of texts, dimmer where a row is disabled, and of the cursor, as a
/// style sheet of a page says. A sheet is matched against every widget of a page, when it opens and with each
/// change: where no row needs it, font and palette do the same. All of a sheet that is not of the common form
/// is left to Qt.
void setRowsLook(QTableWidget &table, const QString &sheet, bool asSheet);
/// Read once, all screens have the same.
/// @{
const QString &menuScrollBarStyle();
const QPixmap &menuBackground();
/// @}
} // namespace VASK
