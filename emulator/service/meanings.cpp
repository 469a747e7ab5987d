#include "emulator/service/meanings.h"

#include "emulator/host/cabinetfiles.h"
#include "emulator/model/block.h"
#include "emulator/model/registermap.h"

#include <QJsonArray>
#include <QJsonObject>
#include <cmath>

namespace rest
{
namespace
{
using Writes = QVector<Write>;
using Made = std::optional<Writes>;

constexpr quint32 solidRegister = 0x01000011;
constexpr quint32 mappingRegister = 0x01000088;
constexpr quint32 lowLatencyRegister = 0x02000074;
constexpr quint32 displayRegister = 0x13000004; ///< mode, then test pattern
constexpr quint32 patternRegister = 0x13000042; ///< brightness, spacing, speed
constexpr quint32 advancedRegister = 0x02810000;
constexpr quint32 routeRegister = 0x02810011;
constexpr quint32 portStride = 64;
constexpr quint32 loadCabinetRegister = 0x0FF00100;

constexpr int mappingOn = 5, mappingOff = 255;
constexpr int lowLatencyOn = 120;
constexpr int takeOverPorts = 185;
constexpr int testMode = 6;
constexpr int displayModes[] = {3, 5, 4}; ///< normal, black and freeze, in the order of the service's numbers
constexpr int gammaScale = 10;            ///< the register holds tenths
constexpr int portCount = 10;

QByteArray byte(int value)
{
    return QByteArray(1, char(value));
}

/// A whole number of an object, from 0 to most.
std::optional<int> number(const QJsonValue &object, const char *name, int most)
{
    const QJsonValue value = object[QLatin1String(name)];
    const double given = value.toDouble(-1);
    if (!value.isDouble() || given < 0 || given > most || given != std::floor(given))
        return std::nullopt;
    return int(given);
}

constexpr int mostByte = 0xff, mostWord = 0xffff;

int u8(const Registers &registers, quint8 deviceType, quint32 address)
{
    return quint8(registers.read(deviceType, address, 1)[0]);
}

/// A value of the receiving cards.
Made cardByte(quint32 address, int value)
{
    return Writes{{receivingCard, address, byte(value)}};
}

Made changeBrightness(const QJsonValue &body)
{
    const auto value = number(body, "value", mostByte);
    return value ? cardByte(cardBrightnessRegister, *value) : std::nullopt;
}

QJsonValue readBrightness(const Registers &registers)
{
    return QJsonObject{{"value", u8(registers, receivingCard, cardBrightnessRegister)}};
}

Made changeGamma(const QJsonValue &body)
{
    const double tenths = std::round(body["value"].toDouble(-1) * gammaScale);
    if (!(tenths >= 0 && tenths <= mostByte))
        return std::nullopt;
    return Writes{{receivingCard, cardGammaRegister, byte(int(tenths))}};
}

QJsonValue readGamma(const Registers &registers)
{
    constexpr int plainCurve = 3;
    return QJsonObject{{"type", plainCurve},
                       {"value", u8(registers, receivingCard, cardGammaRegister) / double(gammaScale)}};
}

constexpr const char *colours[] = {"r", "g", "b"};

Made changeColours(const QJsonValue &body)
{
    QByteArray bytes;
    for (const char *colour : colours) {
        const auto value = number(body, colour, mostByte);
        if (!value)
            return std::nullopt;
        bytes += byte(*value);
    }
    return Writes{{receivingCard, cardColoursRegister, bytes}};
}

QJsonValue readColours(const Registers &registers)
{
    QJsonObject object;
    quint32 address = cardColoursRegister;
    for (const char *colour : colours)
        object.insert(QLatin1String(colour), u8(registers, receivingCard, address++));
    return object;
}

Made changeSolid(const QJsonValue &body)
{
    const auto what = number(body, "type", mostByte);
    if (!what)
        return std::nullopt;
    return Writes{{receivingCard, solidRegister, byte(*what)}};
}

Made changeMapping(const QJsonValue &body)
{
    const QJsonValue on = body["enable"];
    return on.isBool() ? cardByte(mappingRegister, on.toBool() ? mappingOn : mappingOff) : std::nullopt;
}

QJsonValue readMapping(const Registers &registers)
{
    return QJsonObject{{"enable", u8(registers, receivingCard, mappingRegister) == mappingOn}};
}

Made changeLowLatency(const QJsonValue &body)
{
    const QJsonValue on = body["enable"];
    if (!on.isBool())
        return std::nullopt;
    return Writes{{sendingSide, lowLatencyRegister, byte(on.toBool() ? lowLatencyOn : 0)}};
}

QJsonValue readLowLatency(const Registers &registers)
{
    return QJsonObject{{"enable", registers.u8(lowLatencyRegister) == lowLatencyOn}};
}

Made changeDisplayMode(const QJsonValue &body)
{
    const auto mode = number(body, "value", int(std::size(displayModes)) - 1);
    if (!mode)
        return std::nullopt;
    return Writes{{sendingSide, displayRegister, byte(displayModes[*mode])}};
}

QJsonValue readDisplayMode(const Registers &registers)
{
    const auto *mode =
        std::find(std::begin(displayModes), std::end(displayModes), registers.u8(displayRegister));
    if (mode == std::end(displayModes))
        return QJsonValue(); // a test pattern
    return QJsonObject{{"value", int(mode - std::begin(displayModes))}};
}

/// The names of the files that the board carries; the index, which is the last, is none of them.
QStringList cabinetNames()
{
    QStringList names;
    for (const CabinetFile &file : cabinetFiles())
        names += file.name;
    names.removeLast();
    return names;
}

Made refuse(const QJsonValue &)
{
    return std::nullopt;
}

QJsonValue readCabinets(const Registers &)
{
    return QJsonArray::fromStringList(cabinetNames());
}

/// By the name, or by the number and the name as the panel lists them: "1+NAME".
Made sendCabinet(const QJsonValue &body)
{
    const QString given = body["fileName"].toString();
    bool isNumber = false;
    const int listed = given.section('+', 0, 0).toInt(&isNumber);
    const int file = isNumber ? listed : cabinetNames().indexOf(given);
    constexpr int mostFiles = 8;
    if (file < 0 || file >= mostFiles)
        return std::nullopt;
    return Writes{{sendingSide, loadCabinetRegister + quint32(file), byte(1)}};
}

/// A pattern as the service describes it, and as the register has it: the family's mark and the icon's place.
struct Pattern {
    int mode;
    int red, green, blue;
    int code;
};
constexpr int on = 255, gradientMark = 0x20, gridMark = 0x10;
constexpr Pattern patterns[] = {
    {1, 0, 0, 0, 0},
    {1, on, 0, 0, 1},
    {1, 0, on, 0, 2},
    {1, 0, 0, on, 3},
    {1, on, on, on, 4},
    {11, on, on, on, 5},
    {12, on, on, on, 6},
    {10, on, on, on, 7},
    {3, on, 0, 0, gradientMark | 0},
    {3, 0, on, 0, gradientMark | 1},
    {3, 0, 0, on, gradientMark | 2},
    {3, on, on, on, gradientMark | 3},
    {2, on, 0, 0, gradientMark | 4},
    {2, 0, on, 0, gradientMark | 5},
    {2, 0, 0, on, gradientMark | 6},
    {2, on, on, on, gradientMark | 7},
    {5, on, on, on, gridMark | 0},
    {4, on, on, on, gridMark | 1},
    {7, on, on, on, gridMark | 2},
    {8, on, on, on, gridMark | 3},
    {6, on, on, on, gridMark | 4},
    {9, on, on, on, gridMark | 5},
};

Made changeTestPattern(const QJsonValue &body)
{
    constexpr int grayStep = 65; ///< between two of the four levels
    const auto mode = number(body, "modeType", mostByte), gray = number(body, "gray", mostByte);
    const auto red = number(body, "red", mostByte), green = number(body, "green", mostByte),
               blue = number(body, "blue", mostByte);
    const auto spacing = number(body, "spaceValue", mostByte), speed = number(body, "moveSpeed", mostByte);
    const auto *pattern = std::find_if(std::begin(patterns), std::end(patterns), [&](const Pattern &row) {
        return mode == row.mode && red == row.red && green == row.green && blue == row.blue;
    });
    if (pattern == std::end(patterns) || !gray || !spacing || !speed)
        return std::nullopt;
    return Writes{{sendingSide, patternRegister, byte(*gray / grayStep + 1) + byte(*spacing) + byte(*speed)},
                  {sendingSide, displayRegister, byte(testMode) + byte(pattern->code)}};
}

Made changeQuick(const QJsonValue &body)
{
    const auto rows = number(body, "rowCount", mostByte), columns = number(body, "colCount", mostByte);
    const auto cabinets = number(body, "port1CabinetCount", mostWord);
    const auto route = number(body, "LayoutType", mostByte);
    if (!rows || !columns || !cabinets || !route)
        return std::nullopt;
    constexpr int length = 4, cabinetsOffset = 2;
    return Writes{{sendingSide, screenPortRegister,
                   Block(length).u8(0, *rows).u8(1, *columns).u16(cabinetsOffset, *cabinets)},
                  {sendingSide, routeRegister, byte(*route)}};
}

/// The two writes of one port, whose record stands behind the one of the quick form.
bool addPort(const QJsonValue &body, QVector<Write> &writes)
{
    const auto port = number(body, "portID", portCount - 1), route = number(body, "layoutType", mostByte);
    const auto rows = number(body, "rowCount", mostByte), columns = number(body, "colCount", mostByte);
    const auto x = number(body, "offsetX", mostWord), y = number(body, "offsetY", mostWord);
    if (!port || !route || !rows || !columns || !x || !y)
        return false;
    constexpr int length = 8, cabinetsOffset = 2, xOffset = 4, yOffset = 6;
    const quint32 record = portStride * quint32(*port + 1);
    const QByteArray area = Block(length)
                                .u8(0, *rows)
                                .u8(1, *columns)
                                .u16(cabinetsOffset, *rows * *columns & mostWord)
                                .u16(xOffset, *x)
                                .u16(yOffset, *y);
    writes += {sendingSide, screenPortRegister + record, area};
    writes += {sendingSide, routeRegister + record, byte(*route)};
    return true;
}

Made changeAdvanced(const QJsonValue &body)
{
    Writes writes;
    for (const QJsonValue &port : body.toArray()) {
        if (!addPort(port, writes))
            return std::nullopt;
    }
    if (writes.isEmpty())
        return std::nullopt;
    writes += {sendingSide, advancedRegister, byte(takeOverPorts)};
    return writes;
}

constexpr Meaning meanings[] = {
    {"/device/cabinets/{id}/brightness", changeBrightness, readBrightness},
    {"/device/cabinets/{id}/gamma", changeGamma, readGamma},
    {"/device/cabinets/{id}/rgbbrightness", changeColours, readColours},
    {"/device/cabinets/{id}/solid", changeSolid, nullptr},
    {"/device/cabinets/{id}/mapping", changeMapping, readMapping},
    {"/device/cabinets/cfgfile", refuse, readCabinets},
    {"/device/cabinets/{id}/sendcfgfile", sendCabinet, nullptr},
    {"/device/screens/{id}/lowlatency", changeLowLatency, readLowLatency},
    {"/device/screens/{id}/displaymode", changeDisplayMode, readDisplayMode},
    {"/device/screens/{id}/txtestpattern", changeTestPattern, nullptr},
    {"/device/screens/autoconfiguration/base", changeQuick, nullptr},
    {"/device/screens/autoconfiguration/senior", changeAdvanced, nullptr},
};
} // namespace

const Meaning *meaningOf(const QString &resource)
{
    const auto *row = std::find_if(std::begin(meanings), std::end(meanings), [&](const Meaning &meaning) {
        return resource == QLatin1String(meaning.resource);
    });
    return row == std::end(meanings) ? nullptr : row;
}
} // namespace rest
