// A knob that turns: how many packets leave, when, and that the last value is among them. Time is driven: the
// knob steps and the send timer fires when the test says so.

#include "tests/unit/rig/sendbench.h"

#include "framework/input/knobturn.h"
#include "tests/testprogram.h"

#include <QLoggingCategory>
#include <QThread>

using namespace VASK;

namespace
{
constexpr int sendTimerMs = 100;
constexpr int brightness = MENU_HDMI1_Brightness; // first HDMI
constexpr int contrast = MENU_HDMI1_Contrast;
constexpr int volume = MENU_Audio_Volume; // has no hold-back
} // namespace

class TestProto3rdSendHoldback : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }
    void init()
    {
        bench = std::make_unique<SendBench>();
        now = 0;
        armedAt = -1;
        sentAt.clear();
    }
    void cleanup() { bench.reset(); }

    void aTurningKnobIsThinnedOut_data()
    {
        QTest::addColumn<int>("stepMs");
        for (int ms : {1, 7, 10, 50, 99, 100, 101})
            QTest::addRow("a step every %d ms", ms) << ms;
    }
    void aTurningKnobIsThinnedOut()
    {
        QFETCH(int, stepMs);
        constexpr int turnMs = 2000;
        int value = 0;
        for (; now < turnMs; pass(stepMs))
            step(brightness, ++value % 101);
        pass(sendTimerMs);

        for (int i = 1; i < sentAt.size(); ++i)
            QVERIFY2(sentAt[i] - sentAt[i - 1] >= sendTimerMs, qPrintable(QString::number(sentAt[i])));
        QVERIFY(sentAt.size() >= turnMs / (sendTimerMs + stepMs));
        QVERIFY(sent().endsWith(QString(":%1").arg(value % 101)));
    }

    void theLastValueArrives()
    {
        for (int value : {10, 11, 12, 13})
            step(brightness, value);
        QCOMPARE(sent(), QString("1:10")); // the first step leaves at once
        pass(sendTimerMs - 1);
        QCOMPARE(sent(), QString("1:10"));
        pass(1);
        QCOMPARE(sent(), QString("1:10 1:13"));
        pass(1000);
        QCOMPARE(sent(), QString("1:10 1:13"));
        step(brightness, 14); // a slow step leaves, too
        pass(sendTimerMs);
        QCOMPARE(sent(), QString("1:10 1:13 1:14"));
    }

    void anotherItemTakesTheHeldValueAlong()
    {
        step(brightness, 10);
        step(brightness, 11);
        step(contrast, 60); // the other item first, then what was held
        QCOMPARE(sent(), QString("1:10 2:60 1:11"));
        QVERIFY(!Proto3rdSend::mSendFlg);

        step(contrast, 61); // and the turn goes on with the other item
        QCOMPARE(bench->client.frames.size(), 3);
        pass(sendTimerMs);
        QCOMPARE(sent(), QString("1:10 2:60 1:11 2:61"));
    }

    void anItemWithoutHoldBackLeavesTheHeldValueWaiting()
    {
        step(brightness, 10);
        step(brightness, 11);
        step(volume, 5);
        step(volume, 6);
        QCOMPARE(sent(), QString("1:10 159:5 159:6"));
        pass(sendTimerMs);
        QCOMPARE(sent(), QString("1:10 159:5 159:6 1:11"));
    }

    void withoutTheKnobEveryChangeLeaves()
    {
        for (int value : {10, 11, 11})
            QCOMPARE(bench->change(brightness, QString::number(value)), 0);
        // The knob on the same item is held at its first step, as the item was sent before; a value that is
        // set outright leaves, with the held one behind.
        step(brightness, 12);
        QCOMPARE(sent(), QString("1:10 1:11 1:11"));
        QCOMPARE(bench->change(brightness, "13"), 0);
        QCOMPARE(sent(), QString("1:10 1:11 1:11 1:13 1:12"));
    }

    void aRefusedChangeDoesNotCountAsSent()
    {
        bench->client.acceptOnly = 0;
        const KnobTurn turning;
        QCOMPARE(bench->change(brightness, "10"), 3);
        bench->client.acceptOnly = RecordingClient::everything;
        QCOMPARE(bench->change(brightness, "11"), 0);
        QVERIFY(!Proto3rdSend::mSendFlg);
        QCOMPARE(sent(), QString("1:11"));
    }

    void windowAndCropAreHeldBackToo()
    {
        bench->set(MENU_MainLayer_HorWidth, {"100", "100", "0", "0"});
        bench->set(MENU_MainLayerCrop_Status, {"1", "100", "100", "0", "0"});
        bench->set(MENU_MainLayer_InputSource, "0");
        for (int item : {MENU_MainLayer_HorWidth, MENU_MainLayer_VerHeight, MENU_MainLayer_InitialX,
                         MENU_MainLayer_InitialY, MENU_MainLayerCrop_HorWidth, MENU_MainLayerCrop_VerHeight,
                         MENU_MainLayerCrop_InitialX, MENU_MainLayerCrop_InitialY, MENU_HDMI1_Contrast,
                         MENU_HDMI1_Saturation, MENU_HDMI1_Hue}) {
            bench->client.clear();
            for (int value : {1, 2, 3})
                step(item, value);
            QVERIFY2(bench->client.attempts == 1, qPrintable(itemnames::name(item)));
            QVERIFY(Proto3rdSend::mSendFlg);
            bench->protocol->slot_SendData();
            QCOMPARE(bench->client.attempts, 2);
        }
    }

    /// While the knob turns, the engine sends from the report thread too: that leaves at once and neither
    /// takes the held value along nor ends the turn.
    void reportsDoNotDisturbATurn()
    {
        step(brightness, 10);
        step(brightness, 11);
        const KnobTurn turning;
        std::unique_ptr<QThread> reports(QThread::create([this] {
            for (int i = 0; i < 5; ++i)
                bench->change(contrast, QString::number(i));
        }));
        reports->start();
        QVERIFY(reports->wait());
        QCOMPARE(bench->client.frames.size(), 6);
        QVERIFY(Proto3rdSend::mSendFlg);

        step(brightness, 12);
        QCOMPARE(bench->client.frames.size(), 6);
        bench->protocol->slot_SendData();
        QVERIFY(sent().endsWith("1:12"));
    }

    /// Nothing to compare: the leak check of the sanitizer build is what would speak up.
    void aHeldValueIsReleasedWithTheObject()
    {
        step(brightness, 10);
        step(brightness, 11);
        Proto3rdSend::deleteInstance();
        QVERIFY(!Proto3rdSend::mSendFlg);
        QVERIFY(!Proto3rdSend::mSendDate);
    }

private:
    void step(int item, int value)
    {
        const bool waiting = Proto3rdSend::mSendFlg;
        {
            const KnobTurn turning;
            QCOMPARE(bench->change(item, QString::number(value)), 0);
        }
        if (!waiting && Proto3rdSend::mSendFlg)
            armedAt = now;
        note();
    }
    void pass(int ms)
    {
        for (; ms > 0; --ms) {
            ++now;
            if (armedAt >= 0 && now - armedAt >= sendTimerMs) {
                armedAt = -1;
                bench->protocol->slot_SendData();
                note();
            }
        }
    }
    void note()
    {
        while (sentAt.size() < bench->client.frames.size())
            sentAt.append(now);
    }

    /// What has left so far, low byte of the address and byte that is written: "1:50 2:60".
    QString sent() const
    {
        QStringList frames;
        for (const QByteArray &frame : bench->client.frames)
            frames << QString("%1:%2").arg(quint8(frame[12])).arg(quint8(frame[18]));
        return frames.join(' ');
    }

    std::unique_ptr<SendBench> bench;
    int now = 0;
    int armedAt = -1;
    QVector<int> sentAt;
};

FPD_TEST(TestProto3rdSendHoldback)
#include "tst_proto3rdsend_holdback.moc"
