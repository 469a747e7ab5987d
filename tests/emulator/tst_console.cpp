// The console and the window as their users get them wrong: clients that go away, files that are none,
// numbers out of any range.
#include "emulator/window/window.h"
#include "emulatorrig.h"
#include "tests/testprogram.h"

#include <sys/stat.h>

class TestConsole : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_rig.reset(); }
    void aKeyIsLetGoWithoutItsClient();
    void aKeyIsLetGoWithTheFocus();
    void keysHaveNumbers();
    void anEndlessLineEndsItsClient();
    void aFollowerMustRead();
    void manyRequestsAtOnceAreAllAnswered();
    void whatGetsLostIsSaid_data();
    void whatGetsLostIsSaid();
    void aSleepingPanelIsNotAMissingOne();
    void keysComeBackWithTheKeypad();
    void bytesAreTaken_data();
    void bytesAreTaken();
    void requestsAreRefused_data();
    void requestsAreRefused();

private:
    /// All key words up to now, once there are so many.
    QList<QByteArray> keys(int count);

    std::unique_ptr<EmulatorRig> m_rig;
};

namespace
{
const QByteArray okPressed("\x22\1"), okReleased("\xa2\1");
} // namespace

void TestConsole::init()
{
    m_rig = std::make_unique<EmulatorRig>();
    QVERIFY(m_rig->open());
}

QList<QByteArray> TestConsole::keys(int count)
{
    QList<QByteArray> words;
    const bool all = QTest::qWaitFor([&] {
        words += m_rig->panel->keys();
        return words.size() >= count;
    });
    return all ? words : QList<QByteArray>{"too few: " + words.join()};
}

void TestConsole::aKeyIsLetGoWithoutItsClient()
{
    auto client = m_rig->client();
    client->write("key ok\n");
    QCOMPARE(keys(1), QList<QByteArray>{okPressed});
    client.reset();
    QCOMPARE(keys(1), QList<QByteArray>{okReleased});
    QCOMPARE(m_rig->ask("key ok"), QByteArray("ok"));
    QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
}

void TestConsole::aKeyIsLetGoWithTheFocus()
{
    EmulatorWindow window(*m_rig->emulator);
    QTest::keyPress(&window, Qt::Key_Return);
    QCOMPARE(keys(1), QList<QByteArray>{okPressed});
    QEvent focusGoes(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window, &focusGoes);
    QCOMPARE(keys(1), QList<QByteArray>{okReleased});
    QTest::keyRelease(&window, Qt::Key_Return); // comes late: the key is up already
    QTest::keyClick(&window, Qt::Key_Return);
    QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
}

void TestConsole::keysHaveNumbers()
{
    for (const char *same : {"key 010", "key 0xA", "key 10", "key in5"}) {
        QCOMPARE(m_rig->ask(same), QByteArray("ok"));
        QCOMPARE(keys(2), (QList<QByteArray>{"\n\1", "\x8a\1"}));
    }
}

void TestConsole::anEndlessLineEndsItsClient()
{
    auto client = m_rig->client();
    client->write(QByteArray(2 * 1024 * 1024, 'x'));
    QVERIFY(QTest::qWaitFor([&] { return client->state() == QLocalSocket::UnconnectedState; }));
    QCOMPARE(m_rig->ask("state"), QByteArray("ok"));
}

void TestConsole::aFollowerMustRead()
{
    auto reader = m_rig->client(), sleeper = m_rig->client();
    sleeper->setReadBufferSize(1);
    for (QLocalSocket *client : {reader.get(), sleeper.get()})
        client->write("writes --follow\n");
    QVERIFY(QTest::qWaitFor([&] { return reader->bytesToWrite() + sleeper->bytesToWrite() == 0; }));
    QTest::qWait(50);
    constexpr int bytes = 300000, writes = 40; // 24 MB in hex
    RegisterWrite write{};
    write.bytes = QByteArray(bytes, 'x');
    qint64 taken = 0;
    for (int i = 1; i <= writes; ++i) {
        emit m_rig->emulator->device.written(write);
        QVERIFY(QTest::qWaitFor([&] { return (taken += reader->readAll().size()) > 2 * bytes * i; }));
    }
    sleeper->setReadBufferSize(0);
    QVERIFY(QTest::qWaitFor([&] {
        sleeper->readAll();
        return sleeper->state() == QLocalSocket::UnconnectedState;
    }));
}

void TestConsole::manyRequestsAtOnceAreAllAnswered()
{
    constexpr int requests = 2000; // 2 MB, more than is taken in at once
    auto client = m_rig->client();
    client->write(QByteArray("wait ready 1\n") +
                  QByteArray("state" + QByteArray(1000, ' ') + "\n").repeated(requests));
    int answers = 0;
    QVERIFY(QTest::qWaitFor(
        [&] {
            answers += client->readAll().count('+');
            return answers >= requests;
        },
        60000));
}

