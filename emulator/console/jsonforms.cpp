#include "emulator/console/jsonforms.h"

#include "emulator/console/timetext.h"

namespace jsonforms
{
QJsonObject panel(const PanelProcess &panel)
{
    return {{"running", panel.isRunning()}, {"status", panel.status()}};
}

QJsonObject logLine(const LogLine &line)
{
    return {{"time", timeText(line.timeMs)}, {"text", QString::fromUtf8(line.text)}};
}

QJsonObject write(const RegisterWrite &write)
{
    return {
        {"time", timeText(write.timeMs)}, {"address", QString("%1").arg(write.address, 8, 16, QChar('0'))},
        {"device", write.deviceType},     {"port", write.port},
        {"board", write.board},           {"bytes", QString::fromLatin1(write.bytes.toHex())}};
}

QJsonObject leds(const QString &text)
{
    QJsonObject all;
    for (const KeyName &key : keyNames()) {
        const QChar state = key.led >= 0 ? text.at(key.led) : QChar();
        if (key.led >= 0)
            all.insert(key.name, state == '0' ? "off" : state == '1' ? "on" : "blinks");
    }
    return all;
}
} // namespace jsonforms
