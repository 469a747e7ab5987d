#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"

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

void printWrite(Session &session, const RegisterWrite &write, bool whole)
{
    QStringList words = {hex(write.address, 8), hex(write.deviceType, 2)};
    if (whole)
        words << hex(write.port, 2) << hex(write.board, 4);
    session.print((words << QString::fromLatin1(write.bytes.toHex())).join(' '));
}

void writes(Session &session, const QStringList &arguments)
{
    QStringList list = arguments;
    Device &device = session.emulator.device;
    const bool clear = arguments::takeFlag(list, "--clear");
    const bool follow = arguments::takeFlag(list, "--follow");
    const bool whole = arguments::takeFlag(list, "--whole");
    if (!list.isEmpty())
        return failUsage(session, "writes");
    for (const RegisterWrite &write : device.writes())
        printWrite(session, write, whole);
    if (clear)
        device.clearWrites();
    if (!follow)
        return session.ok();
    QObject::connect(&device, &Device::written, session.request(),
                     [&session, whole](const RegisterWrite &write) { printWrite(session, write, whole); });
}

void push(Session &session, const QStringList &arguments)
{
    QStringList list = arguments;
    Device &device = session.emulator.device;
    const bool isWrite = arguments::takeFlag(list, "--write");
    const bool isRaw = arguments::takeFlag(list, "--raw");
    const auto deviceType =
        arguments::number(arguments::takeOption(list, "--device", "0").value_or(""), 0, 255);
    const auto ack = arguments::number(arguments::takeOption(list, "--ack", "0").value_or(""), 0, 255);
    if (list.isEmpty() || !deviceType || !ack)
        return failUsage(session, "push");
    const auto address = isRaw ? std::optional<quint32>(0) : arguments::address(list.takeFirst());
    const auto bytes = arguments::hexBytes(list.join(QString()));
    if (!address || !bytes || bytes->size() > 0xffff)
        return failUsage(session, "push");
    if (isRaw)
        answer(session, device.pushRaw(*bytes));
    else if (isWrite)
        answer(session, device.pushWrite(*address, *bytes, quint8(*deviceType)));
    else if (*ack != 0)
        answer(session, device.pushRead(*address, *bytes, quint8(*deviceType), quint8(*ack)));
    else
        answer(session, device.reportAndAdopt({*address, *bytes, 0, quint8(*deviceType)}));
}

void ipc(Session &session, const QStringList &list)
{
    const auto large = arguments::number(list.value(0), -32768, 32767);
    const auto small = arguments::number(list.value(1), -32768, 32767);
    const auto bytes = arguments::hexBytes(list.mid(2).join(QString()));
    if (list.size() < 2 || !large || !small || !bytes)
        return failUsage(session, "ipc");
    answer(session, session.emulator.device.pushMessage(qint16(*large), qint16(*small), *bytes));
}

void reports(Session &session, const QStringList &list)
{
    Device &device = session.emulator.device;
    if (list == QStringList{"now"})
        return answer(session, device.reportAll());
    if (list != QStringList{"on"} && list != QStringList{"off"})
        return failUsage(session, "reports");
    device.setReporting(list[0] == "on");
    session.ok();
}

void heartbeat(Session &session, const QStringList &list)
{
    if (list != QStringList{"on"} && list != QStringList{"off"})
        return failUsage(session, "heartbeat");
    Device &device = session.emulator.device;
    if (list[0] == "on" && !device.isJoined())
        return session.fail(device.refusal());
    device.setHeartbeat(list[0] == "on");
    session.ok();
}
} // namespace

QVector<Word> busWords()
{
    return {
        {"writes", "[--clear] [--follow] [--whole]",
         "register writes, oldest first: ADDRESS DEVTYPE BYTES in hex; --whole: PORT BOARD before the bytes",
         writes},
        {"push", "ADDRESS BYTES [--device N] [--ack N]",
         "a report of the device; --write: a write; --raw HEX: any", push},
        {"ipc", "LARGE SMALL HEX", "a message with those labels", ipc},
        {"reports", "on|off|now", "what the device tells by itself, at the start and after writes", reports},
        {"heartbeat", "on|off", "the packets of a PC's session, once a second", heartbeat},
    };
}
