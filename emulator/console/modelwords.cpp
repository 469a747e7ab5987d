// Words for what happens at the device: signals, ports, presets, name, calibration and update.
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

#include <QJsonObject>
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

QStringList inputNames()
{
    QStringList names;
    for (int input = 0; input < inputs::count; ++input)
        names << inputs::nameOf(input);
    return names;
}

/// A mode or a sampling of a signal.
void takeSignalPart(Arguments &arguments, inputs::Signal &signal)
{
    const QString text = arguments.text("MODE");
    const auto mode = VideoMode::parse(text.toLower());
    const auto sampling = inputs::samplingByName(text.toLower());
    if (!mode && !sampling)
        arguments.complain("neither a mode such as 1920x1080@60 nor a sampling (rgb444 ycc422 ycc444): " +
                           text);
    signal.mode = mode.value_or(signal.mode);
    signal.sampling = sampling.value_or(signal.sampling);
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

/// The same under its headings.
QJsonObject bySubject(const QStringList &lines)
{
    QJsonObject all, subject;
    QString heading;
    for (const QString &line : lines + QStringList{QString()}) {
        if (line.startsWith("  ")) {
            subject.insert(line.section(": ", 0, 0).trimmed(), line.section(": ", 1));
            continue;
        }
        if (!heading.isEmpty())
            all.insert(heading, subject);
        heading = line;
        subject = {};
    }
    return all;
}
} // namespace

void words::signal(Session &session, Arguments &arguments)
{
    constexpr int mostParts = 2; // a mode and a sampling
    Registers &registers = session.emulator.device.registers();
    const int input = inputs::byName(arguments.choice(inputNames()));
    const bool on = arguments.onOff();
    inputs::Signal signal = inputs::signalOf(registers, input);
    if (!signal.stable)
        signal = inputs::lastSignal(registers, input);
    signal.stable = on;
    for (int part = 0; on && part < mostParts && !arguments.isEmpty(); ++part)
        takeSignalPart(arguments, signal);
    if (session.accepts(arguments))
        tell(session, inputs::setSignal(registers, input, signal));
}

void words::port(Session &session, Arguments &arguments)
{
    const QMap<QString, ports::State> states = {
        {"link", ports::State::link},
        {"backup", ports::State::backup},
        {"engaged", ports::State::engaged},
    };
    const auto number = int(arguments.number("N", 1, ports::count));
    const QString state = arguments.choice(states.keys());
    const bool on = arguments.onOff();
    if (session.accepts(arguments))
        tell(session, ports::set(session.emulator.device.registers(), number - 1, states[state], on));
}

void words::preset(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    arguments.choice({"list"});
    if (!session.accepts(arguments))
        return;
    for (const QString &line : presets::list(session.emulator.device.flash())) {
        const QStringList words = line.split(' ');
        session.tell(line, {{"preset", words.value(1).chopped(1).toInt()},
                            {"state", words.value(2)},
                            {"name", line.section(' ', 3)}});
    }
    session.ok();
}

void words::device(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    arguments.choice({"show"});
    if (!session.accepts(arguments))
        return;
    const QStringList lines = session.emulator.device.model().describe() + describeCables(session.emulator);
    session.tell(lines.join('\n'), bySubject(lines));
    session.ok();
}

void words::rename(Session &session, Arguments &arguments)
{
    const QString name = arguments.text("NAME");
    if (!session.accepts(arguments))
        return;
    Registers &registers = session.emulator.device.registers();
    const Reports reports = devicename::rename(registers, name);
    const QString kept = devicename::nameOf(registers.flash());
    if (kept != name)
        session.print("the name is cut to " + kept);
    tellNow(session, reports);
}

void words::calibrate(Session &session, Arguments &arguments)
{
    const bool on = arguments.onOff();
    if (session.accepts(arguments))
        tellNow(session, service::calibrate(session.emulator.device.registers(), on));
}

/// What the next self test finds. The panel asks its own board by itself: that is the word fault tool.
void words::selftest(Session &session, Arguments &arguments)
{
    Registers &registers = session.emulator.device.registers();
    const bool allHealthy = arguments.nextIs("healthy");
    const QString name = arguments.text("NAME");
    const bool healthy = allHealthy || arguments.nextIs("healthy");
    const QString value = allHealthy ? QString() : arguments.text("VALUE");
    if (!session.accepts(arguments))
        return;
    const bool done = healthy ? ::selftest::heal(registers, allHealthy ? QString() : name)
                              : ::selftest::setFault(registers, name, value);
    if (done)
        session.ok();
    else
        session.fail("the device has no such value, or its records cannot carry that text");
}

/// Progress goes out in hundredths of a percent, and errors above all of them.
void words::update(Session &session, Arguments &arguments)
{
    constexpr qint16 progressLarge = 7, progressSmall = 4, endSmall = 5;
    constexpr int errorCodes[] = {25300, 25400, 25500};
    constexpr int hundredths = 100;
    const bool isEnd = arguments.nextIs("end");
    const auto number = isEnd ? 0 : int(arguments.number("PERCENT", 0, 0xffff));
    const bool isError =
        std::find(std::begin(errorCodes), std::end(errorCodes), number) != std::end(errorCodes);
    if (isEnd)
        arguments.text("end");
    else if (!isError && number > hundredths)
        arguments.complain(QString("neither a percentage nor 25300, 25400 or 25500: %1").arg(number));
    if (!session.accepts(arguments))
        return;
    QByteArray count(2, 0);
    qToLittleEndian(quint16(isError ? number : number * hundredths), count.data());
    Device &device = session.emulator.device;
    if (!device.pushMessage(progressLarge, isEnd ? endSmall : progressSmall, count))
        return session.fail(device.refusal());
    session.ok();
}
