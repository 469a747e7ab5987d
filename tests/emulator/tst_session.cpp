// Sessions as text, recorded from a keypad and a device and played again to both.
#include "emulator/device/recorder.h"
#include "emulator/device/replayer.h"
#include "panelend.h"
#include "tests/fulldisk.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <memory>

using session::Event;
using session::Kind;

namespace
{
constexpr int knobRight = 33 | 1 << 8;

/// A device with its keypad and somebody at the other end.
struct Rig {
    Rig()
    {
        QDir(folder.path()).mkdir("run");
        device = std::make_unique<Device>(folder.path());
        keypad = std::make_unique<Keypad>(folder.path());
        device->setReporting(false);
        opened = device->flash().install().isEmpty() && device->setBusUp(true) && keypad->setPresent(true);
        listener = std::make_unique<PanelEnd>(folder.path());
        opened = opened && QTest::qWaitFor([this] { return device->isJoined() && keypad->sendWords({1}); });
        listener->keys();
    }
    QTemporaryDir folder;
    std::unique_ptr<Device> device;
    std::unique_ptr<Keypad> keypad;
    std::unique_ptr<PanelEnd> listener;
    bool opened = false;
};
} // namespace

class TestSession : public QObject
{
    Q_OBJECT
private slots:
    void linesRead_data()
    {
        const DataRows<QString> row{"line"};
        row("key", "120 key 0122  # ok pressed");
        row("key let go", "140 key 01a2  # ok released");
        row("knob", "150 key 0521  # knob right");
        row("report", "0 report 0200001f 0 0f");
        row("report of a card", "7 report 02000001 1 80");
        row("report without bytes", "7 report 0ff00001 0");
        row("answer", "99 answered 13000004 0 04");
        row("write", "99 write 020001f0 0 6400000000000000");
        row("failure", "99 failed 1300009e 0 1 0215");
        row("failure without bytes", "99 failed 0200009c 1 255");
        row("message", "2000 message 7 4 c409");
    }
    void linesRead()
    {
        QFETCH(QString, line);
        QVector<Event> events;
        QCOMPARE(session::parse("# a remark\n\n" + line + "\n", events), QString());
        QCOMPARE(events.size(), 1);
        QCOMPARE(session::toText(events[0]), line);
    }

    void damagedLinesAreRefused_data()
    {
        addNames("line",
                 {"key 0122", "-1 key 0122", "1 key", "1 key 12222", "1 key xyz", "1 key 0122 0122",
                  "1 knob 0121", "1 report 0200001f", "1 report 0200001f 256 0f", "1 report 0200001f 0 0",
                  "1 report 0200001f 0 0g", "1 failed 1300009e 0 xx 0215", "1 failed 1300009e 0 0 0215",
                  "1 failed 1300009e 0 256 0215", "1 message 7", "1 message 7 99999 00", "1"});
    }
    void damagedLinesAreRefused()
    {
        QFETCH(QString, line);
        QVector<Event> events;
        QVERIFY(session::parse("0 key 0122\n" + line + '\n', events).startsWith("line 2 is no event"));
        QCOMPARE(session::parse("5 key 0122\n4 key 0122\n", events),
                 QString("line 2 is earlier than the one before"));
        QCOMPARE(session::parse("0 key 0122\n9 report 0200001f 0 0f", events),
                 QString("line 2 is cut: its end is missing"));
    }

