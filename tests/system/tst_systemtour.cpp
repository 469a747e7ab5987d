// Every page of the three menus is reached with keys alone and left with ESC step by step.
#include "tests/system/tour.h"

#include <QTest>

using namespace VASK;

class TestSystemTour : public QObject
{
    Q_OBJECT
private slots:
    void everyPageIsReachedAndLeft();
};

void TestSystemTour::everyPageIsReachedAndLeft()
{
    Panel panel;
    QVERIFY(panel.startReady());
    QVERIFY(panel.waitForLog("StartComplate: 2"));
    QVERIFY(panel.press("in1")); // the input with a signal, which can be cropped
    QVERIFY(panel.settle());
    Tour tour(panel, "fpd_ZH", QString());
    for (ENUM_ConfigIndex root : {CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu}) {
        tour.walk(root);
        if (!tour.faults().isEmpty())
            panel.keepEvidence("tour");
        QVERIFY2(tour.faults().isEmpty(), qPrintable(tour.faults().join(QChar(10))));
        QCOMPARE(tour.missed(root), QStringList());
    }
    QCOMPARE(panel.damage(), QString());
}

QTEST_MAIN(TestSystemTour)
#include "tst_systemtour.moc"
