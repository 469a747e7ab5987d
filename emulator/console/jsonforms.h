// What words and pages tell as JSON.
#pragma once

#include "emulator/emulator.h"

#include <QJsonObject>

namespace jsonforms
{
QJsonObject panel(const PanelProcess &panel);
QJsonObject logLine(const LogLine &line);
QJsonObject write(const RegisterWrite &write);
/// By the names of the keys; text: a character for each LED.
QJsonObject leds(const QString &text);
} // namespace jsonforms
