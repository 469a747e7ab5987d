// The time after which a panel that nobody touches goes home, and what it spares.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;

namespace
{
constexpr int shortestMs = 2000; ///< below what the menu offers, for a test that does not last
} // namespace

class TestStoryHome : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        QVERIFY(m_panel.powerDevice());
        QVERIFY(m_panel.start());
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        QVERIFY(m_panel.setStored(MENU_ReturntoHome, QString::number(shortestMs / 1000)));
        QVERIFY(startAgain());
        m_walk.speak("fpd_ZH");
    }

private slots:
    void goesHomeFromADeepPage()
    {
        QVERIFY(m_walk.go({MENU_CommunicationSettings, MENU_NetworkSettings}));
        // Every key starts the time again.
        for (int i = 0; i < 4; ++i) {
            QTest::qWait(shortestMs / 2);
            QVERIFY(m_walk.turn(Right, 1));
        }
        QVERIFY(m_walk.showsTitle());
        QElapsedTimer untouched;
        untouched.start();
        QVERIFY(m_panel.waitForLog(loglines::goesHome));
        QVERIFY2(qAbs(untouched.elapsed() - shortestMs) < 1000,
                 qPrintable(QString("%1 ms").arg(untouched.elapsed())));
        QVERIFY(m_panel.settle());
        QVERIFY(m_walk.isHome());
        m_walk.assume({});
    }
};

FPD_TEST(TestStoryHome)
#include "tst_storyhome.moc"
