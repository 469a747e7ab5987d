// Whether panel and device agree once nothing moves any more: what is held back has been sent, the store
// holds what the device holds, and the home screen shows what the store does not keep. GUI thread of the
// test.
#pragma once

#include <QString>

class Panel;

namespace agreement
{
/// What store and device do not agree on once the panel has written no register for so long; empty if they
/// agree. Items that fit the expression are left out.
QString disagreement(Panel &panel, int stillMs = 3000, const QString &but = "^$");
/// The size that leaves the device and its ports: empty, or the first sight of the home screen that is not
/// the device's.
QString missingAtHome(Panel &panel);
} // namespace agreement
