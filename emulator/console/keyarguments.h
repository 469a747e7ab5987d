// Keys as arguments of a console word.
#pragma once

#include "emulator/console/arguments.h"

#include <QVector>

/// The codes of one key or of several joined by '+', by name, by what is printed on them, or by number.
QVector<int> takeKeys(Arguments &arguments);
