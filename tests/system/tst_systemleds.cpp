// The LEDs behind the keys, as the driver was told.
#include "menu/itemindex.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QTime>

using namespace VASK;

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
        QVERIFY(m_panel.start());
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_MainLayer_InputSource, "2"));
        QVERIFY(m_panel.setStored(MENU_PIP1_Status, "1"));
        QVERIFY(m_panel.setStored(MENU_PIP1_InputSource, "1"));
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
    }
};

FPD_TEST(TestSystemLeds)

#include "tst_systemleds.moc"
