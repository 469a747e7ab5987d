#include "emulator/host/signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{
int wakePipe[2];

void wake(int)
{
    const char byte = 0;
    if (write(wakePipe[1], &byte, 1) < 0)
        return;
}
} // namespace

void quitOnSignals()
{
    if (pipe2(wakePipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    for (int signal : {SIGINT, SIGTERM, SIGHUP})
        ::signal(signal, wake);
    ::signal(SIGPIPE, SIG_IGN);
}
