// Words for what happens at the device: signals, ports, presets, name, calibration and update.
#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"
#include "emulator/model/devicename.h"
#include "emulator/model/inputs.h"
#include "emulator/model/ports.h"
#include "emulator/model/presets.h"
#include "emulator/model/selftest.h"
#include "emulator/model/service.h"
#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"

#include <QtEndian>

namespace
{
/// The device has changed in any case; a panel that joins the bus later is told.
void tell(Session &session, const Reports &reports)
{
    session.emulator.device.report(reports);
    session.ok();
}

/// What a panel that does not hear of it now never learns.
void tellNow(Session &session, const Reports &reports)
{
    Device &device = session.emulator.device;
    if (device.report(reports))
        session.ok();
    else
        session.fail(device.refusal());
}

std::optional<bool> switchValue(const QString &text)
{
    if (text != "on" && text != "off")
        return std::nullopt;
    return text == "on";
}

void signalWord(Session &session, const QStringList &list)
{
    Registers &registers = session.emulator.device.registers();
    const int input = inputs::byName(list.value(0));
    const auto on = switchValue(list.value(1));
    if (input < 0 || !on || (!*on && list.size() > 2) || list.size() > 4)
        return failUsage(session, "signal");
    inputs::Signal signal = inputs::signalOf(registers, input);
    if (!signal.stable)
        signal = inputs::lastSignal(registers, input);
    signal.stable = *on;
    for (const QString &text : list.mid(2)) {
        const auto mode = VideoMode::parse(text);
        const auto sampling = inputs::samplingByName(text);
        if (!mode && !sampling)
            return session.fail("neither a mode such as 1920x1080@60 nor a sampling: " + text);
        signal.mode = mode.value_or(signal.mode);
        signal.sampling = sampling.value_or(signal.sampling);
    }
    tell(session, inputs::setSignal(registers, input, signal));
}

void port(Session &session, const QStringList &list)
{
    const QMap<QString, ports::State> states = {
        {"link", ports::State::link},
        {"backup", ports::State::backup},
        {"engaged", ports::State::engaged},
    };
    const auto number = arguments::number(list.value(0), 1, ports::count);
    const auto on = switchValue(list.value(2));
    if (list.size() != 3 || !number || !states.contains(list[1]) || !on)
        return failUsage(session, "port");
    tell(session, ports::set(session.emulator.device.registers(), int(*number - 1), states[list[1]], *on));
}

void preset(Session &session, const QStringList &list)
{
    if (list != QStringList{"list"})
        return failUsage(session, "preset");
    for (const QString &line : presets::list(session.emulator.device.flash()))
        session.print(line);
    session.ok();
}

/// What the panel is told past the bus, and the PC at the other end.
QStringList describeCables(const Emulator &emulator)
{
    const auto values = hostlink::readValues(emulator.folder.file(hostlink::linkFile));
    const auto line = [&values](const char *what, const char *name) {
        return QString("  %1: %2").arg(what).arg(values.value(name).toInt());
    };
    const bool usbFirst = values.value(hostlink::linkPriority).toInt() == 0;
    return {"cables",
            line("USB cable", hostlink::linkUsb),
            line("Ethernet cable", hostlink::linkEthernet),
            line("loop cable", hostlink::linkLoop),
            QString("  communication: %1 preferred").arg(usbFirst ? "USB" : "LAN"),
            "  heartbeat: " + onOff(emulator.device.hasHeartbeat()),
            QString("  packets that the panel did not read: %1").arg(emulator.device.refused())};
}

void device(Session &session, const QStringList &list)
{
    if (list != QStringList{"show"})
        return failUsage(session, "device");
    for (const QString &line : session.emulator.device.model().describe() + describeCables(session.emulator))
        session.print(line);
    session.ok();
}

void rename(Session &session, const QStringList &list)
{
    if (list.size() != 1)
        return failUsage(session, "rename");
    Registers &registers = session.emulator.device.registers();
    const Reports reports = devicename::rename(registers, list[0]);
    const QString kept = devicename::nameOf(registers.flash());
    if (kept != list[0])
        session.print("the name is cut to " + kept);
    tellNow(session, reports);
}

void calibrate(Session &session, const QStringList &list)
{
    const auto on = switchValue(list.value(0));
    if (list.size() != 1 || !on)
        return failUsage(session, "calibrate");
    tellNow(session, service::calibrate(session.emulator.device.registers(), *on));
}

/// What the next self test finds. The panel asks its own board by itself: that is the word fault tool.
void selfTest(Session &session, const QStringList &list)
{
    Registers &registers = session.emulator.device.registers();
    const bool healthy = !list.isEmpty() && list.last() == "healthy";
    const bool done =
        healthy ? list.size() <= 2 && selftest::heal(registers, list.mid(0, list.size() - 1).join(""))
                : list.size() == 2 && selftest::setFault(registers, list[0], list[1]);
    if (done)
        session.ok();
    else
        failUsage(session, "selftest");
}

/// Progress goes out in hundredths of a percent, and errors above all of them.
void update(Session &session, const QStringList &list)
{
    constexpr qint16 progressLarge = 7, progressSmall = 4, endSmall = 5;
    constexpr int errorCodes[] = {25300, 25400, 25500};
    constexpr int hundredths = 100;
    Device &device = session.emulator.device;
    const auto number = arguments::number(list.value(0), 0, 0xffff);
    const bool isEnd = list == QStringList{"end"};
    if (list.size() != 1 || (!isEnd && !number))
        return failUsage(session, "update");
    QByteArray count(2, 0);
    if (number) {
        const bool isError =
            std::find(std::begin(errorCodes), std::end(errorCodes), *number) != std::end(errorCodes);
        if (!isError && *number > hundredths)
            return session.fail("neither a percentage nor 25300, 25400 or 25500: " + list[0]);
        qToLittleEndian(quint16(isError ? *number : *number * hundredths), count.data());
    }
    if (!device.pushMessage(progressLarge, isEnd ? endSmall : progressSmall, count))
        return session.fail(device.refusal());
    session.ok();
}
} // namespace

QVector<Word> modelWords()
{
    return {
        {"signal", "IN on|off [WxH[i]@RATE] [rgb444|ycc422|ycc444]",
         "a source; IN: hdmi1 hdmi2 dvi sdi dvi2 opt1 opt2 mosaic reference", signalWord},
        {"port", "N link|backup|engaged on|off", "an Ethernet port to the wall, from 1", port},
        {"preset", "list", "the ten presets with state and name", preset},
        {"device", "show", "the whole state of the device", device},
        {"rename", "NAME", "a PC gives the device a name; \"\" takes it away", rename},
        {"selftest", "NAME VALUE|healthy, or healthy",
         "what the device finds at its self test: a value at fault, or all that is well", selfTest},
        {"calibrate", "on|off", "a PC calibrates the wall", calibrate},
        {"update", "PERCENT|ERRORCODE|end", "progress of a firmware update; errors: 25300, 25400, 25500",
         update},
    };
}
