// The keypad thread at the device: which words become which events for the active window, and the block that
// an LED command hands to the driver.

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "framework/input/keyevent.h"
#include "framework/input/keypadevent.h"
#include "menu/keycodes.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QWidget>
#include <QtEndian>
#include <fcntl.h>
#include <poll.h>

using namespace VASK;

namespace
{
/// Notes keys as "type key speed", with a star for a long press.
class KeyWindow : public QWidget
{
public:
    QStringList keys;

protected:
    bool event(QEvent *event) override
    {
        const auto *key = dynamic_cast<KeypadEvent *>(event);
        if (key)
            keys << QString("%1 %2 %3%4")
                        .arg(key->type())
                        .arg(key->key())
                        .arg(key->KeySpeed())
                        .arg(key->IsLongPress() ? "*" : "");
        return QWidget::event(event);
    }
};

/// The driver's end of the socket.
class Driver
{
public:
    explicit Driver(const QString &state)
        : m_listener(hostlink::listenSocket((state + hostlink::keypadSocket).toStdString(), SOCK_SEQPACKET))
    {
    }
    ~Driver()
    {
        close(m_reader);
        close(m_listener);
    }

    /// Waits for a client; true if it came in that mode.
    int takeClient(char expected)
    {
        pollfd entry{m_listener, POLLIN, 0};
        if (poll(&entry, 1, 5000) != 1)
            return -1;
        const int client = accept(m_listener, nullptr, nullptr);
        char mode = 0;
        return recv(client, &mode, 1, 0) == 1 && mode == expected ? client : -1;
    }
    bool takeReader() { return (m_reader = takeClient('r')) >= 0; }
    void words(const QList<int> &list)
    {
        for (int word : list) {
            const quint16 bytes = qToLittleEndian(quint16(word));
            send(m_reader, &bytes, sizeof bytes, MSG_NOSIGNAL);
        }
    }
    /// The next LED command: request number and block; the command gets that result.
    QByteArray takeCommand(qint32 result)
    {
        const int client = takeClient('w');
        QByteArray packet(200, '\0');
        packet.resize(int(qMax<ssize_t>(0, recv(client, packet.data(), size_t(packet.size()), 0))));
        send(client, &result, sizeof result, MSG_NOSIGNAL);
        char more = 0;
        // Opened for the one command, and closed behind it.
        if (recv(client, &more, 1, 0) != 0)
            packet.clear();
        close(client);
        return packet;
    }

private:
    int m_listener;
    int m_reader = -1;
};

/// What the program writes to its standard output goes to a file for a while.
class StandardOutput
{
public:
    explicit StandardOutput(const QString &file) : m_file(file), m_former(dup(STDOUT_FILENO))
    {
        fflush(stdout);
        const int descriptor = open(file.toLocal8Bit(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
        dup2(descriptor, STDOUT_FILENO);
        close(descriptor);
    }
    ~StandardOutput()
    {
        fflush(stdout);
        dup2(m_former, STDOUT_FILENO);
        close(m_former);
    }
    QByteArray text() const
    {
        QFile written(m_file);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

private:
    QString m_file;
    int m_former;
};

constexpr int slow = 1 << 8;
constexpr int released = 0x80;
} // namespace

class TestKeyEvent : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("FPD_STATE", m_state.path().toLocal8Bit());
        QDir().mkpath(m_state.path() + "/run");
        KeyEvent *keys = KeyEvent::getInstance();
        QVERIFY(!keys->InitKeyDriver(nullptr));
        QCOMPARE(KeyEvent::SendLedCommand(LED_FN, LED_ON), 0); // no driver yet: nothing happens
        QVERIFY(!keys->InitKeyDriver(qApp));                   // no device
        QCOMPARE(KeyEvent::SendLedCommand(LED_FN, LED_ON), 1);
        m_driver = std::make_unique<Driver>(m_state.path());
        QVERIFY(keys->InitKeyDriver(qApp));
        QVERIFY(m_driver->takeReader());
        m_window.show();
        keys->start(QThread::InheritPriority);
    }
    void init()
    {
        QApplication::setActiveWindow(&m_window);
        QCoreApplication::processEvents();
        m_window.keys.clear();
    }
    void cleanupTestCase()
    {
        // The device goes: the thread polls on and can be ended.
        m_driver.reset();
        QTest::qWait(50);
        KeyEvent::getInstance()->requestInterruption();
        QVERIFY(KeyEvent::getInstance()->wait(1000));
    }

