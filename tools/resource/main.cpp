// The REST service of the device by hand, with the panel's own client. Exit status 0, 1 with a one-line
// reason on stderr, 2 when no service answers.
#include "boardio.h"
#include "fpd_hostlink.h"
#include "fpd_hoststate.h"
#include "tools/resource/commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace resourcetool;

namespace
{
constexpr int longestTimeoutS = 86400;

/// What the client's classes say in the panel's log is nothing to read here.
void dropLog(QtMsgType, const QMessageLogContext &, const QString &) {}

void addOptions(QCommandLineParser &parser)
{
    QString text = "Speaks to the REST service of the device.\n";
    for (const Command &command : commands())
        text += QString("\n  %1 %2\n      %3").arg(command.name, command.usage, command.effect);
    parser.setApplicationDescription(text);
    parser.addHelpOption();
    parser.addOption({"address", "Where the service is (listen ws: its channel).", "HOST:PORT"});
    parser.addOption({"state", "State folder of the emulator whose service is meant.", "DIR"});
    parser.addOption({"timeout", "How long an answer may take; how long to listen.", "S"});
    parser.addOption({"json", "The answer in one line."});
    parser.addPositionalArgument("command", "One of the above.", "COMMAND ...");
}

/// Empty, or what is wrong with them.
QString readOptions(const QCommandLineParser &parser, Options &options)
{
    options.json = parser.isSet("json");
    options.timeoutGiven = parser.isSet("timeout");
    if (options.timeoutGiven) {
        options.timeoutS = parser.value("timeout").toInt();
        if (options.timeoutS < 1 || options.timeoutS > longestTimeoutS)
            return "no time: " + parser.value("timeout");
    }
    if (!parser.isSet("address")) {
        const QString state =
            parser.isSet("state") ? parser.value("state") : QString::fromStdString(defaultState());
        qputenv("FPD_STATE", state.toLocal8Bit());
        options.port = board::localPort(hostlink::restPort);
        options.pushPort = board::localPort(hostlink::pushPort);
        return QString();
    }
    const QString address = parser.value("address");
    options.host = address.section(':', 0, -2);
    options.port = options.pushPort = address.section(':', -1).toUShort();
    return options.host.isEmpty() || options.port == 0 ? "no HOST:PORT: " + address : QString();
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler(dropLog);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    Options options;
    const QString wrong = readOptions(parser, options);
    if (!wrong.isEmpty())
        return fail(failed, wrong);
    const QStringList arguments = parser.positionalArguments();
    for (const Command &command : commands()) {
        if (arguments.value(0) != QLatin1String(command.name))
            continue;
        const int status = command.run(options, arguments.mid(1));
        return status == wrongUsage
                   ? fail(failed, QString("usage: fpd-resource %1 %2").arg(command.name, command.usage))
                   : status;
    }
    return fail(failed, "no such command: " + arguments.value(0) + " (--help lists them)");
}