void TestConsole::whatGetsLostIsSaid_data()
{
    QTest::addColumn<QByteArray>("request");
    for (const char *request : {"calibrate on", "calibrate off", "rename Stage", "heartbeat on", "update 5",
                                "push 0200001f 01", "reports now"})
        QTest::newRow(request) << QByteArray(request);
}

void TestConsole::whatGetsLostIsSaid()
{
    QFETCH(QByteArray, request);
    QCOMPARE(m_rig->ask("fault bus down"), QByteArray("ok"));
    QCOMPARE(m_rig->ask(request), QByteArray("error no panel is on the bus"));
    QVERIFY(!m_rig->emulator->device.hasHeartbeat());
    QCOMPARE(m_rig->ask("signal sdi on"), QByteArray("ok")); // told when the panel joins the bus again
}

void TestConsole::aSleepingPanelIsNotAMissingOne()
{
    constexpr int most = 1000;
    int taken = 0;
    for (; taken < most && m_rig->emulator->device.pushRead(0x13800000, QByteArray(60000, 'x'), 0, 0);
         ++taken)
        ;
    QVERIFY(taken > 100 && taken < most);
    QCOMPARE(m_rig->ask("push 13800000 5a"),
             QByteArray("error the panel does not read what the device tells: its queue is full"));
    QCOMPARE(m_rig->emulator->device.refused(), 2);
    for (taken = 0; taken < most && m_rig->emulator->keypad.turn(keyKnobLeft, 1000, 1); ++taken)
        ;
    QVERIFY(taken > 100 && taken < most);
    QCOMPARE(m_rig->ask("key ok"), QByteArray("error the panel does not read its keys: their queue is full"));
}

void TestConsole::keysComeBackWithTheKeypad()
{
    QCOMPARE(m_rig->ask("fault keypad down"), QByteArray("ok"));
    QCOMPARE(m_rig->ask("key ok"), QByteArray("error the keypad is unplugged"));
    QCOMPARE(m_rig->ask("fault keypad up"), QByteArray("ok"));
    QCOMPARE(m_rig->ask("key ok"), QByteArray("ok"));
    QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
}

void TestConsole::bytesAreTaken_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QByteArray>("bytes"); // empty: refused
    const auto row = [](const QByteArray &hex, const QByteArray &bytes) {
        QTest::newRow(hex.left(20)) << hex << bytes;
    };
    row("0a0B", "0a0b");
    row("0x0a 0X0b", "0a0b");
    row("00x0", ""); // 0x in the middle of a byte
    row("0a0", "");
    row("0x", "");
    row("0x0x0a", "");
    row("0g", "");
    row(QByteArray("\"0 a\""), "0a");
    row(QByteArray("a5").repeated(65535), QByteArray("a5").repeated(65535));
    row(QByteArray("5a").repeated(65536), "");
}

void TestConsole::bytesAreTaken()
{
    QFETCH(QByteArray, hex);
    QFETCH(QByteArray, bytes);
    const QByteArray answer = m_rig->ask("push 0200001f " + hex);
    if (bytes.isEmpty()) {
        QVERIFY2(answer.startsWith("error usage"), answer);
    } else {
        QCOMPARE(answer, QByteArray("ok"));
        QCOMPARE(m_rig->panel->reports(), QList<QByteArray>{"200001f " + bytes});
    }
}

void TestConsole::requestsAreRefused_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *request, const char *reason) {
        QTest::newRow(request) << QByteArray(request) << QByteArray(reason);
    };
    row("record FIFO", "no plain file");
    row("replay FIFO", "no plain file");
    row("screen FIFO", "no plain file");
    row("replay /dev/zero", "no plain file");
    row("replay LONG", "at most 64 MB");
    row("replay SESSION nan", "usage");
    row("replay SESSION inf", "usage");
    row("leds --watch nan", "usage");
    row("leds --watch 1e300", "usage");
    row("leds --watch -1", "usage");
    row("key 0b10", "no such key");
    row("key 128", "no such key");
    row("cd /nosuch", "no such folder");
    row("cd LONG", "no such folder");
    row("env set \"\" x", "cannot set");
    row("env set \" a\" x", "cannot set");
    row("env set a=b x", "cannot set");
}

void TestConsole::requestsAreRefused()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, reason);
    const QByteArray fifo = m_rig->file("fifo").toUtf8();
    QCOMPARE(mkfifo(fifo, 0600), 0);
    QFile tooLong(m_rig->file("long"));
    QVERIFY(tooLong.open(QIODevice::WriteOnly) && tooLong.resize(65 * 1024 * 1024));
    QFile session(m_rig->file("session"));
    QVERIFY(session.open(QIODevice::WriteOnly));
    request.replace("FIFO", fifo).replace("LONG", tooLong.fileName().toUtf8());
    const QByteArray answer = m_rig->ask(request.replace("SESSION", session.fileName().toUtf8()));
    QVERIFY2(answer.startsWith("error ") && answer.contains(reason), answer);
}

FPD_TEST(TestConsole)
#include "tst_console.moc"