    void wordsBecomeEvents()
    {
        m_driver->words({KEY_OK | slow, KEY_OK | released | slow, KEY_KNOB_RIGHT | 8 << 8, 0 | slow,
                         36 | slow, 36 | released | slow});
        QTRY_COMPARE(m_window.keys, (QStringList{"0 34 1", "1 34 1", "0 33 8", "0 0 1", "0 36 1", "1 36 1"}));
    }

    void aBurstKeepsItsOrder()
    {
        QList<int> words;
        QStringList events;
        for (int i = 0; i < 300; ++i) {
            words << (KEY_KNOB_LEFT | (i % 200 + 1) << 8);
            events << QString("0 32 %1").arg(i % 200 + 1);
        }
        m_driver->words(words);
        QTRY_COMPARE(m_window.keys.size(), events.size());
        QCOMPARE(m_window.keys, events);
    }

    void heldKeysTellOnce()
    {
        m_driver->words({KEY_OK | slow, KEY_PRESET | slow});
        QTRY_COMPARE_WITH_TIMEOUT(m_window.keys.size(), 4, 4000);
        m_driver->words({KEY_OK | released | slow, KEY_PRESET | released | slow, KEY_ESC | slow});
        QTRY_COMPARE(m_window.keys.size(), 6);
        QVERIFY(m_window.keys.contains("2 34 1*"));
        QVERIFY(m_window.keys.contains("2 17 1*"));
        // The release of a held key is swallowed, but for the preset key.
        QCOMPARE(m_window.keys.mid(4), (QStringList{"1 17 1", "0 35 1"}));
        m_driver->words({KEY_ESC | released | slow});
        QTRY_COMPARE(m_window.keys.size(), 7);
    }

    void keysWithoutAWindowAreDropped()
    {
        QApplication::setActiveWindow(nullptr);
        m_driver->words({KEY_FN | slow, KEY_FN | released | slow});
        QTest::qWait(100);
        QApplication::setActiveWindow(&m_window);
        m_driver->words({KEY_KNOB_LEFT | slow});
        QTRY_COMPARE(m_window.keys, QStringList{"0 32 1"});
    }

    void anLedCommandReachesTheDriver()
    {
        // The request, and the block that it points to: 76 bytes, of which the mask of LED 7 and "off".
        QByteArray packet(80, '\0');
        const QPair<int, quint32> words[] = {{0, 0xc04c6bb4}, {4, 76}, {8, 6}, {28, 0x80}, {44, 7}};
        for (const auto &word : words)
            qToLittleEndian(word.second, packet.data() + word.first);
        for (qint32 result : {0, -1}) {
            int returned = -1;
            std::unique_ptr<QThread> caller(
                QThread::create([&] { returned = KeyEvent::SendLedCommandOnce(7, LED_OFF); }));
            caller->start();
            QCOMPARE(m_driver->takeCommand(result), packet);
            QVERIFY(caller->wait(5000));
            QCOMPARE(returned, result == 0 ? 0 : 1);
        }
    }

    /// At once, though standard output is a file or a pipe.
    void aFailureIsTold()
    {
        const StandardOutput output(m_state.path() + "/out");
        std::unique_ptr<QThread> caller(QThread::create([] { KeyEvent::SendLedCommandOnce(7, LED_OFF); }));
        caller->start();
        m_driver->takeCommand(-1);
        QVERIFY(caller->wait(5000));
        QCOMPARE(output.text(), QByteArray("fail to ioctl a led light\n"));
        QVERIFY(QFile::rename(m_state.path() + hostlink::keypadSocket, m_state.path() + "/away"));
        QCOMPARE(KeyEvent::SendLedCommandOnce(7, LED_OFF), 1);
        QCOMPARE(output.text(), QByteArray("fail to ioctl a led light\nfail to open\n"));
        QVERIFY(QFile::rename(m_state.path() + "/away", m_state.path() + hostlink::keypadSocket));
    }

private:
    QTemporaryDir m_state;
    std::unique_ptr<Driver> m_driver;
    KeyWindow m_window;
};

FPD_TEST(TestKeyEvent)
#include "tst_keyevent.moc"
