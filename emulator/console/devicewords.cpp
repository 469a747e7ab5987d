#include "emulator/console/words.h"
#include "emulator/emulator.h"
#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"

#include <QJsonObject>

void words::flash(Session &session, Arguments &arguments)
{
    FlashImage &flash = session.emulator.device.flash();
    session.setJson(arguments.flag("--json"));
    const bool reads = arguments.choice({"read", "write"}) == "read";
    const quint32 address = arguments.hexNumber("ADDRESS", hostlink::flashSize - 1);
    const qint64 room = qint64(hostlink::flashSize) - address;
    const auto length = reads ? int(arguments.number("LEN", 0, room)) : 0;
    const QByteArray bytes = reads ? QByteArray() : arguments.bytes("HEX", 1, int(room));
    if (!session.accepts(arguments))
        return;
    const QString hex = QString::fromLatin1(flash.read(address, length).toHex());
    if (reads)
        session.tell(hex, {{"address", QString::number(address, 16)}, {"bytes", hex}});
    else if (!flash.write(address, bytes))
        return session.fail("cannot write the flash");
    session.ok();
}

void words::link(Session &session, Arguments &arguments)
{
    const QMap<QString, const char *> names = {
        {"usb", hostlink::linkUsb},
        {"eth", hostlink::linkEthernet},
        {"loop", hostlink::linkLoop},
        {"priority", hostlink::linkPriority},
    };
    const QString name = arguments.choice({"usb", "eth", "loop", "priority"});
    const qint64 value = arguments.number("VALUE", -0x80000000ll, 0x7fffffff);
    if (!session.accepts(arguments))
        return;
    if (!hostlink::changeValue(session.emulator.folder.file(hostlink::linkFile), names[name],
                               QByteArray::number(value)))
        return session.fail("cannot write the link state");
    session.ok();
}

void words::env(Session &session, Arguments &arguments)
{
    const QString file = session.emulator.folder.file(hostlink::environmentFile);
    session.setJson(arguments.flag("--json"));
    const bool gets = arguments.choice({"get", "set"}) == "get";
    const QString name = arguments.text("NAME");
    const QString value = gets ? QString() : arguments.text("VALUE");
    if (!session.accepts(arguments))
        return;
    if (gets) {
        const auto values = hostlink::readValues(file);
        if (!values.contains(name.toUtf8()))
            return session.fail("no such name: " + name);
        const QString found = QString::fromUtf8(values[name.toUtf8()]);
        session.tell(found, {{"name", name}, {"value", found}});
    } else {
        const bool isName = !name.trimmed().isEmpty() && name.trimmed() == name && !name.contains('=') &&
                            !name.contains('\n');
        if (!isName || value.contains('\n') || !hostlink::changeValue(file, name.toUtf8(), value.toUtf8()))
            return session.fail("cannot set " + name);
    }
    session.ok();
}
