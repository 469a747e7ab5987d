// The wall: size of its cabinets, how they hang on the ports, the area that is loaded, and the values of the
// receiving cards.
#include "emulator/model/block.h"
#include "emulator/model/registermap.h"
#include "emulator/model/subject.h"

namespace
{
struct LoadArea {
    int x = 0, y = 0, width = 0, height = 0;
};

constexpr quint32 loadAreaRegister = 0x13030000;
constexpr int loadAreaLength = 28;
constexpr quint32 splicingRegister = 0x13000053;
constexpr quint32 portStride = 64;
constexpr int portRecords = 11;
constexpr quint32 placeOffset = 4;            ///< in a port's record: x, then y
constexpr quint32 routeRegister = 0x02810011; ///< how the data flows, as the records of the ports
constexpr quint32 quickCabinetsRegister = 0x02810018;
constexpr quint32 advancedRegister = 0x02810000;
constexpr int takeOverPorts = 185; ///< the command that the device now obeys the form, which therefore is on
constexpr quint32 mappingRegister = 0x01000088;
constexpr int mappingOn = 5;

// Offsets in the load area.
constexpr int offsetX = 16, offsetY = 20, offsetWidth = 24, offsetHeight = 26;

LoadArea loadArea(const Registers &registers)
{
    const Block block(registers.read(loadAreaRegister, loadAreaLength), loadAreaLength);
    return {block.i32(offsetX), block.i32(offsetY), block.u16(offsetWidth), block.u16(offsetHeight)};
}

Reports allReports(const Registers &registers)
{
    return {{cabinetRegister, registers.read(cabinetRegister, cabinetLength)}};
}

QStringList describePorts(const Registers &registers)
{
    QStringList lines;
    for (quint32 port = 0; port < portRecords; ++port) {
        const quint32 address = screenPortRegister + portStride * port;
        const int rows = registers.u8(address), columns = registers.u8(address + 1);
        const QString name = port == 0 ? QString("quick form") : QString("port %1").arg(port);
        if (rows > 0 || columns > 0)
            lines.append(QString("%1: %2 rows, %3 columns").arg(name).arg(rows).arg(columns));
        if (port > 0 && (rows > 0 || columns > 0))
            lines.append(QString("place of %1: %2,%3, flow way %4")
                             .arg(name)
                             .arg(registers.u16(address + placeOffset))
                             .arg(registers.u16(address + placeOffset + 2))
                             .arg(registers.u8(routeRegister + portStride * port)));
    }
    return lines;
}

QStringList describeCards(const Registers &registers)
{
    const QByteArray colours = registers.read(receivingCard, cardColoursRegister, 3);
    const int mapping = quint8(registers.read(receivingCard, mappingRegister, 1)[0]);
    return {QString("colours: red %1, green %2, blue %3")
                .arg(quint8(colours[0]))
                .arg(quint8(colours[1]))
                .arg(quint8(colours[2])),
            "mapping: " + onOff(mapping == mappingOn)};
}

QStringList describeConfiguration(const Registers &registers)
{
    const int advanced = registers.u8(advancedRegister);
    return {QString("quick configuration: %1 cabinets on the first port, flow way %2")
                .arg(registers.u16(quickCabinetsRegister))
                .arg(registers.u8(routeRegister)),
            "advanced configuration: " + onOff(advanced == deviceOn || advanced == takeOverPorts)};
}

QStringList describe(const Registers &registers)
{
    constexpr int full = 255, percent = 100;
    const LoadArea area = loadArea(registers);
    const int brightness = quint8(registers.read(receivingCard, cardBrightnessRegister, 1)[0]);
    QStringList lines = {
        QString("cabinet: %1x%2").arg(registers.u16(cabinetRegister)).arg(registers.u16(cabinetRegister + 2)),
        QString("brightness: %1%").arg((brightness * percent + full / 2) / full),
        QString("gamma: %1")
            .arg(quint8(registers.read(receivingCard, cardGammaRegister, 1)[0]) / 10.0, 0, 'f', 1),
        "splicing: " + onOff(registers.u8(splicingRegister) == deviceOn),
        QString("load area: %1x%2 at %3,%4").arg(area.width).arg(area.height).arg(area.x).arg(area.y)};
    return lines + describeCards(registers) + describeConfiguration(registers) + describePorts(registers);
}
} // namespace

Subject screenSubject()
{
    return {"screen", {{loadAreaRegister, loadAreaLength, 1, 0, obey::storeAndReport}}, allReports, describe};
}
