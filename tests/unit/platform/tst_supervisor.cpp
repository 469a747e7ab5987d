// What an init system hears of the panel, for every way in which it may ask.
#include "supervisor.h"
#include "tests/testprogram.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{
enum Who { Nobody, This, Other };
const QByteArray longName = "/tmp/" + QByteArray(sizeof(sockaddr_un::sun_path), 'n');
} // namespace
Q_DECLARE_METATYPE(Who)

class TestSupervisor : public QObject
{
    Q_OBJECT
private slots:
    void tells_data()
    {
        // period: us
        // sign: ms; 0 for none
        const DataRows<QByteArray, QByteArray, Who, int> row{"name", "period", "process", "sign"};
        const QByteArray path = m_folder.filePath("notify").toLocal8Bit();
        const QByteArray abstract = "@fpd-test-" + QByteArray::number(getpid());
        row("a path", path, "20000", This, 10);
        row("an abstract name", abstract, "20000", Nobody, 10);
        row("a period below what a timer can", path, "1500", This, 1);
        row("a period above", path, "18446744073709551615", This, INT_MAX / 2);
        row("without watchdog", path, {}, Nobody, 0);
        row("a watchdog of another process", path, "20000", Other, 0);
        row("a period that is no number", path, "soon", This, 0);
        row("nobody listens", path + "-gone", "20000", This, 0);
        row("no supervisor", {}, "20000", This, 0);
        row("another kind of socket", "vsock:2:1", "20000", This, 0);
        row("a name that is too long", longName, "20000", This, 0);
    }
    void tells()
    {
        const auto [name, period, process, sign] =
            fetched<QByteArray, QByteArray, Who, int>({"name", "period", "process", "sign"});
        const bool heard =
            (name.startsWith('/') || name.startsWith('@')) && name != longName && !name.endsWith("-gone");
        QFile::remove(m_folder.filePath("notify"));
        if (heard)
            listen(name);
        qputenv("NOTIFY_SOCKET", name);
        qputenv("WATCHDOG_USEC", period);
        if (process != Nobody)
            qputenv("WATCHDOG_PID", QByteArray::number(getpid() + (process == Other ? 1 : 0)));
        board::tellSupervisor();
        if (heard)
            QCOMPARE(next(), QByteArray("READY=1"));
        const auto *timer = qApp->findChild<QTimer *>("watchdog");
        QCOMPARE(timer ? timer->interval() : 0, sign);
        QCOMPARE(next(), QByteArray()); // the event loop has not run
        if (sign > 0 && sign < 1000)
            QTRY_COMPARE(next(), QByteArray("WATCHDOG=1"));
    }

    void cleanup()
    {
        delete qApp->findChild<QTimer *>("watchdog");
        close(m_socket);
        m_socket = -1;
        for (const char *name : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"})
            qunsetenv(name);
    }

private:
    void listen(const QByteArray &name)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        memcpy(address.sun_path, name.constData(), size_t(name.size()));
        if (name[0] == '@')
            address.sun_path[0] = '\0';
        m_socket = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0);
        const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
        QCOMPARE(bind(m_socket, reinterpret_cast<const sockaddr *>(&address), length), 0);
    }

    QByteArray next() const
    {
        char text[64];
        const ssize_t length = recv(m_socket, text, sizeof text, 0);
        return length < 0 ? QByteArray() : QByteArray(text, int(length)).trimmed();
    }

    int m_socket = -1;
    QTemporaryDir m_folder;
};

FPD_TEST_GUILESS(TestSupervisor)
#include "tst_supervisor.moc"
