#include "emulator/console/arguments.h"
#include "emulator/console/words.h"
#include "emulator/emulator.h"
#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"

namespace
{
void flash(Session &session, const QStringList &list)
{
    const auto address = arguments::address(list.value(1));
    FlashImage &flash = session.emulator.device.flash();
    if (list.size() < 3 || !address)
        return failUsage(session, "flash");
    const auto length = arguments::number(list[2], 0, hostlink::flashSize);
    const auto bytes = arguments::hexBytes(list.mid(2).join(QString()));
    if (list[0] == "read" && length && list.size() == 3) {
        if (*address + *length > hostlink::flashSize)
            return session.fail("beyond the end of the flash");
        session.print(QString::fromLatin1(flash.read(*address, int(*length)).toHex()));
    } else if (list[0] == "write" && bytes) {
        if (!flash.write(*address, *bytes))
            return session.fail("beyond the end of the flash");
    } else {
        return failUsage(session, "flash");
    }
    session.ok();
}

void link(Session &session, const QStringList &list)
{
    const QMap<QString, const char *> names = {
        {"usb", hostlink::linkUsb},
        {"eth", hostlink::linkEthernet},
        {"loop", hostlink::linkLoop},
        {"priority", hostlink::linkPriority},
    };
    const auto value = arguments::number(list.value(1), -0x80000000ll, 0x7fffffff);
    if (list.size() != 2 || !names.contains(list[0]) || !value)
        return failUsage(session, "link");
    if (!hostlink::changeValue(session.emulator.folder.file(hostlink::linkFile), names[list[0]],
                               QByteArray::number(*value)))
        return session.fail("cannot write the link state");
    session.ok();
}

void env(Session &session, const QStringList &list)
{
    const QString file = session.emulator.folder.file(hostlink::environmentFile);
    if (list.size() == 2 && list[0] == "get") {
        const auto values = hostlink::readValues(file);
        const QByteArray name = list[1].toUtf8();
        if (!values.contains(name))
            return session.fail("no such name: " + list[1]);
        session.print(QString::fromUtf8(values[name]));
    } else if (list.size() == 3 && list[0] == "set") {
        const bool isName = !list[1].trimmed().isEmpty() && list[1].trimmed() == list[1] &&
                            !list[1].contains('=') && !list[1].contains('\n');
        if (!isName || list[2].contains('\n') ||
            !hostlink::changeValue(file, list[1].toUtf8(), list[2].toUtf8()))
            return session.fail("cannot set " + list[1]);
    } else {
        return failUsage(session, "env");
    }
    session.ok();
}
} // namespace

QVector<Word> deviceWords()
{
    return {
        {"flash", "read ADDRESS LEN | write ADDRESS HEX", "the snapshot; addresses in hex", flash},
        {"link", "usb|eth|loop|priority VALUE", "what the status functions tell", link},
        {"env", "get NAME | set NAME VALUE", "the persistent environment", env},
    };
}
