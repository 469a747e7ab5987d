// The emulator's window on a screen of one and a half times the usual density.
#include "tests/testprogram.h"
#include "windowrig.h"

class TestWindowDense : public QObject
{
    Q_OBJECT
private slots:
    void theLcdKeepsItsPixels()
    {
        WindowRig rig;
        QVERIFY(rig.openWindow());
        QCOMPARE(rig.window->devicePixelRatioF(), 1.5);
        constexpr int pixels[] = {2, 3, 5}; // a zoom of 1.5, 3 and 4.5
        QVERIFY(rig.act("key ctrl+minus"));
        for (int wanted : pixels) {
            QVERIFY(rig.showsLcd(wanted));
            QVERIFY(rig.act("key ctrl+plus"));
        }
    }
};

FPD_TEST_IN(TestWindowDense, Gui, [] {
    qputenv("QT_SCALE_FACTOR", "1.5");
    xserver::start();
})
#include "tst_windowdense.moc"