    void recordedSessionPlaysAgain()
    {
        const Report links{0x0200001F, QByteArray(1, 3)};
        QByteArray text;
        {
            Rig rig;
            QVERIFY(rig.opened);
            Recorder recorder(*rig.keypad, *rig.device);
            const QString file = rig.folder.path() + "/session.txt";
            QCOMPARE(recorder.start(file), QString());
            QVERIFY(recorder.start(file + "2").contains("is being recorded"));
            rig.keypad->turn(33, 3, 1);
            QTest::qWait(60);
            rig.device->reportAndAdopt(links);
            rig.device->pushMessage(7, 4, QByteArray::fromHex("c409"));
            rig.device->pushRead(0x1300009E, QByteArray::fromHex("0215"), 0, 1);
            rig.device->pushWrite(links.address, QByteArray::fromHex("0c"), 0);
            rig.keypad->press({34});
            rig.listener.reset(); // what nobody takes has not happened
            QVERIFY(QTest::qWaitFor([&rig] { return !rig.device->isJoined(); }));
            rig.device->reportAndAdopt(links);
            rig.device->pushMessage(7, 5, QByteArray());
            const auto result = recorder.stop();
            QCOMPARE(result.first, 8);
            QCOMPARE(result.second, QString());
            QFile written(file);
            QVERIFY(written.open(QIODevice::ReadOnly));
            text = written.readAll();
        }
        QVector<Event> events;
        QCOMPARE(session::parse(text, events), QString());
        QCOMPARE(events.size(), 8);
        QVERIFY(events[3].atMs - events[2].atMs >= 50);
        Rig rig;
        QVERIFY(rig.opened);
        Replayer replayer(*rig.keypad, *rig.device, events, 1);
        QSignalSpy ended(&replayer, &Replayer::ended);
        replayer.start();
        QVERIFY(ended.wait(3000));
        QCOMPARE(ended[0][0].toString(), QString());
        QCOMPARE(replayer.keysPlayed(), 4);
        QCOMPARE(replayer.reportsPlayed(), 4);
        const auto key = [](quint16 word) { return QByteArray(reinterpret_cast<const char *>(&word), 2); };
        QCOMPARE(rig.listener->keys(),
                 (QList<QByteArray>{key(knobRight), key(knobRight), key(knobRight), key(34 | 1 << 8)}));
        QCOMPARE(rig.listener->reports(), (QList<QByteArray>{"200001f 03", "1300009e 0215"}));
        QCOMPARE(rig.device->registers().u8(links.address), 3); // the device holds what it has told
    }

    void aFullDiskIsToldAtTheEnd()
    {
        Rig rig;
        QVERIFY(rig.opened);
        Recorder recorder(*rig.keypad, *rig.device);
        QFile written(rig.folder.path() + "/session.txt");
        QCOMPARE(recorder.start(written.fileName()), QString());
        rig.keypad->press({34});
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QByteArray first = written.readAll();
        QVERIFY(first.endsWith("# ok pressed\n")); // there at once
        {
            const FullDisk room(rlim_t(first.size() + 5));
            rig.keypad->release({34});
        }
        rig.keypad->press({35}); // room again, but one is missing before
        const auto result = recorder.stop();
        QCOMPARE(result.first, 1);
        QVERIFY2(result.second.startsWith("only the first 1 events fitted"), qPrintable(result.second));
        QVERIFY(written.seek(0));
        QCOMPARE(written.readAll(), first);
        const FullDisk noRoom(0);
        QVERIFY(recorder.start(rig.folder.path() + "/other.txt").startsWith("cannot write"));
        QVERIFY(!recorder.isRecording());
    }

    void speedSetsTheTimes_data()
    {
        const DataRows<double, int, int> row{"speed", "least", "most"};
        row("half", 0.5, 390, 3000);
        row("as it was", 1.0, 195, 2000);
        row("a hundred times", 100.0, 0, 190);
    }
    void speedSetsTheTimes()
    {
        QFETCH(double, speed);
        Rig rig;
        QVERIFY(rig.opened);
        QVector<Event> events;
        QCOMPARE(session::parse("0 key 0122\n200 key 01a2\n200 answered 13000004 0 04\n", events), QString());
        Replayer replayer(*rig.keypad, *rig.device, events, speed);
        QSignalSpy ended(&replayer, &Replayer::ended);
        QElapsedTimer passed;
        passed.start();
        replayer.start();
        QVERIFY(ended.wait(5000));
        const auto [least, most] = fetched<int, int>({"least", "most"});
        QVERIFY2(passed.elapsed() >= least && passed.elapsed() <= most,
                 qPrintable(QString::number(passed.elapsed())));
        QCOMPARE(rig.listener->keys().size(), 2);
        QCOMPARE(rig.listener->reports(), QList<QByteArray>()); // an answer is not played
    }

    void nobodyAtTheKeypad()
    {
        Rig rig;
        QVERIFY(rig.opened);
        rig.keypad->setPresent(false);
        QVector<Event> events;
        QCOMPARE(session::parse("0 key 0122\n", events), QString());
        Replayer replayer(*rig.keypad, *rig.device, events, 1);
        QSignalSpy ended(&replayer, &Replayer::ended);
        replayer.start();
        QVERIFY(ended.wait(10000));
        QCOMPARE(ended[0][0].toString(), QString("nobody takes 0 key 0122  # ok pressed"));
        QCOMPARE(replayer.keysPlayed(), 0);
    }
};

FPD_TEST_GUILESS(TestSession)
#include "tst_session.moc"
