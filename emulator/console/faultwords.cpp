#include "emulator/console/words.h"
#include "emulator/emulator.h"
#include "fpd_hostlink.h"

#include <QSaveFile>

namespace
{
/// A counter that the platform layer of the panel counts down.
bool setCounter(Session &session, const char *name, qint64 count)
{
    QSaveFile file(session.emulator.folder.file(name));
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(count)) > 0 && file.commit();
}

bool takeCount(Session &session, Arguments &arguments, const char *file)
{
    constexpr qint64 mostFaults = 1000000;
    const qint64 count = arguments.number("N", 0, mostFaults);
    return session.accepts(arguments) && setCounter(session, file, count);
}

/// Plugs the bus or the keypad in or out.
template <class Setter> bool takeUpOrDown(Session &session, Arguments &arguments, Setter set)
{
    const bool up = arguments.choice({"up", "down"}) == "up";
    return session.accepts(arguments) && set(up);
}

bool takeAnswer(Session &session, Arguments &arguments)
{
    const ShellTools &tools = session.emulator.tools;
    const QString tool = arguments.choice({"fpga", "stm32"});
    const bool healthy = arguments.isEmpty();
    const QString text = arguments.text("TEXT", "");
    return session.accepts(arguments) && (healthy ? tools.clearAnswer(tool) : tools.setAnswer(tool, text));
}
} // namespace

void words::fault(Session &session, Arguments &arguments)
{
    Emulator &emulator = session.emulator;
    const QString what = arguments.choice({"bus-send", "flash", "bus", "keypad", "tool"});
    bool done = false;
    if (what == "bus-send")
        done = takeCount(session, arguments, hostlink::busFaultFile);
    else if (what == "flash")
        done = takeCount(session, arguments, hostlink::flashFaultFile);
    else if (what == "bus")
        done = takeUpOrDown(session, arguments, [&](bool up) { return emulator.device.setBusUp(up); });
    else if (what == "keypad")
        done = takeUpOrDown(session, arguments, [&](bool up) { return emulator.keypad.setPresent(up); });
    else
        done = takeAnswer(session, arguments);
    if (done)
        session.ok();
    else
        session.fail("cannot be done in the state folder"); // nothing more, if the arguments were wrong
}
