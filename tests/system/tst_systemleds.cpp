// The LEDs behind the keys, as the driver was told.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QTime>

namespace
{
constexpr int ledOfHdmi2 = 7;
constexpr int ledOfDvi = 4;
} // namespace

class TestSystemLeds : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override {}

private slots:
    void blinkInStepOnceASecond()
    {
        // Two layers on two inputs that have no signal.
        QVERIFY(m_panel.powerDevice());
        QVERIFY(m_panel.ask({"reports", "off"}).ok);
        constexpr const char *mainInput = "e812", *pip1Shown = "e840", *pip1Input = "e842";
        QVERIFY(m_panel.ask({"flash", "write", mainInput, "02"}).ok);
        QVERIFY(m_panel.ask({"flash", "write", pip1Shown, "01"}).ok);
        QVERIFY(m_panel.ask({"flash", "write", pip1Input, "01"}).ok);
        QVERIFY(startAgain());
        QVERIFY(m_panel.waitUntil(
            [this] { return m_panel.leds()[ledOfHdmi2] == '1' && m_panel.leds()[ledOfDvi] == '1'; }));

        const QStringList lines = m_panel.ask({"leds", "--watch", "4.5"}).lines;
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
        QString expected = m_panel.leds();
        expected[ledOfHdmi2] = expected[ledOfDvi] = '*';
        QCOMPARE(m_panel.ask({"leds"}).lines, QStringList{expected});
    }
};

FPD_TEST(TestSystemLeds)
#include "tst_systemleds.moc"
