#include "emulator/console/server.h"
#include "emulator/emulator.h"
#include "emulator/host/signals.h"
#include "emulator/window/window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <memory>

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
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--headless") == 0 || qstrcmp(argv[i], "--help") == 0)
            return false;
    }
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

Options readOptions(bool window)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("The device around the front panel: keys, knob, LEDs, LCD and bus.");
    parser.addHelpOption();
    parser.addOption({"headless", "No window."});
    parser.addOption({"no-panel", "Do not start the panel yet (fpdctl panel start does)."});
    parser.addOption({"rest", "The panel that speaks to the REST service."});
    parser.addOption(
        {"state", "State folder, instead of the user's own.", "DIR", StateFolder::defaultPath()});
    parser.process(*QCoreApplication::instance());
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
    const std::unique_ptr<QCoreApplication> application(window ? new QApplication(argc, argv)
                                                               : new QCoreApplication(argc, argv));
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
    return QCoreApplication::exec();
}
