#include "emulator/model/inputs.h"

#include "emulator/model/block.h"
#include "emulator/model/output.h"

namespace inputs
{
namespace
{
constexpr quint32 firstRecord = 0x13010001;
/// What was plugged in last, a record an input: the device's own notes, which no panel asks for.
constexpr quint32 firstLastRecord = 0xF0010001;
constexpr quint32 edidRegister = 0x13014200;
constexpr int edidLength = 8;
constexpr quint32 mosaicRegister = 0x13060000;
constexpr int mosaicLength = 48;
constexpr int stableState = 3;
constexpr int replugMs = 1200; ///< a source reads the new EDID and comes back with another mode

// Offsets in an input record.
constexpr int recordCode = 0, recordInterlace = 1, recordState = 2, recordWidth = 3, recordHeight = 5,
              recordPeriod = 7, recordSampling = 26;
// Offsets in the EDID register.
constexpr int edidCode = 0, edidWidth = 2, edidHeight = 4, edidRate = 6;
// Offsets in the mosaic register.
constexpr int mosaicColumns = 3, mosaicFirstCode = 16, mosaicWidth = 22, mosaicHeight = 24,
              mosaicSecondCode = 32;

struct Name {
    const char *name;
    int code; ///< by which the device knows the input
};

constexpr Name names[count] = {
    {"hdmi1", 17}, {"hdmi2", 18}, {"dvi", 0},      {"sdi", 48},        {"dvi2", 106},
    {"opt1", 233}, {"opt2", 234}, {"mosaic", 224}, {"reference", 254},
};

constexpr const char *samplingNames[] = {"rgb444", "ycc422", "ycc444"};

quint32 lastAddress(int input)
{
    return firstLastRecord + recordLength * quint32(input);
}

/// From a rate in hundredths of a hertz to a period in microseconds, and the other way.
int turnedOver(int value)
{
    constexpr int microCenti = 100000000;
    return value == 0 ? 0 : (microCenti + value / 2) / value;
}

Signal signalAt(const Registers &registers, quint32 address)
{
    const Block block(registers.read(address, recordLength), recordLength);
    Signal signal;
    signal.stable = block.u8(recordState) == stableState;
    signal.mode = {block.u16(recordWidth), block.u16(recordHeight), turnedOver(block.u16(recordPeriod)),
                   block.u8(recordInterlace) != 0};
    signal.sampling = Sampling(qMin(block.u8(recordSampling), int(Sampling::ycc444)));
    return signal;
}

/// Where the two parts of the mosaic are live, the mosaic is.
Signal mosaicSignal(const Registers &registers)
{
    const Block block(registers.read(mosaicRegister, mosaicLength), mosaicLength);
    Signal signal;
    const int parts[] = {byCode(block.u8(mosaicFirstCode)), byCode(block.u8(mosaicSecondCode))};
    signal.stable = block.u16(mosaicWidth) > 0;
    for (int part : parts)
        signal.stable = signal.stable && part >= 0 && part < mosaic && signalOf(registers, part).stable;
    const bool sideBySide = block.u8(mosaicColumns) == 2;
    signal.mode.width = block.u16(mosaicWidth) * (sideBySide ? 2 : 1);
    signal.mode.height = block.u16(mosaicHeight) * (sideBySide ? 1 : 2);
    if (signal.stable)
        signal.mode.rateCentiHz = signalOf(registers, parts[0]).rateCentiHz();
    return signal;
}

Reports storeRecord(Registers &registers, int input, const Signal &signal)
{
    const QByteArray bytes = record(input, signal);
    registers.write(recordAddress(input), bytes);
    return {{recordAddress(input), bytes}};
}

Reports updateMosaic(Registers &registers)
{
    const QByteArray before = registers.read(recordAddress(mosaic), recordLength);
    const Signal signal = mosaicSignal(registers);
    return before == record(mosaic, signal) ? Reports() : storeRecord(registers, mosaic, signal);
}

/// A live source takes over the mode that its input now asks for.
Reports obeyEdid(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    obey::store(registers, row, member, write);
    const Block edid(registers.read(edidRegister, edidLength), edidLength);
    const int input = byCode(edid.u8(edidCode));
    if (input < 0 || !signalOf(registers, input).stable || edid.u16(edidRate) == 0)
        return {};
    Signal signal = signalOf(registers, input);
    signal.mode = {edid.u16(edidWidth), edid.u16(edidHeight), edid.u16(edidRate), false};
    Reports reports = setSignal(registers, input, signal);
    for (Report &report : reports)
        report.afterMs = replugMs;
    return reports;
}

Reports obeyMosaic(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    return obey::storeAndReport(registers, row, member, write) + updateMosaic(registers);
}

Reports allReports(const Registers &registers)
{
    Reports list;
    for (int input = 0; input < count; ++input)
        list.append({recordAddress(input), registers.read(recordAddress(input), recordLength)});
    return list;
}

QString edidText(const Registers &registers)
{
    const Block edid(registers.read(edidRegister, edidLength), edidLength);
    const VideoMode mode{edid.u16(edidWidth), edid.u16(edidHeight), edid.u16(edidRate), false};
    return mode.width == 0 ? QString("none") : nameOf(byCode(edid.u8(edidCode))) + (' ' + mode.text());
}

QString mosaicText(const Registers &registers)
{
    const Block block(registers.read(mosaicRegister, mosaicLength), mosaicLength);
    if (block.u16(mosaicWidth) == 0)
        return "none";
    return QString("%1 and %2, %3x%4 each, %5")
        .arg(nameOf(byCode(block.u8(mosaicFirstCode))), nameOf(byCode(block.u8(mosaicSecondCode))))
        .arg(block.u16(mosaicWidth))
        .arg(block.u16(mosaicHeight))
        .arg(block.u8(mosaicColumns) == 2 ? "side by side" : "one above the other");
}

QStringList describe(const Registers &registers)
{
    QStringList lines;
    for (int input = 0; input < count; ++input) {
        const Signal signal = signalOf(registers, input);
        const char *sampling = samplingNames[int(signal.sampling)];
        const QString text = signal.stable ? signal.mode.text() + ' ' + sampling : QString("no signal");
        lines.append(QString("%1: %2").arg(nameOf(input), text));
    }
    return lines +
           QStringList{"parts of the mosaic: " + mosaicText(registers), "last EDID: " + edidText(registers)};
}
} // namespace

int byName(const QString &name)
{
    for (int input = 0; input < count; ++input) {
        if (name == QLatin1String(names[input].name))
            return input;
    }
    return -1;
}

int byCode(int sourceCode)
{
    for (int input = 0; input < count; ++input) {
        if (sourceCode == names[input].code)
            return input;
    }
    return -1;
}

const char *nameOf(int input)
{
    return input >= 0 && input < count ? names[input].name : "none";
}

int codeOf(int input)
{
    return names[input].code;
}

std::optional<Sampling> samplingByName(const QString &name)
{
    for (int i = 0; i < int(std::size(samplingNames)); ++i) {
        if (name == QLatin1String(samplingNames[i]))
            return Sampling(i);
    }
    return std::nullopt;
}

Signal signalOf(const Registers &registers, int input)
{
    return signalAt(registers, recordAddress(input));
}

Signal lastSignal(const Registers &registers, int input)
{
    Signal signal = signalAt(registers, lastAddress(input));
    if (!signal.stable)
        return Signal();
    signal.stable = false;
    return signal;
}

Reports setSignal(Registers &registers, int input, const Signal &signal)
{
    const Signal was = signalOf(registers, input);
    if (was.stable && !signal.stable)
        registers.write(lastAddress(input), record(input, was));
    const VideoMode before = output::inForce(registers);
    Reports reports = storeRecord(registers, input, signal);
    if (input != mosaic)
        reports += updateMosaic(registers);
    return reports + output::followSync(registers, before);
}

QByteArray record(int input, const Signal &signal)
{
    Block block(recordLength);
    block.u8(recordCode, codeOf(input));
    if (!signal.stable)
        return block;
    return block.u8(recordState, stableState)
        .u8(recordInterlace, signal.mode.interlaced)
        .u16(recordWidth, signal.mode.width)
        .u16(recordHeight, signal.mode.height)
        .u16(recordPeriod, turnedOver(signal.mode.rateCentiHz))
        .u8(recordSampling, int(signal.sampling));
}

quint32 recordAddress(int input)
{
    return firstRecord + recordLength * quint32(input);
}
} // namespace inputs

Subject inputsSubject()
{
    return {"inputs",
            {{inputs::edidRegister, inputs::edidLength, 1, 0, inputs::obeyEdid},
             {inputs::mosaicRegister, inputs::mosaicLength, 1, 0, inputs::obeyMosaic}},
            inputs::allReports,
            inputs::describe};
}
