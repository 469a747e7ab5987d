#include "emulator/model/output.h"

#include "emulator/model/block.h"
#include "emulator/model/inputs.h"
#include "emulator/model/workmode.h"

namespace output
{
namespace
{
constexpr quint32 ownRegister = 0x13040003;      ///< width, height, rate
constexpr quint32 recordRegister = 0x13040010;   ///< the same at an offset, for a sending card
constexpr quint32 softwareRegister = 0x13041401; ///< width, height, rate
constexpr quint32 modeRegister = 0x13042007;
constexpr quint32 transitionRegister = 0x13000001; ///< fade or cut, then its time
constexpr quint32 displayRegister = 0x13000004;
constexpr quint32 blackTimeRegister = 0x13000033;
constexpr quint32 patternRegister = 0x13000042; ///< brightness, spacing, speed
constexpr quint32 syncRegister = 0x1300002A;    ///< switch, then the source's number + 1
constexpr quint32 genlockRegister = 0x1300009D;
constexpr int sizeLength = 6;
constexpr int recordLength = 16;
constexpr int recordSize = 3; ///< offset of width, height, rate

constexpr int display[] = {3, 4, 5, 6};
constexpr const char *displayNames[] = {"normal", "freeze", "black", "test pattern"};

VideoMode modeAt(const Registers &registers, quint32 address)
{
    const Block block(registers.read(address, sizeLength), sizeLength);
    return {block.u16(0), block.u16(2), block.u16(4), false};
}

QByteArray bytesOf(const VideoMode &mode)
{
    return Block(sizeLength).u16(0, mode.width).u16(2, mode.height).u16(4, mode.rateCentiHz);
}

Report sizeReport(const Registers &registers)
{
    return {ownRegister, bytesOf(inForce(registers))};
}

/// Stores and tells the size that then leaves the device, if that is another one.
Reports obeySize(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const VideoMode before = inForce(registers);
    obey::store(registers, row, member, write);
    return before == inForce(registers) ? Reports() : Reports{sizeReport(registers)};
}

Reports obeyMode(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const VideoMode before = inForce(registers);
    Reports reports = obey::storeAndReport(registers, row, member, write);
    if (!(before == inForce(registers)))
        reports.append(sizeReport(registers));
    return reports;
}

/// Mode and pattern may come together; only the mode is told.
Reports obeyDisplay(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const int before = registers.u8(displayRegister);
    obey::store(registers, row, member, write);
    const QByteArray after = registers.read(displayRegister, 1);
    return after == QByteArray(1, char(before)) ? Reports() : Reports{{displayRegister, after}};
}

Reports obeySync(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const VideoMode before = inForce(registers);
    const Reports reports = obey::storeAndReport(registers, row, member, write);
    return reports + followSync(registers, before);
}

/// The mode itself is not told: a report of it asks for a change of mode. What it does to the output is.
Reports obeyWorkMode(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const VideoMode before = inForce(registers);
    obey::store(registers, row, member, write);
    return followSync(registers, before);
}

Reports allReports(const Registers &registers)
{
    QByteArray record(registers.read(recordRegister, recordLength));
    record.replace(recordSize, sizeLength, bytesOf(inForce(registers)));
    return {sizeReport(registers),
            {recordRegister, record},
            {displayRegister, registers.read(displayRegister, 1)},
            {modeRegister, registers.read(modeRegister, 1)},
            {syncRegister, registers.read(syncRegister, 2)},
            {genlockRegister, registers.read(genlockRegister, 1)}};
}

QString displayText(int mode)
{
    for (int i = 0; i < int(std::size(display)); ++i) {
        if (mode == display[i])
            return displayNames[i];
    }
    return QString("unknown mode %1").arg(mode);
}

QString genlockText(int state)
{
    switch (state) {
    case locked:
        return "locked";
    case waiting:
        return "waiting";
    case noMatch:
        return "no matching signal";
    default:
        return "free running";
    }
}

QString secondsText(const Registers &registers, quint32 address)
{
    constexpr double hundredths = 100;
    return QString::number(registers.u16(address) / hundredths) + " s";
}

QStringList describeTransitions(const Registers &registers)
{
    return {QString("transition: %1, ").arg(registers.u8(transitionRegister) ? "fade" : "cut") +
                secondsText(registers, transitionRegister + 1),
            "time to black: " + secondsText(registers, blackTimeRegister),
            QString("test picture: brightness %1, spacing %2, speed %3")
                .arg(registers.u8(patternRegister))
                .arg(registers.u8(patternRegister + 1))
                .arg(registers.u8(patternRegister + 2))};
}

QStringList describe(const Registers &registers)
{
    const Output state = read(registers);
    const QString source = inputs::nameOf(state.syncSource);
    const QStringList lines = {"output: " + inForce(registers).text(),
                               "output mode: " +
                                   QString(state.followsSoftware ? "software configuration" : "device"),
                               "size of the device: " + state.own.text(),
                               "size of the software configuration: " + state.software.text(),
                               "display: " + displayText(state.displayMode),
                               QString("test pattern: %1").arg(state.testPattern, 2, 16, QChar('0')),
                               "sync: " + onOff(state.syncOn) + " to " + source,
                               "genlock: " + genlockText(registers.u8(genlockRegister))};
    return lines + describeTransitions(registers);
}
} // namespace

Output read(const Registers &registers)
{
    Output state;
    state.followsSoftware = registers.u8(modeRegister) != 0;
    state.own = modeAt(registers, ownRegister);
    state.software = modeAt(registers, softwareRegister);
    state.displayMode = registers.u8(displayRegister);
    state.testPattern = registers.u8(displayRegister + 1);
    state.syncOn = registers.u8(syncRegister) == 1;
    state.syncSource =
        workmode::isSendingCard(registers) ? inputs::reference : registers.u8(syncRegister + 1) - 1;
    return state;
}

VideoMode inForce(const Registers &registers)
{
    const Output state = read(registers);
    VideoMode mode = state.followsSoftware ? state.software : state.own;
    const bool known = state.syncSource >= 0 && state.syncSource < inputs::count;
    if (!state.syncOn || !known)
        return mode;
    const inputs::Signal source = inputs::signalOf(registers, state.syncSource);
    if (source.stable && source.rateCentiHz() > 0)
        mode.rateCentiHz = source.rateCentiHz();
    return mode;
}

Reports followSync(Registers &registers, const VideoMode &before)
{
    const Output state = read(registers);
    const bool known = state.syncSource >= 0 && state.syncSource < inputs::count;
    const bool live = known && inputs::signalOf(registers, state.syncSource).stable;
    const int genlock = !state.syncOn ? freeRunning : live ? locked : noMatch;
    Reports reports;
    if (registers.u8(genlockRegister) != genlock) {
        registers.setU8(genlockRegister, genlock);
        reports.append({genlockRegister, registers.read(genlockRegister, 1)});
    }
    if (!(before == inForce(registers)))
        reports.append(sizeReport(registers));
    return reports;
}
} // namespace output

Subject outputSubject()
{
    return {"output",
            {{output::ownRegister, output::sizeLength, 1, 0, output::obeySize},
             {output::softwareRegister, output::sizeLength, 1, 0, output::obeySize},
             {output::modeRegister, 1, 1, 0, output::obeyMode},
             {output::displayRegister, 2, 1, 0, output::obeyDisplay},
             {output::syncRegister, 2, 1, 0, output::obeySync},
             {workmode::modeRegister, 1, 1, 0, output::obeyWorkMode}},
            output::allReports,
            output::describe};
}
