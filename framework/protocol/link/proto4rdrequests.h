// What an item's change is as a request to the device service: resource, form and body, a row an item. No
// state; GUI thread.
#pragma once

#include "framework/communication/http/protocol4rdmsg.h"
#include "menu/itemfamilies.h"

#include <QMap>
#include <QString>
#include <functional>

namespace VASK
{
/// A test pattern as the service knows it.
struct ST_TestPattern {
    unsigned char mode;
    unsigned char red;
    unsigned char green;
    unsigned char blue;
    unsigned char reserved;
    unsigned char lineWidth;
    unsigned char moveDirection;
};

/// The patterns by number: colours from 0, gradients from 100, grids from 200.
QMap<int, ST_TestPattern> testPatterns();

/// An item with its new value, and what its request may look up.
struct RestChange {
    ENUM_MenuIndex index;
    const QString &value;
    const QMap<int, ST_TestPattern> &patterns;
    /// The current value of an item as text.
    std::function<QString(ENUM_MenuIndex)> item;

    int number(ENUM_MenuIndex menuIndex) const { return item(menuIndex).toInt(); }
    unsigned int natural(ENUM_MenuIndex menuIndex) const { return item(menuIndex).toUInt(); }
};

struct RestRow {
    ItemSpan span;
    const char *key; ///< of the catalogue
    methontype type;
    unsigned long long id;
    /// Puts the body into the message; false, with a log line, for a value that makes no request.
    bool (*fill)(const RestChange &, ST_Protocol4rdMsg &);
    const char *failure; ///< logged when the request fails
};

/// The row of an item, null if it has none.
const RestRow *restRow(ENUM_MenuIndex index);

/// The two ids that mean all there is: this screen, and every cabinet.
constexpr unsigned long long thisScreen = 255;
constexpr unsigned long long allCabinets = 16777215;
} // namespace VASK
