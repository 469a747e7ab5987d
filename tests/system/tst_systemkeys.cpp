// Keys and LEDs as the keypad's driver sees them.
#include "tests/system/panel.h"

#include <QTest>

class TestSystemKeys : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void shortPressIsPressAndRelease();
    void knobWordsCarryTheirSpeed();
    void holdIsOneLongPress();
    void escAndOkAreOneChord();
    void unknownWordsDoNoHarm();

private:
    std::unique_ptr<Panel> m_panel;
};

void TestSystemKeys::init()
{
    m_panel = std::make_unique<Panel>();
    QVERIFY(m_panel->powerDevice());
    QVERIFY(m_panel->start());
    m_panel->mark();
}

void TestSystemKeys::cleanup()
{
    const QString damage = m_panel->damage();
    if (QTest::currentTestFailed() || !damage.isEmpty())
        m_panel->keepEvidence(QTest::currentTestFunction());
    m_panel.reset();
    QCOMPARE(damage, QString());
}

void TestSystemKeys::shortPressIsPressAndRelease()
{
    QVERIFY(m_panel->press(keys::Ok));
    QVERIFY(m_panel->waitForLog("TIMER_CancelTimer ==  34"));
    QCOMPARE(m_panel->logLines("uKey ==  34").size(), 1);
    QCOMPARE(m_panel->logLines("uKey ==  162").size(), 1);
    QCOMPARE(m_panel->logLines("OnTimerEvent").size(), 0);
}

void TestSystemKeys::knobWordsCarryTheirSpeed()
{
    QVERIFY(m_panel->turn(Right, 3, 2));
    QVERIFY(m_panel->turn(Left, 40, 1));
    QVERIFY(m_panel->waitUntil([this] { return m_panel->logLines("uKey ==  32 1").size() == 40; }));
    QCOMPARE(m_panel->logLines("uKey ==  33 2").size(), 3);
    QCOMPARE(m_panel->logLines("TIMER_SetTimer").size(), 0);
}

void TestSystemKeys::holdIsOneLongPress()
{
    QVERIFY(m_panel->hold(keys::Ok));
    QVERIFY(m_panel->waitForLog("uKey ==  162"));
    QCOMPARE(m_panel->logLines("OnTimerEvent ==  34").size(), 1);
    QCOMPARE(m_panel->logLines("TIMER_CancelTimer").size(), 0);
}

void TestSystemKeys::escAndOkAreOneChord()
{
    QVERIFY(m_panel->hold("esc+ok"));
    QVERIFY(m_panel->waitForLog("uKey ==  162"));
    QVERIFY(m_panel->waitForLog("uKey ==  163"));
    QCOMPARE(m_panel->logLines("OnTimerEvent ==  34").size(), 1);
    QCOMPARE(m_panel->logLines("OnTimerEvent ==  35").size(), 1);
    QCOMPARE(m_panel->logLines("TIMER_CancelTimer").size(), 0);
}

void TestSystemKeys::unknownWordsDoNoHarm()
{
    QVERIFY(m_panel->ask({"word", "0000", "0001", "0024", "00a4", "ffff", "017f"}).ok);
    QVERIFY(m_panel->press(keys::Esc));
    QVERIFY(m_panel->waitForLog("TIMER_CancelTimer ==  35"));
}

QTEST_MAIN(TestSystemKeys)
#include "tst_systemkeys.moc"
