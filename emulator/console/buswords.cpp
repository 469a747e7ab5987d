#include "emulator/console/jsonforms.h"
#include "emulator/console/timetext.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"
#include "fpd_hostlink.h"

namespace
{
void answer(Session &session, bool taken)
{
    if (taken)
        session.ok();
    else
        session.fail(session.emulator.device.refusal());
}

QString hex(quint32 value, int digits)
{
    return QString("%1").arg(value, digits, 16, QChar('0'));
}

struct WriteForm {
    bool whole, plain;
};

void printWrite(Session &session, const RegisterWrite &write, WriteForm form)
{
    QStringList words;
    if (!form.plain)
        words << timeText(write.timeMs);
    words << hex(write.address, 8) << hex(write.deviceType, 2);
    if (form.whole)
        words << hex(write.port, 2) << hex(write.board, 4);
    session.tell((words << QString::fromLatin1(write.bytes.toHex())).join(' '), jsonforms::write(write));
}

} // namespace

void words::writes(Session &session, Arguments &arguments)
{
    Device &device = session.emulator.device;
    const bool clear = arguments.flag("--clear");
    const bool follow = arguments.flag("--follow");
    session.setJson(arguments.flag("--json"));
    const WriteForm form = {arguments.flag("--whole"), arguments.flag("--plain")};
    const qint64 since = arguments.timeOption("--since").value_or(0);
    if (!session.accepts(arguments))
        return;
    for (const RegisterWrite &write : device.writes()) {
        if (write.timeMs >= since)
            printWrite(session, write, form);
    }
    if (clear)
        device.clearWrites();
    if (!follow)
        return session.ok();
    QObject::connect(&device, &Device::written, session.request(),
                     [&session, form](const RegisterWrite &write) { printWrite(session, write, form); });
}

void words::push(Session &session, Arguments &arguments)
{
    constexpr int mostBytes = 0xffff; // of a frame
    Device &device = session.emulator.device;
    const bool isWrite = arguments.flag("--write");
    const bool isRaw = arguments.flag("--raw");
    const auto deviceType = quint8(arguments.numberOption("--device", 0, 255).value_or(0));
    const auto ack = quint8(arguments.numberOption("--ack", 0, 255).value_or(0));
    const quint32 address = isRaw ? 0 : arguments.hexNumber("ADDRESS");
    // A report of no bytes is asked for by "" alone: bytes that were forgotten are not.
    const bool isEmpty = !isRaw && !arguments.isEmpty() && arguments.peek().isEmpty();
    const QByteArray bytes = arguments.bytes(isRaw ? "HEX" : "BYTES", isEmpty ? 0 : 1, mostBytes);
    if (!session.accepts(arguments))
        return;
    if (isRaw)
        answer(session, device.pushRaw(bytes));
    else if (isWrite)
        answer(session, device.pushWrite(address, bytes, deviceType));
    else if (ack != 0)
        answer(session, device.pushRead(address, bytes, deviceType, ack));
    else
        answer(session, device.reportAndAdopt({address, bytes, 0, deviceType}));
}

void words::ipc(Session &session, Arguments &arguments)
{
    const auto large = qint16(arguments.number("LARGE", -32768, 32767));
    const auto small = qint16(arguments.number("SMALL", -32768, 32767));
    const QByteArray bytes = arguments.bytes("HEX", 0, hostlink::longestBusMessage);
    if (session.accepts(arguments))
        answer(session, session.emulator.device.pushMessage(large, small, bytes));
}

void words::reports(Session &session, Arguments &arguments)
{
    Device &device = session.emulator.device;
    const QString what = arguments.choice({"on", "off", "now"});
    if (!session.accepts(arguments))
        return;
    if (what == "now")
        return answer(session, device.reportAll());
    device.setReporting(what == "on");
    session.ok();
}

void words::heartbeat(Session &session, Arguments &arguments)
{
    const bool on = arguments.onOff();
    if (!session.accepts(arguments))
        return;
    Device &device = session.emulator.device;
    if (on && !device.isJoined())
        return session.fail(device.refusal());
    device.setHeartbeat(on);
    session.ok();
}
