// Finds a text on a picture of the LCD: the text is drawn with the panel's fonts and looked for in every
// place, in any colour on any even background. GUI thread of its program.
#pragma once

#include <QFont>
#include <QImage>
#include <QRect>
#include <QVector>

namespace lcdtext
{
/// Where the text stands in the given font, an empty rectangle if nowhere in the area.
QRect find(const QImage &screen, const QString &text, const QFont &font, const QRect &area = QRect());
/// The same with each font that the panel uses, in the sizes that fit the LCD.
QRect find(const QImage &screen, const QString &text, const QRect &area = QRect());
/// The most frequent colour of an area, its background as a rule.
QRgb background(const QImage &screen, const QRect &area);
} // namespace lcdtext
