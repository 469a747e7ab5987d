// What comes up on the home screen by itself: messages of the device, the lock window and its time, the
// device's state after a take-over, and the ports that blink.

#include "tests/unit/widget/pagerig.h"
#include "widget/dialog_factory.h"
#include "widget/lock.h"

#include <QElapsedTimer>
#include <QPixmapCache>

using namespace VASK;

namespace
{
/// Log lines that hold one of these texts.
QStringList pictureComplaints;
QtMessageHandler lastHandler = nullptr;

void watchPictures(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.contains("set net State faild"))
        pictureComplaints << text;
    lastHandler(type, context, text);
}
} // namespace

class TestHomeMessages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        m_rig->engine->Initialize();
        m_rig->home->Init();
    }
    void init()
    {
        m_rig->home->SetLockState(PANEL_UNLOCK, false);
        m_rig->home->slot_cancelLockDialog();
        MainWindow::lock_mode = false;
        m_rig->reset();
    }
    void cleanup()
    {
        m_rig->answering = true;
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void updateShowsOneMessageAfterTheOther()
    {
        m_rig->answering = false;
        MainWindow &home = *m_rig->home;
        home.slot_update(0, 0);
        QCOMPARE(boxes(), QStringList{"UpdateStart0 %"});
        home.slot_update(0, 4250);
        QCOMPARE(boxes(), QStringList{"UpdateStart42 %"});
        home.slot_update(7, 0); // no such mode
        QCOMPARE(boxes(), QStringList{"UpdateStart42 %"});
        home.slot_update(0, 10000);
        QCOMPARE(boxes(), QStringList{"UpdateStart100 %"});
        home.slot_update(1, 0);
        QCOMPARE(boxes(), QStringList{"UpdateEnd"});
        const QMap<quint16, QString> errors{
            {25300, "UpdateErrNotMatch"}, {25400, "UpdateErrNotComplete"}, {25500, "UpdateErrNotSupport"}};
        for (auto error = errors.cbegin(); error != errors.cend(); ++error) {
            home.slot_update(0, error.key());
            QCOMPARE(boxes(), QStringList{error.value()});
        }
        home.slot_update(0, 25301);
        QCOMPARE(boxes(), QStringList{"UpdateStart253 %"});
        Factory::m_cur_step = FACTORY_STEP_KEYS;
        home.slot_update(1, 0);
        Factory::m_cur_step = FACTORY_STEP_NONE;
        QCOMPARE(boxes(), QStringList{"UpdateStart253 %"});
    }

    void calibrationLastsUntilItEnds()
    {
        m_rig->answering = false;
        MainWindow &home = *m_rig->home;
        home.slot_soft_calibrate(0); // of one that was never told
        QCOMPARE(boxes(), QStringList{});
        home.slot_soft_calibrate(1);
        home.slot_soft_calibrate(1);
        QCOMPARE(boxes(), QStringList{"SoftCalibrating"});
        m_rig->answering = true;
        home.slot_soft_calibrate(0);
        QCOMPARE(m_rig->messages, QStringList{"SoftCalibrateExit"});
        QVERIFY(!MainWindow::CalibratingDialog);
        QCOMPARE(boxes(), QStringList{});
    }

    void aSyncProblemIsToldOnceWhileItLasts()
    {
        MainWindow &home = *m_rig->home;
        m_rig->answering = false;
        const auto report = [&home](qint8 signal, const char *value) {
            home.slot_SetSynModeState(signal, value);
        };
        report(3, "2");
        QCOMPARE(boxes(), QStringList{});
        report(3, "4");
        report(3, "4");
        QCOMPARE(boxes(), QStringList{"SyncMismatchTip"});
        // Over by itself: the message goes with it, and the next problem is a new one.
        report(3, "2");
        QCOMPARE(boxes(), QStringList{});
        report(0, "4");
        QCOMPARE(boxes(), QStringList{"SyncNoSignalTip"});
        // Read by the user: not again for the same problem.
        m_rig->answering = true;
        QTRY_COMPARE(boxes(), QStringList{});
        report(0, "4");
        QCOMPARE(boxes(), QStringList{});
    }

    void messagesInTurn()
    {
        m_rig->home->slot_FactoryRest();
        QCOMPARE(m_rig->messages, (QStringList{"IsResting", "ResetSucceed"}));
        m_rig->messages.clear();
        m_rig->home->slot_CreateDialog();
        m_rig->home->slot_popup_window(MSG_OverLoad);
        m_rig->home->slot_popup_window(3400); // no row in the table
        m_rig->home->slot_softDeviceBackup(1);
        m_rig->home->slot_softDeviceRestore(9);
        QCOMPARE(m_rig->messages, (QStringList{"Waiting", "OverLoad"}));
    }

    void theLockWindowStaysTwoSecondsFromTheLastKey()
    {
        m_rig->hold(KEY_LOCK);
        const auto *lock = m_rig->home->findChild<Lock *>();
        QVERIFY(lock->isVisible());
        m_rig->home->slot_cancelLockDialog();
        QVERIFY(!lock->isVisible());
        QElapsedTimer time;
        m_rig->press(KEY_OK);
        QTest::qWait(500);
        time.start();
        m_rig->turn(1);
        QVERIFY(lock->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!lock->isVisible(), 3000);
        // Timers of this length may come a twentieth early.
        QVERIFY(time.elapsed() >= MainWindow::lockDialogMs * 9 / 10);
        QVERIFY(MainWindow::m_bLockFlag);
    }

    void anUnlockAfterATakeOverReadsTheDeviceAgain_data()
    {
        QTest::addColumn<bool>("takenOver");
        QTest::newRow("the user's own lock") << false;
        QTest::newRow("taken over") << true;
    }
    void anUnlockAfterATakeOverReadsTheDeviceAgain()
    {
        QFETCH(bool, takenOver);
        m_rig->home->SetBrightNess("old");
        if (takenOver)
            m_rig->home->slot_ReturnToMainSoft(false);
        else
            m_rig->hold(KEY_LOCK);
        QVERIFY(MainWindow::m_bLockFlag);
        m_rig->hold(KEY_LOCK);
        QVERIFY(!MainWindow::m_bLockFlag);
        QVERIFY(!MainWindow::lock_mode);
        QCOMPARE(find("labBright")->text(), takenOver ? QString("60%") : QString("old"));
    }

    void portsBlinkInStep()
    {
        MainWindow &home = *m_rig->home;
        for (int port = 0; port < NET_PORT_COUNT; ++port)
            home.SetNetState(ENUM_MainWindowNetIndex(port), NET_ENABLED);
        const QImage enabled2 = picture("labNet2"), enabled5 = picture("labNet5"),
                     steady = picture("labNet1");
        home.SetNetState(NET_PORT2, NET_BACKUP);
        const QImage backup2 = picture("labNet2");
        QVERIFY(backup2 != enabled2);
        home.SetNetState(NET_PORT2, NET_BACKUP_BLINKING);
        home.slot_Twinkledisplay();
        home.SetNetState(NET_PORT5, NET_BACKUP_BLINKING);
        const QImage backup5 = picture("labNet5");
        QList<bool> seen;
        for (int second = 0; second < 6; ++second) {
            home.slot_Twinkledisplay();
            QCOMPARE(picture("labNet2") == backup2, picture("labNet5") == backup5);
            QCOMPARE(picture("labNet2") == enabled2, picture("labNet5") == enabled5);
            seen << (picture("labNet2") == backup2);
            QCOMPARE(picture("labNet1"), steady);
        }
        for (int second = 1; second < seen.size(); ++second)
            QVERIFY(seen[second] != seen[second - 1]);
        home.SetNetState(NET_PORT2, NET_DISABLED);
        home.SetNetState(NET_PORT5, NET_ENABLED);
        QCOMPARE(picture("labNet5"), enabled5);
    }

    void theSameStateLoadsNoPicture()
    {
        MainWindow &home = *m_rig->home;
        home.SetNetState(NET_PORT1, NET_ENABLED);
        const qint64 loaded = find("labNet1")->pixmap(Qt::ReturnByValue).cacheKey();
        QPixmapCache::clear(); // what is loaded now is another picture
        home.SetNetState(NET_PORT1, NET_ENABLED);
        QCOMPARE(find("labNet1")->pixmap(Qt::ReturnByValue).cacheKey(), loaded);
        home.SetNetState(NET_PORT1, NET_DISABLED);
        QVERIFY(find("labNet1")->pixmap(Qt::ReturnByValue).cacheKey() != loaded);
    }

    void everyPictureOfTheScreenIsThere()
    {
        pictureComplaints.clear();
        lastHandler = qInstallMessageHandler(watchPictures);
        for (int state : {NET_ENABLED, NET_BACKUP, NET_BACKUP_BLINKING, NET_DISABLED})
            for (int port = 0; port < NET_PORT_COUNT; ++port)
                m_rig->home->SetNetState(ENUM_MainWindowNetIndex(port), ENUM_MainWindowNetState(state));
        qInstallMessageHandler(lastHandler);
        QCOMPARE(pictureComplaints, QStringList{});
    }

private:
    QLabel *find(const char *name) const { return m_rig->home->findChild<QLabel *>(name); }
    QImage picture(const char *name) const { return find(name)->pixmap(Qt::ReturnByValue).toImage(); }
    /// The texts of the message boxes that are up.
    static QStringList boxes()
    {
        QStringList texts;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows)
            if (window->isVisible() && qobject_cast<const QDialog *>(window))
                texts << window->findChild<QLabel *>("lab_Info")->text();
        return texts;
    }

    std::unique_ptr<PageRig> m_rig;
};

QTEST_MAIN(TestHomeMessages)
#include "tst_homemessages.moc"
