// Limits of the screen configuration, quick and advanced, and of the output frame rate. Counts go down from
// what was asked for until the device can carry it.

#include "framework/engine/advancedports.h"
#include "framework/engine/device.h"
#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/limits/limits.h"
#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
constexpr int maxScreenWidth = 10240; ///< pixels
constexpr int maxScreenHeight = 8192; ///< lines
constexpr int maxCabinetsPerPort = 1024;
constexpr int quickPorts = 6;

/// What the limits of a screen configuration read.
struct Screen {
    explicit Screen(const ParaProcess &paraProcess) : engine(paraProcess)
    {
        cabinetWidth = number(PARA_CabinetWidth);
        cabinetHeight = number(PARA_CabinetHeight);
        rate = number(PARA_OutputRate);
        shownRate = DeviceView(engine).doublesRate() ? uint16_t(rate * 2) : rate;
    }
    uint16_t number(ENUM_MenuIndex index) const { return uint16_t(engine.GetParaFromIndex(index).toInt()); }
    /// A size of 16 bits; a larger one counts as the largest, so that it does not come round as a small one.
    static uint16_t size(int64_t pixels) { return uint16_t(qBound<int64_t>(0, pixels, UINT16_MAX)); }
    bool outputOverloads(int64_t width, int64_t height) const
    {
        return VideoBandwidthConstrain(size(width), size(height), shownRate, wholeOutputPixelRate, 1);
    }
    bool portOverloads(int64_t width, int64_t height) const
    {
        return VideoBandwidthConstrain(size(width), size(height), shownRate, portPixelRate, 0);
    }
    int64_t widthOf(int columns) const { return int64_t(columns) * cabinetWidth; }
    int64_t heightOf(int rows) const { return int64_t(rows) * cabinetHeight; }

    const ParaProcess &engine;
    uint16_t cabinetWidth, cabinetHeight; ///< pixels
    uint16_t rate, shownRate;             ///< hundredths of a hertz
};

/// Lowers a count until it fits, but never below the floor.
template <class Fits> int lowerUntil(int count, int floor, Fits fits)
{
    while (count > floor && !fits(count))
        --count;
    return count < floor ? floor : count;
}

QString limitQuickRows(const ParaLimit &asked)
{
    const Screen screen(asked.engine);
    const int columns = screen.number(MENU_Quick_CabinetCol);
    const int rows = lowerUntil(uint16_t(asked.value.toInt()), 1, [&](int count) {
        return screen.heightOf(count) <= maxScreenHeight &&
               !screen.outputOverloads(screen.widthOf(columns), screen.heightOf(count));
    });
    return QString::number(rows);
}

QString limitQuickColumns(const ParaLimit &asked)
{
    const Screen screen(asked.engine);
    const int rows = screen.number(MENU_Quick_CabinetRow);
    const int columns = lowerUntil(uint16_t(asked.value.toInt()), 1, [&](int count) {
        return screen.widthOf(count) <= maxScreenWidth &&
               !screen.outputOverloads(screen.widthOf(count), screen.heightOf(rows));
    });
    return QString::number(columns);
}

/// Cabinets rounded up to whole columns or rows, as the cable runs.
int wholeLines(const Screen &screen, int cabinets)
{
    const bool byColumn = screen.number(MENU_Quick_FlowWay) % 2 == 0;
    const int line = qMax(1, int(screen.number(byColumn ? MENU_Quick_CabinetCol : MENU_Quick_CabinetRow)));
    if (byColumn)
        qDebug() << "(LineMode+1)%2 =" << line;
    else
        qDebug() << "!(LineMode+1)%2 =" << line;
    return qMax(1, (cabinets + line - 1) / line) * line;
}

QString limitPortOne(const ParaLimit &asked)
{
    const Screen screen(asked.engine);
    const int rows = screen.number(MENU_Quick_CabinetRow);
    const int columns = screen.number(MENU_Quick_CabinetCol);
    int cabinets = lowerUntil(uint16_t(asked.value.toInt()), 1, [&](int count) {
        return !screen.portOverloads(screen.widthOf(count), screen.cabinetHeight);
    });
    const int total = uint16_t(int64_t(rows) * columns);
    cabinets = cabinets > total ? total : qMax(cabinets, (total + quickPorts - 1) / quickPorts);
    if (firstPortOverloads(asked.engine, cabinets))
        asked.engine.runMessage(MSG_OverLoad);
    return QString::number(cabinets);
}

