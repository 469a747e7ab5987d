#include "emulator/console/server.h"
#include "emulator/emulator.h"
#include "emulator/host/signals.h"
#include "emulator/web/webserver.h"
#include "emulator/window/window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <unistd.h>

namespace
{
struct Options {
    bool headless = false;
    bool withPanel = true;
    bool rest = false;
    QString state;
    std::optional<quint16> webPort; ///< nothing: the panel is not served
    QHostAddress webAddress;
};

/// The port of --web may be left out, which the parser does not know.
QStringList withWebPort(QStringList arguments)
{
    const int at = arguments.indexOf("--web");
    if (at < 0)
        return arguments;
    bool isPort = false;
    arguments.value(at + 1).toUShort(&isPort);
    arguments[at] = "--web=" + (isPort ? arguments.takeAt(at + 1) : QString("0"));
    return arguments;
}

/// A window is for a desktop; without one the emulator runs headless by itself.
bool wantsWindow(int argc, char *argv[])
{
    for (const char *without : {"--headless", "--help", "-h", "--help-all", "--version", "-v"})
        for (int i = 1; i < argc; ++i)
            if (qstrcmp(argv[i], without) == 0)
                return false;
    for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (qEnvironmentVariableIsSet(display))
            return true;
    fprintf(stderr, "fpd-emulator: there is no display, so it runs without a window: fpdctl drives it, "
                    "\"fpdctl screen FILE.png\" is its LCD\n");
    return false;
}

/// Qt gives up with a signal when it cannot open the display.
void tellDisplay(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    fprintf(stderr, "fpd-emulator: %s\n", qPrintable(text));
    if (type != QtFatalMsg)
        return;
    fprintf(stderr, "fpd-emulator: no window can be opened; --headless runs without one\n");
    _exit(EXIT_FAILURE);
}

std::unique_ptr<QCoreApplication> makeApplication(bool window, int &argc, char *argv[])
{
    if (!window)
        return std::make_unique<QCoreApplication>(argc, argv);
    const QtMessageHandler usual = qInstallMessageHandler(tellDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usual);
    return application;
}

Options readOptions(bool window)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("The device around the front panel: keys, knob, LEDs, LCD and bus.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({"headless", "No window."});
    parser.addOption({"no-panel", "Do not start the panel yet (fpdctl panel start does)."});
    parser.addOption({"rest", "The panel that speaks to the REST service."});
    parser.addOption({"state", "State folder, instead of $FPD_STATE or the user's own.", "DIR",
                      StateFolder::defaultPath()});
    parser.addOption({"web", "Serves the panel to browsers, at a free port if none is said.", "PORT"});
    parser.addOption({"bind", "With --web: the address to serve it at; 0.0.0.0 for all.", "ADDRESS",
                      QHostAddress(QHostAddress::LocalHost).toString()});
    parser.process(withWebPort(QCoreApplication::arguments()));
    const QStringList stray = parser.positionalArguments();
    if (!stray.isEmpty()) {
        fprintf(stderr, "fpd-emulator: \"%s\" is no option; --help lists them\n", qPrintable(stray[0]));
        exit(EXIT_FAILURE);
    }
    Options options{!window || parser.isSet("headless"),
                    !parser.isSet("no-panel"),
                    parser.isSet("rest"),
                    parser.value("state"),
                    std::nullopt,
                    QHostAddress(parser.value("bind"))};
    bool isPort = true;
    if (parser.isSet("web"))
        options.webPort = parser.value("web").toUShort(&isPort);
    if (!isPort || options.webAddress.isNull() || (parser.isSet("bind") && !options.webPort)) {
        fprintf(stderr, "fpd-emulator: --web takes a port, --bind an address and belongs to --web\n");
        exit(EXIT_FAILURE);
    }
    return options;
}

int failed(const QString &reason)
{
    fprintf(stderr, "fpd-emulator: %s\n", qPrintable(reason));
    return 1;
}

void tellLinks(const WebServer &web)
{
    printf("panel: %s\n", qPrintable(web.driveLink()));
    printf("to look only: %s\n", qPrintable(web.lookLink()));
    fflush(stdout);
}

void reportPanel(Emulator &emulator)
{
    QObject::connect(&emulator, &Emulator::ready, [] {
        puts("ready");
        fflush(stdout);
    });
    QObject::connect(&emulator.panel, &PanelProcess::ended, [&emulator] {
        if (!emulator.panel.failure().isEmpty())
            failed("the panel " + emulator.panel.failure());
    });
}
} // namespace

int main(int argc, char *argv[])
{
    const bool window = wantsWindow(argc, argv);
    EmulatorWindow::prepareApplication();
    QCoreApplication::setApplicationVersion(FPD_VERSION);
    const auto application = makeApplication(window, argc, argv);
    const Options options = readOptions(window);
    StateFolder folder(options.state);
    const QString refused = folder.take();
    if (!refused.isEmpty())
        return failed(refused);
    const QString notInstalled = folder.install();
    if (!notInstalled.isEmpty())
        return failed(notInstalled);
    Emulator emulator(folder);
    if (options.rest)
        emulator.panel.useRest();
    ConsoleServer console(emulator);
    const QString fault = emulator.open();
    if (!fault.isEmpty() || !console.open())
        return failed(fault.isEmpty() ? "cannot open the console" : fault);
    WebServer web(emulator, options.webAddress);
    const QString notServed = options.webPort ? web.open(*options.webPort) : QString();
    if (!notServed.isEmpty())
        return failed(notServed);
    if (options.webPort)
        tellLinks(web);
    quitOnSignals();
    reportPanel(emulator);
    const std::unique_ptr<EmulatorWindow> view(options.headless ? nullptr : new EmulatorWindow(emulator));
    if (view)
        view->show();
    if (options.withPanel)
        emulator.startPanel();
    const int status = QCoreApplication::exec();
    return emulator.panel.hasEverFailed() ? EXIT_FAILURE : status;
}
