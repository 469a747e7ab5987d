#include "supervisor.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTimer>
#include <climits>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

// The protocol of sd_notify(3): a datagram of NAME=VALUE lines to the socket that the environment names. It
// is spoken here rather than by a library, as boards without that init system do not have one.
namespace board
{
namespace
{
constexpr int signsPerPeriod = 2; ///< as the init system advises, so that a late one does no harm
constexpr qulonglong usPerMs = 1000;

/// The address of NOTIFY_SOCKET, a path or an abstract name; its length is 0 if there is none.
socklen_t supervisorAddress(sockaddr_un &address)
{
    const QByteArray name = qgetenv("NOTIFY_SOCKET");
    if (name.size() < 2 || size_t(name.size()) > sizeof address.sun_path ||
        (name[0] != '/' && name[0] != '@'))
        return 0;
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path, name.constData(), size_t(name.size()));
    if (name[0] == '@')
        address.sun_path[0] = '\0';
    return socklen_t(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
}

/// False if there is nobody to tell.
bool tell(const char *text, int flags = 0)
{
    sockaddr_un address{};
    const socklen_t length = supervisorAddress(address);
    const int descriptor = length == 0 ? -1 : socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return false;
    const auto *target = reinterpret_cast<const sockaddr *>(&address);
    const ssize_t sent = sendto(descriptor, text, strlen(text), flags | MSG_NOSIGNAL, target, length);
    close(descriptor);
    return sent >= 0;
}

/// How long the supervisor bears silence; 0 if it does not care, or means another process.
int watchdogMs()
{
    const QByteArray process = qgetenv("WATCHDOG_PID");
    if (!process.isEmpty() && process.toLongLong() != getpid())
        return 0;
    return int(qMin(qgetenv("WATCHDOG_USEC").toULongLong() / usPerMs, qulonglong(INT_MAX)));
}
} // namespace

void tellSupervisor()
{
    if (!tell("READY=1\n") || watchdogMs() == 0)
        return;
    auto *sign = new QTimer(QCoreApplication::instance());
    sign->setObjectName("watchdog");
    // A full socket is no reason for the event loop to stand still: the next sign is soon to come.
    QObject::connect(sign, &QTimer::timeout, sign, [] { tell("WATCHDOG=1\n", MSG_DONTWAIT); });
    sign->start(qMax(1, watchdogMs() / signsPerPeriod));
}
} // namespace board
