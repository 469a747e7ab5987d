// The home screen: what its setters and slots show, the lock and its time, what comes up by itself, what
// blinks, and a take-over by a PC.

#include "framework/engine/homeupdater.h"
#include "framework/productiontest/productiontest.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/dialog/lock.h"
#include "widget/home/panellock.h"

#include <QElapsedTimer>
#include <QPixmapCache>

using namespace VASK;

/// The macros stand outside all namespaces.
static void unloadPictures()
{
    QPixmapCache::clear();
    Q_CLEANUP_RESOURCE(fpd_pictures);
}
static void loadPictures()
{
    Q_INIT_RESOURCE(fpd_pictures);
}

class TestMainWindow : public QObject
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
        m_rig->reset();
    }
    void cleanup()
    {
        m_rig->answering = true;
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void badArgumentsLeaveTheScreen()
    {
        MainWindow &home = *m_rig->home;
        const QImage before = home.grab().toImage();
        QVERIFY(!home.SetWindowName(ENUM_MainWindowWindowIndex(3), "x"));
        QVERIFY(!home.SetLayerName(ENUM_MainWindowLayerIndex(-1), "x"));
        QVERIFY(!home.SetLayerRes(ENUM_MainWindowLayerIndex(3), "x"));
        QVERIFY(!home.SetWindowState(WINDOW_MAIN, ENUM_CommonState(2)));
        QVERIFY(!home.SetLayerState(LAYER_MAIN, ENUM_MainWindowLayerState(2)));
        QVERIFY(!home.SetSynModeState(ENUM_MainWindowSynState(4)));
        QVERIFY(!home.SetConnectState(ENUM_MainWindowConnectState(4)));
        QVERIFY(!home.SetTestMode(ENUM_MainWindowTESTMode(4)));
        QVERIFY(!home.SetNetState(NET_PORT_COUNT, NET_ENABLED));
        QVERIFY(!home.SetNetState(NET_PORT1, NET_STATE_NONE));
        QVERIFY(!home.SetLockState(ENUM_MainWindowLockState(2), true));
        QCOMPARE(home.grab().toImage(), before);
    }

    void itsStartEndsWhereSomethingIsMissing_data()
    {
        // address: shown by then
        const DataRows<int, QString> row{"missing", "address"};
        row("the lock's picture", -1, "");
        row("the transport", ENUM_TRANSPORT, "192.168.0.10");
        row("a hidden menu", ENUM_PRODUCT_HIDE_MENU, "192.168.0.10");
    }
    void itsStartEndsWhereSomethingIsMissing()
    {
        QFETCH(int, missing);
        const auto object = ENUM_ObjectIndex(missing);
        VaskObject *known = missing < 0 ? nullptr : ObjectPool::getInstance()->GetObject(object);
        if (known)
            ObjectPool::getInstance()->InsertData(object, m_rig->engine); // one of another kind
        else
            unloadPictures();
        MainWindow home(ENUM_MAIN_WINDOW);
        const bool started = home.Init();
        if (known)
            ObjectPool::getInstance()->InsertData(object, known);
        else
            loadPictures();
        QVERIFY(!started);
        QTEST(home.findChild<QLabel *>("labIp")->text(), "address");
        QCOMPARE(home.findChildren<QTimer *>().size(), 0); // nothing blinks
    }

    void roadFromTheReportThread()
    {
        MainWindow &home = *m_rig->home;
        home.SetScreenRes("before");
        HomeUpdater road(*m_rig->engine);
        road.find();
        std::unique_ptr<QThread> thread(QThread::create([&road] {
            road.showResolution("1280x720@50");
            road.showBrightness("42%");
            road.showAddress("10.0.0.7");
        }));
        thread->start();
        QVERIFY(thread->wait());
        QCOMPARE(find("labScreenRes")->text(), QString("before"));
        QCoreApplication::processEvents();
        QCOMPARE(find("labScreenRes")->text(), QString("1280x720@50"));
        QCOMPARE(find("labBright")->text(), QString("42%"));
        QCOMPARE(find("labIp")->text(), QString("10.0.0.7"));
    }

    void addressAndNameInTurn()
    {
        MainWindow &home = *m_rig->home;
        home.SetIp("10.0.0.8");
        home.SetDeviceRename("");
        const auto watch = [&](int seconds) {
            QStringList seen;
            for (int second = 0; second < seconds; ++second) {
                home.slot_Twinkledisplay();
                seen << find("labIp")->text();
            }
            return seen;
        };
        QCOMPARE(watch(4).count("10.0.0.8"), 4);
        home.SetDeviceRename("Stage left");
        const QStringList seen = watch(8);
        // Two seconds each.
        QCOMPARE(seen.count("Stage left"), 4);
        QCOMPARE(seen.mid(4), seen.mid(0, 4));
        home.SetDeviceRename("");
        QCOMPARE(find("labIp")->text(), QString("10.0.0.8"));
    }

    void theFactoryTestHasTheKeys()
    {
        ProductionTest::m_cur_step = FACTORY_STEP_KEYS;
        m_rig->press(KEY_OK);
        m_rig->hold(KEY_LOCK);
        ProductionTest::m_cur_step = FACTORY_STEP_NONE;
        QCOMPARE(m_rig->shown(), m_rig->home);
        QVERIFY(!m_rig->home->isLocked());
    }

    void aTakeOverLocksAndItsEndUnlocks()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_PIP1, m_rig->home);
        QApplication::setActiveWindow(page);
        BrightnessEdit::begin();
        m_rig->home->slot_ReturnToMainSoft(false);
        QCOMPARE(m_rig->shown(), m_rig->home);
        QVERIFY(m_rig->home->isLocked());
        QVERIFY(m_rig->home->isTakenOver());
        QCOMPARE(int(OpenPage::layer()), int(OpenPage::noLayer));
        QCOMPARE(m_rig->device->sent.take(), QStringList{"SavetoRVCard="});
        m_rig->home->slot_ReturnToMainSoft(true);
        QVERIFY(!m_rig->home->isLocked());
        QVERIFY(!m_rig->home->isTakenOver());
    }

    void aLockOfTheUsersOwnSurvivesATakeOversEnd()
    {
        m_rig->hold(KEY_LOCK);
        m_rig->home->slot_ReturnToMainSoft(true);
        QVERIFY(m_rig->home->isLocked());
        m_rig->home->slot_ReturnToMainSoft(false);
        QVERIFY(m_rig->home->isTakenOver());
    }

    void updateShowsOneMessageAfterTheOther()
    {
        m_rig->answering = false;
        struct {
            quint8 mode;
            quint16 progress;
            const char *text;
        } const steps[] = {{0, 0, "UpdateStart0 %"},          {0, 4250, "UpdateStart42 %"},
                           {7, 0, "UpdateStart42 %"}, // no such mode
                           {0, 10000, "UpdateStart100 %"},    {1, 0, "UpdateEnd"},
                           {0, 25300, "UpdateErrNotMatch"},   {0, 25400, "UpdateErrNotComplete"},
                           {0, 25500, "UpdateErrNotSupport"}, {0, 25301, "UpdateStart253 %"}};
        for (const auto &step : steps) {
            m_rig->home->slot_update(step.mode, step.progress);
            QCOMPARE(boxes(), QStringList{step.text});
        }
        ProductionTest::m_cur_step = FACTORY_STEP_KEYS;
        m_rig->home->slot_update(1, 0);
        ProductionTest::m_cur_step = FACTORY_STEP_NONE;
        QCOMPARE(boxes(), QStringList{"UpdateStart253 %"});
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
        QVERIFY(!lock->isWindow()); // else it would take the keys
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
        QVERIFY(time.elapsed() >= PanelLock::windowMs * 9 / 10);
        QVERIFY(m_rig->home->isLocked());
    }

    void anUnlockAfterATakeOverReadsTheDeviceAgain()
    {
        for (bool takenOver : {false, true}) {
            m_rig->home->SetBrightNess("old");
            takenOver ? m_rig->home->slot_ReturnToMainSoft(false) : m_rig->hold(KEY_LOCK);
            QVERIFY(m_rig->home->isLocked());
            m_rig->hold(KEY_LOCK);
            QVERIFY(!m_rig->home->isLocked());
            QVERIFY(!m_rig->home->isTakenOver());
            QCOMPARE(find("labBright")->text(), takenOver ? QString("60%") : QString("old"));
        }
    }

    void portsBlinkInStep()
    {
        MainWindow &home = *m_rig->home;
        for (int port = 0; port < NET_PORT_COUNT; ++port)
            home.SetNetState(ENUM_MainWindowNetIndex(port), NET_ENABLED);
        const QImage enabled2 = picture("labNet2"), enabled5 = picture("labNet5"),
                     steady = picture("labNet1");
        home.SetNetState(NET_PORT2, NET_BACKUP_BLINKING);
        home.slot_Twinkledisplay();
        home.SetNetState(NET_PORT5, NET_BACKUP_BLINKING);
        bool before = picture("labNet2") == enabled2;
        for (int second = 0; second < 6; ++second) {
            home.slot_Twinkledisplay();
            const bool enabled = picture("labNet2") == enabled2;
            QVERIFY(enabled != before);
            before = enabled;
            QCOMPARE(picture("labNet5") == enabled5, enabled);
            QCOMPARE(picture("labNet1"), steady);
        }
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

FPD_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
