#include "emulator/console/arguments.h"
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

bool isUpOrDown(const QString &text)
{
    return text == "up" || text == "down";
}

bool faultTool(Session &session, const QStringList &list)
{
    if (list.size() == 2)
        return session.emulator.tools.clearAnswer(list[1]);
    return list.size() == 3 && session.emulator.tools.setAnswer(list[1], list[2]);
}

void fault(Session &session, const QStringList &list)
{
    const QString what = list.value(0);
    const auto count = arguments::number(list.value(1), 0, 1000000);
    bool done = false;
    if (what == "bus-send" && count)
        done = setCounter(session, hostlink::busFaultFile, *count);
    else if (what == "flash" && count)
        done = setCounter(session, hostlink::flashFaultFile, *count);
    else if (what == "bus" && isUpOrDown(list.value(1)))
        done = session.emulator.device.setBusUp(list[1] == "up");
    else if (what == "keypad" && isUpOrDown(list.value(1)))
        done = session.emulator.keypad.setPresent(list[1] == "up");
    else if (what == "tool")
        done = faultTool(session, list);
    if (done)
        session.ok();
    else
        failUsage(session, "fault");
}
} // namespace

QVector<Word> faultWords()
{
    return {
        {"fault", "bus-send N | flash N | bus down|up | keypad down|up | tool NAME [TEXT]",
         "failing sends or flash reads, a missing bus or keypad (a panel started without it looks for it at "
         "its "
         "next start), what a shell tool answers",
         fault},
    };
}
