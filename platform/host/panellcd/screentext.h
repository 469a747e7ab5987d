// What stands on the LCD as data. The visible widgets are painted once more, on a device that notes their
// texts, and Qt says of each what kind of widget it stands in and in which state. GUI thread.
#pragma once

#include <QJsonArray>
#include <QList>

class QWindow;

/// The texts in reading order, those of the window in front first. Each is an object:
///   text     as drawn, lines parted by a line feed;  whole: the widget's own text, where that is longer
///   x y width height    on the LCD;  cut: true if a part of it is not seen
///   role     title, row label, value, button, list entry, message or home field
///   state    any of focused, edited, disabled, list open
///   colour   #rrggbb;  class and name: of the widget, or of the menu row that it stands in
/// Windows: as they are stacked, the one in front first.
QJsonArray screenTexts(const QList<QWindow *> &windows);