/// Rows or columns of one port in the advanced configuration.
QString limitAdvancedCount(const ParaLimit &asked)
{
    const Screen screen(asked.engine);
    const bool isRows = asked.index == MENU_Advanced_CabinetRow;
    const int other = screen.number(isRows ? MENU_Advanced_CabinetCol : MENU_Advanced_CabinetRow);
    const int offset = screen.number(isRows ? MENU_Advanced_VerOffset : MENU_Advanced_HorOffset);
    const int limit = isRows ? maxScreenHeight : maxScreenWidth;
    const AdvancedPorts ports(asked.engine);
    const int port = ports.chosen();

    int count = lowerUntil(uint16_t(asked.value.toInt()), 1, [&](int candidate) {
        const int64_t width = screen.widthOf(isRows ? other : candidate);
        const int64_t height = screen.heightOf(isRows ? candidate : other);
        return !screen.portOverloads(width, height) && (isRows ? height : width) + offset <= limit;
    });
    const AdvancedPorts::Field field = isRows ? AdvancedPorts::Rows : AdvancedPorts::Columns;
    while (count > 0 && ports.overloads(port, field, count))
        --count;
    if (count == 0)
        return QString::number(1);
    count = lowerUntil(count, 1, [&](int candidate) { return candidate * other <= maxCabinetsPerPort; });
    return QString::number(count);
}

/// Start of one port in the advanced configuration.
QString limitAdvancedStart(const ParaLimit &asked)
{
    const Screen screen(asked.engine);
    const bool isX = asked.index == MENU_Advanced_HorOffset;
    const int64_t width = screen.widthOf(screen.number(MENU_Advanced_CabinetCol));
    const int64_t height = screen.heightOf(screen.number(MENU_Advanced_CabinetRow));
    const int other = screen.number(isX ? MENU_Advanced_VerOffset : MENU_Advanced_HorOffset);
    const AdvancedPorts ports(asked.engine);
    const int port = ports.chosen();

    int start = lowerUntil(uint16_t(asked.value.toInt()), 0, [&](int candidate) {
        return isX ? candidate + width <= maxScreenWidth : candidate + height <= maxScreenHeight;
    });
    start = lowerUntil(start, 0, [&](int candidate) {
        return isX ? !screen.outputOverloads(candidate + width, other + height)
                   : !screen.outputOverloads(other + width, candidate + height);
    });
    const AdvancedPorts::Field field = isX ? AdvancedPorts::X : AdvancedPorts::Y;
    start = lowerUntil(start, 0, [&](int candidate) { return !ports.overloads(port, field, candidate); });
    return QString::number(start);
}

/// The value stays; rates that the output cannot carry are switched off in the list.
QString limitOutputRate(const ParaLimit &asked)
{
    constexpr float horizontalBlank = 33;
    constexpr float verticalBlank = 20;
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return asked.value;
    const float pixels = (float(asked.engine.processData().value(PARA_OutputWidth)) + horizontalBlank) *
                         (float(asked.engine.processData().value(PARA_OutputHeight)) + verticalBlank);
    const float factor = DeviceView(asked.engine).doublesRate() ? 2.f : 1.f;
    store->changeItem(asked.index, [pixels, factor](ST_ItemInfo &item) {
        for (auto option = item.params.cbegin(); option != item.params.cend(); ++option) {
            const bool overload = pixels * option.value().toFloat() * factor > float(wholeOutputPixelRate);
            item.params1[option.key()] = overload ? optionDisable : optionEnable;
        }
    });
    repaintList(ENUM_ROW_OutputFrameRate, asked.index);
    return asked.value;
}

constexpr LimitCase cases[] = {
    {MENU_Quick_CabinetRow, limitQuickRows},
    {MENU_Quick_CabinetCol, limitQuickColumns},
    {MENU_Quick_PortOneCab, limitPortOne},
    {range(MENU_Advanced_CabinetRow, MENU_Advanced_CabinetCol), limitAdvancedCount},
    {range(MENU_Advanced_HorOffset, MENU_Advanced_VerOffset), limitAdvancedStart},
    {MENU_OutputFrameRate, limitOutputRate},
};
} // namespace

bool firstPortOverloads(const ParaProcess &engine, int cabinets)
{
    const Screen screen(engine);
    const int loaded = wholeLines(screen, cabinets);
    qDebug() << "Port1Cabinet =" << loaded;
    return screen.portOverloads(screen.widthOf(loaded), screen.cabinetHeight);
}

Table<LimitCase> screenLimits()
{
    return cases;
}
} // namespace VASK
