#include "emulator/console/server.h"
#include "emulator/emulator.h"
#include "emulator/host/signals.h"
#include "emulator/window/window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace
{
struct Options {
    bool headless = false;
    bool withPanel = true;
    bool rest = false;
    QString state;
};

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
    parser.process(*QCoreApplication::instance());
    const QStringList stray = parser.positionalArguments();
    if (!stray.isEmpty()) {
        fprintf(stderr, "fpd-emulator: \"%s\" is no option; --help lists them\n", qPrintable(stray[0]));
        exit(EXIT_FAILURE);
    }
    return {!window || parser.isSet("headless"), !parser.isSet("no-panel"), parser.isSet("rest"),
            parser.value("state")};
}

int failed(const QString &reason)
{
    fprintf(stderr, "fpd-emulator: %s\n", qPrintable(reason));
    return 1;
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
