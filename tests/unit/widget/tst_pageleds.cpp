// The LEDs of the layer and input keys, as the keypad's driver is told: which are lit, dark or blink.

#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/engine/ledpanel.h"
#include "tests/unit/widget/pagerig.h"

#include <QElapsedTimer>

using namespace VASK;

class TestPageLeds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        QDir().mkpath(qgetenv("FPD_STATE") + "/run");
        m_leds = std::make_unique<LedPanel>(qgetenv("FPD_STATE").toStdString());
        QVERIFY(KeyEvent::getInstance()->InitKeyDriver(qApp));
        m_rig->home->Init();
    }
    void init() { m_rig->reset(); }

    void layersAndSources()
    {
        m_rig->set(MENU_MainLayer_Status, "1");
        m_rig->set(MENU_PIP1_Status, "0");
        m_rig->set(MENU_PIP2_Status, "1");
        m_rig->set(MENU_MainLayer_InputSource, "0");
        m_rig->set(MENU_PIP1_InputSource, "3");
        m_rig->set(MENU_PIP2_InputSource, "5");
        constexpr int stable = 3;
        const QMap<int, int> signalStates{{0, stable}, {1, stable}, {2, 0}, {3, stable},
                                          {5, 0},      {6, 1},      {7, 2}};
        for (auto input = signalStates.cbegin(); input != signalStates.cend(); ++input)
            m_rig->set(ENUM_MenuIndex(PARA_InputRecordFirst + STRIDE_InputRecord * input.key() + 2),
                       QString::number(input.value()));
        OpenPage::set(ENUM_PAGE_PIP1);
        m_rig->home->UpdateSourceLedStatus();
        const QMap<int, QString> shown = watch();
        QCOMPARE(shown[LED_MAIN], QString("lit"));
        QCOMPARE(shown[LED_PIP1], QString("blinks")); // its page is open
        QCOMPARE(shown[LED_PIP2], QString("lit"));
        QCOMPARE(shown[LED_INPUT1], QString("blinks")); // in use
        QCOMPARE(shown[LED_INPUT2], QString("lit"));    // a signal that nobody uses
        QCOMPARE(shown[LED_INPUT3], QString("dark"));
        QCOMPARE(shown[LED_INPUT4], QString("lit")); // its layer is off
        QCOMPARE(shown[LED_INPUT5], QString("dark"));
        QCOMPARE(shown[LED_INPUT6], QString("blinks")); // in use without a signal
        QCOMPARE(shown[LED_INPUT7], QString("dark"));
        QCOMPARE(shown[LED_INPUT8], QString("dark"));
        QCOMPARE(shown[LED_FN], QString("dark"));
    }

private:
    /// What each LED does over a whole blink period.
    QMap<int, QString> watch() const
    {
        constexpr int ledCount = 16;
        QVector<int> litCount(ledCount);
        int samples = 0;
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 2200; QTest::qWait(50), ++samples)
            for (int led = 0; led < ledCount; ++led)
                litCount[led] += m_leds->lit(led);
        QMap<int, QString> result;
        for (int led = 0; led < ledCount; ++led)
            result[led] = litCount[led] == 0 ? "dark" : litCount[led] == samples ? "lit" : "blinks";
        return result;
    }

    std::unique_ptr<PageRig> m_rig;
    std::unique_ptr<LedPanel> m_leds;
};

FPD_TEST(TestPageLeds)

#include "tst_pageleds.moc"
