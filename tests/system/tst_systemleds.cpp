// The LEDs behind the keys, as the driver was told.
#include "tests/system/panel.h"

#include <QTest>
#include <QTime>

class TestSystemLeds : public QObject
{
    Q_OBJECT
private slots:
    void blinkInStepOnceASecond();
};

namespace
{
constexpr int mainLayerInput = 2101;
constexpr int pip1Status = 2110;
constexpr int pip1Input = 2111;
constexpr int ledOfHdmi2 = 7;
constexpr int ledOfDvi = 4;
} // namespace

void TestSystemLeds::blinkInStepOnceASecond()
{
    // Two layers on two inputs that have no signal.
    Panel panel;
    QVERIFY(panel.powerDevice());
    QVERIFY(panel.ask({"reports", "off"}).ok);
    QVERIFY(panel.start());
    QVERIFY(panel.ask({"panel", "stop"}).ok);
    QVERIFY(panel.setStored(mainLayerInput, "2"));
    QVERIFY(panel.setStored(pip1Status, "1"));
    QVERIFY(panel.setStored(pip1Input, "1"));
    QVERIFY(panel.start());
    QVERIFY(panel.ask({"wait", "ready"}).ok);
    QVERIFY(panel.waitUntil(
        [&panel] { return panel.leds()[ledOfHdmi2] == '1' && panel.leds()[ledOfDvi] == '1'; }));

    const QStringList lines = panel.ask({"leds", "--watch", "4.5"}).lines;
    QVERIFY2(lines.size() >= 4, qPrintable(lines.join('\n')));
    for (int i = 1; i < lines.size(); ++i) {
        const QString state = lines[i].section(' ', 1), before = lines[i - 1].section(' ', 1);
        QVERIFY2(state[ledOfHdmi2] == state[ledOfDvi] && state != before, qPrintable(lines.join('\n')));
    }
    // The first line tells the state at the beginning, the others a change each.
    for (int i = 2; i < lines.size(); ++i) {
        const auto time = [&lines](int line) {
            return QTime::fromString(lines[line].section(' ', 0, 0), "HH:mm:ss.zzz");
        };
        const int periodMs = time(i - 1).msecsTo(time(i));
        QVERIFY2(qAbs(periodMs - 1000) < 300, qPrintable(QString("period of %1 ms").arg(periodMs)));
    }
    QCOMPARE(panel.damage(), QString());
}

QTEST_GUILESS_MAIN(TestSystemLeds)
#include "tst_systemleds.moc"
