#include "boardio.h"

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "platform/host/diskwatch.h"

#include <QByteArray>
#include <QRegularExpression>
#include <cstdlib>

namespace board
{
namespace
{
QString stateFolder()
{
    return qEnvironmentVariable("FPD_STATE");
}

QString quoted(QString text)
{
    return '\'' + text.replace('\'', "'\\''") + '\'';
}

/// The board's command line for this machine: its paths below the state folder, its tools in front of PATH,
/// and "sync" for the state folder's file system alone.
QByteArray hostCommand(const char *commandLine)
{
    const QString state = stateFolder();
    QString line = QString::fromUtf8(commandLine);
    if (state.isEmpty())
        return line.toUtf8();
    static const QRegularExpression boardPath(
        "(?<![\\w/.])(?=/(?:usr/vask|etc/init\\.d|root/\\.local|dev/keypad0)\\b)");
    // Not by replace(), which would read backslashes of the folder's name as its own.
    int inserted = 0;
    for (auto place = boardPath.globalMatch(QString(line)); place.hasNext(); inserted += quoted(state).size())
        line.insert(place.next().capturedStart() + inserted, quoted(state));
    if (line.trimmed() == QLatin1String("sync"))
        line = "sync -f " + quoted(state);
    return ("PATH=" + quoted(state + hostlink::toolFolder) + ":\"$PATH\"; " + line).toUtf8();
}
} // namespace

QString filePath(const QString &boardPath)
{
    return stateFolder() + boardPath;
}

unsigned short localPort(unsigned short boardPort)
{
    if (stateFolder().isEmpty())
        return boardPort;
    const auto ports = hostlink::readValues(filePath(QLatin1String(hostlink::portFile)));
    return ports.value(QByteArray::number(boardPort)).toUShort();
}

int runCommand(const char *commandLine)
{
    return host::runDiskCommand(QString::fromUtf8(commandLine).split(' '),
                                [commandLine] { return std::system(hostCommand(commandLine).constData()); });
}

FILE *openPipe(const char *commandLine)
{
    return popen(hostCommand(commandLine).constData(), "r");
}

int closePipe(FILE *pipe)
{
    return pclose(pipe);
}
} // namespace board
