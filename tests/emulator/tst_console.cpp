// The console and the window as their users get them wrong: clients that go away, files that are none,
// numbers out of any range.
#include "emulator/console/wordlist.h"
#include "emulator/window/window.h"
#include "emulatorrig.h"
#include "tests/testprogram.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <sys/stat.h>

namespace
{
const QByteArray okPressed("\x22\1"), okReleased("\xa2\1");
} // namespace

class TestConsole : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        if (m_rig) {
            m_rig->panel->keys();
            m_rig->panel->reports();
            return;
        }
        m_rig = std::make_unique<EmulatorRig>();
        QVERIFY(m_rig->open());
        QCOMPARE(mkfifo(qPrintable(m_rig->file("fifo")), 0600), 0);
        QFile tooLong(m_rig->file("long")), session(m_rig->file("session"));
        QVERIFY(tooLong.open(QIODevice::WriteOnly) && tooLong.resize(65 * 1024 * 1024));
        QVERIFY(session.open(QIODevice::WriteOnly));
    }

    void cleanup()
    {
        if (m_spoilt || QTest::currentTestFailed())
            m_rig.reset();
        m_spoilt = false;
    }

    void cleanupTestCase() { m_rig.reset(); }
    void aKeyIsLetGoWithoutItsClient()
    {
        auto client = m_rig->client();
        client->write("key ok\n");
        QCOMPARE(keys(1), QList<QByteArray>{okPressed});
        client.reset();
        QCOMPARE(keys(1), QList<QByteArray>{okReleased});
        QCOMPARE(m_rig->ask("key ok"), QByteArray("ok"));
        QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
    }

    void aKeyIsLetGoWithTheFocus()
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

    void keysHaveNamesAndNumbers()
    {
        for (const char *same : {"key 06", "key 0x6", "key 6", "key in1", "key hdmi1", "KEY HDMI1 TAP"}) {
            QCOMPARE(m_rig->ask(same), QByteArray("ok"));
            QCOMPARE(keys(2), (QList<QByteArray>{"\6\1", "\x86\1"}));
        }
    }

    void anEndlessLineEndsItsClient()
    {
        auto client = m_rig->client();
        client->write(QByteArray(2 * 1024 * 1024, 'x'));
        QVERIFY(QTest::qWaitFor([&] { return client->state() == QLocalSocket::UnconnectedState; }));
        QCOMPARE(m_rig->ask("state"), QByteArray("ok"));
    }

    void aFollowerMustRead()
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

    void manyRequestsAtOnceAreAllAnswered()
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

    void whatGetsLostIsSaid_data()
    {
        addNames<QByteArray>("request", {"calibrate on", "calibrate off", "rename Stage", "heartbeat on",
                                         "update 5", "push 0200001f 01", "reports now"});
    }
    void whatGetsLostIsSaid()
    {
        m_spoilt = true;
        QFETCH(QByteArray, request);
        QCOMPARE(m_rig->ask("fault bus down"), QByteArray("ok"));
        QCOMPARE(m_rig->ask(request), QByteArray("error no panel is on the bus"));
        QVERIFY(!m_rig->emulator->device.hasHeartbeat());
        QCOMPARE(m_rig->ask("signal sdi on"), QByteArray("ok")); // told when the panel joins the bus again
    }

    void aSleepingPanelIsNotAMissingOne()
    {
        m_spoilt = true;
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
        QCOMPARE(m_rig->ask("key ok"),
                 QByteArray("error the panel does not read its keys: their queue is full"));
    }

    void keysComeBackWithTheKeypad()
    {
        m_spoilt = true;
        QCOMPARE(m_rig->ask("fault keypad down"), QByteArray("ok"));
        QCOMPARE(m_rig->ask("key ok"), QByteArray("error the keypad is unplugged"));
        QCOMPARE(m_rig->ask("fault keypad up"), QByteArray("ok"));
        QCOMPARE(m_rig->ask("key ok"), QByteArray("ok"));
        QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
    }

    void bytesAreTaken_data()
    {
        // bytes: empty: refused
        addColumns<QByteArray, QByteArray>({"hex", "bytes"});
        const auto row = [](const QByteArray &hex, const QByteArray &bytes) {
            addRow(hex.left(20), hex, bytes);
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

    void bytesAreTaken()
    {
        const auto [hex, bytes] = fetched<QByteArray, QByteArray>({"hex", "bytes"});
        const QByteArray answer = m_rig->ask("push 0200001f " + hex);
        if (bytes.isEmpty()) {
            QVERIFY2(answer.startsWith("error usage"), answer);
        } else {
            QCOMPARE(answer, QByteArray("ok"));
            QCOMPARE(m_rig->panel->reports(), QList<QByteArray>{"200001f " + bytes});
        }
    }

    void requestsAreRefused_data()
    {
        const DataRows<QByteArray, QByteArray> row{"request", "reason"};
        row("record FIFO", "no plain file");
        row("replay FIFO", "no plain file");
        row("screen --last FIFO", "no plain file");
        row("screen a.jpg", "not a jpg");
        row("screen a.png", "stopped: its LCD is dark");
        row("leds", "stopped: its LEDs are off");
        row("replay /dev/zero", "no plain file");
        row("replay LONG", "at most 64 MB");
        row("replay SESSION nan",
            "usage: replay FILE [SPEED] [--check] [--json]: SPEED is \"nan\", must be 0.001 to 100000");
        row("replay SESSION inf", "SPEED is \"inf\"");
        for (const char *seconds : {"nan", "1e300", "-1"})
            row(QByteArray("leds --watch ") + seconds, "must be 0 to 604800");
        row("leds --watch", "--watch needs a value");
        row("key 0b10", "no such key: 0b10; there are main pip1 pip2 scale");
        row("key 128", "hdmi1 (in1) hdmi2 (in2) dvi (in3) sdi (in4) in5");
        row("key ok twice", "\"twice\" is not tap or press or release or hold");
        row("knob", "missing: left or right");
        row("knob left 0", "usage: knob left|right [STEPS] [SPEED]: STEPS is \"0\", must be 1 to 10000");
        row("knob left 1 256", "SPEED is \"256\", must be 0 to 255");
        row("knob left 1 1 1", "\"1\" is one too many");
        row("word 10000", "HEX is \"10000\", must be a number in hex, 0 to ffff");
        row("push 0200001f", "BYTES is missing");
        row("push 0200001f 00 --device 256", "--device is \"256\", must be 0 to 255");
        row("push --folow 0200001f 00", "ADDRESS is \"--folow\"");
        row("writes --folow", "no such option: --folow");
        row("writes --since noon", "--since is \"noon\", must be a time such as");
        row("log --since 90000", "a number of seconds ago, up to a day");
        row("flash read 0 20971521", "LEN is \"20971521\", must be 0 to 20971520");
        row("flash write 13FFFFF 0000", "HEX has 2 bytes, must have 1 to 1");
        row("update 101", "neither a percentage nor");
        row("fault tool nosuch", "\"nosuch\" is not fpga or stm32");
        row("signal hdmi1 on 4k", "neither a mode such as 1920x1080@60 nor a sampling");
        for (const char *refused :
             {"signal nosuch on", "signal hdmi1", "signal hdmi1 off 1920x1080@60",
              "signal hdmi1 on 1920x1080", "signal hdmi1 on 1920x1080@60 rgb444 ycc422", "port 0 link on",
              "port 11 link on", "port 1 link", "port 1 cable on", "preset", "device", "rename", "calibrate",
              "update 25301", "update -1", "record stop", "replay /nosuch/file", "record /nosuch/file",
              "reports maybe"})
            row(refused, "");
        row("nosuch", "usage: no such word: nosuch");
        row("help nosuch", "usage: no such word: nosuch");
        row("wait log x 0.05", "time-out: waited 0.05 s in vain");
        row("wait ready 0", "time-out");
        row("cd /nosuch", "no such folder");
        row("cd LONG", "no such folder");
        row("env set \"\" x", "cannot set");
        row("env set \" a\" x", "cannot set");
        row("env set a=b x", "cannot set");
    }

    void requestsAreRefused()
    {
        auto [request, reason] = fetched<QByteArray, QByteArray>({"request", "reason"});
        for (const char *name : {"fifo", "long", "session"})
            request.replace(QByteArray(name).toUpper(), m_rig->file(name).toUtf8());
        const QByteArray answer = m_rig->ask(request);
        QVERIFY2(answer.startsWith("error ") && answer.contains(reason), answer);
    }

    void whatIsReadIsJson_data()
    {
        // holds: the first line of the answer
        const DataRows<QByteArray, QByteArray> row{"request", "holds"};
        row("panel status", "\"running\":false");
        row("state", "\"path\":\"/");
        row("sent", "\"ns\":");
        row("leds --watch 0", "\"leds\":{\"fn\":\"off\"");
        row("preset list", "{\"name\":\"Concert\",\"preset\":1,\"state\":\"used\"}");
        row("device show", "\"cables\":{\"Ethernet cable\":\"0\"");
        row("flash read 0 2", "{\"address\":\"0\",\"bytes\":\"");
        row("env get colour", "{\"name\":\"colour\",\"value\":\"blue\"}");
        row("help leds", "\"word\":\"leds\"");
        row("when", "[]");
        row("replay SESSION", "\"differences\":[]");
    }

    void whatIsReadIsJson()
    {
        auto [request, holds] = fetched<QByteArray, QByteArray>({"request", "holds"});
        QCOMPARE(m_rig->ask("env set colour blue"), QByteArray("ok"));
        const auto lines =
            m_rig->lines(request.replace("SESSION", m_rig->file("session").toUtf8()) + " --json");
        QVERIFY(!lines.isEmpty() && lines[0].contains(holds));
        for (const QByteArray &line : lines)
            QVERIFY2(!QJsonDocument::fromJson(line).isNull(), line);
    }

    void writesHaveTimes()
    {
        QVERIFY(m_rig->panel->write(0x0200001f, "0a") && m_rig->panel->write(0x02000020, "0b"));
        QTRY_COMPARE(m_rig->emulator->device.writes().size(), 2);
        const QByteArray plain = "02000020 00 0b", line = m_rig->lines("writes").value(1);
        const QByteArray time = line.left(line.size() - plain.size() - 1);
        QVERIFY2(line.endsWith(' ' + plain) && QTime::fromString(time, "HH:mm:ss.zzz").isValid(), line);
        const QByteArray later =
            QTime::fromString(time, "HH:mm:ss.zzz").addMSecs(1).toString("HH:mm:ss.zzz").toUtf8();
        const QList<QByteArray> both = {"0200001f 00 0a", plain};
        QCOMPARE(m_rig->lines("writes --plain"), both);
        QCOMPARE(m_rig->lines("WRITES --PLAIN --SINCE 60"), both);
        const QJsonObject written = QJsonDocument::fromJson(m_rig->lines("writes --json").value(1)).object();
        QCOMPARE(written["address"].toString() + ' ' + written["bytes"].toString(), QString("02000020 0b"));
        QCOMPARE(m_rig->lines("writes --plain --since " + time).last(), plain);
        QTRY_COMPARE(m_rig->lines("writes --plain --since " + later).size(), 0); // once that time has come
    }

    void answersOfAReplayAreCompared_data()
    {
        const DataRows<QByteArray, QByteArray, QByteArray> row{"recorded", "given", "difference"};
        row("the same", "04", "04", "");
        row("another", "04", "05", "recorded 04, now 05");
        row("none", "04", "", "recorded 04, now nothing");
        row("one too many", "", "05", "recorded nothing, now 05");
    }

    void answersOfAReplayAreCompared()
    {
        const auto [recorded, given, difference] =
            fetched<QByteArray, QByteArray, QByteArray>({"recorded", "given", "difference"});
        const QByteArray name = m_rig->file("answers").toUtf8();
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("100 key 0121\n");
        if (!recorded.isEmpty())
            file.write("100 answered 13000004 0 " + recorded + '\n');
        file.close();
        Device &device = m_rig->emulator->device;
        QTimer::singleShot(20, &device, [&] {
            if (!given.isEmpty())
                emit device.reported({0x13000004, QByteArray::fromHex(given), 0, 0}, true);
        });
        QList<QByteArray> expected{"played 1 keys and 0 reports"};
        if (!difference.isEmpty())
            expected << "13000004 0: " + difference;
        QCOMPARE(m_rig->lines("replay --check " + name), expected);
        QCOMPARE(m_rig->lines("replay " + name),
                 QList<QByteArray>{expected.first()}); // unasked nothing is compared
    }

    void everyWordIsDocumented()
    {
        QFile file(qEnvironmentVariable("FPD_SOURCES") + "/doc/emulator.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = file.readAll();
        for (const WordText &word : wordTexts) {
            QVERIFY2(text.contains(QString("\n| `%1").arg(word.name)), word.name);
            auto options = QRegularExpression("--[a-z]+").globalMatch(word.usage);
            while (options.hasNext()) {
                const QString option = options.next().captured();
                QVERIFY2(text.contains(option), qPrintable(word.name + (' ' + option)));
            }
        }
    }

private:
    /// All key words up to now, once there are so many.
    QList<QByteArray> keys(int count)
    {
        QList<QByteArray> words;
        const bool all = QTest::qWaitFor([&] {
            words += m_rig->panel->keys();
            return words.size() >= count;
        });
        return all ? words : QList<QByteArray>{"too few: " + words.join()};
    }

    std::unique_ptr<EmulatorRig> m_rig;
    bool m_spoilt = false; ///< the case leaves a device that no other can use
};

FPD_TEST(TestConsole)
#include "tst_console.moc"
