// The home screen: what its setters and slots show, the lock, what blinks, and the ways out of it and back.

#include "tests/unit/widget/pagerig.h"
#include "widget/dialog_factory.h"

#include <QLabel>

using namespace VASK;

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        m_rig->home->Init();
    }
    void init()
    {
        m_rig->home->SetLockState(PANEL_UNLOCK, false);
        m_rig->home->slot_cancelLockDialog();
        MainWindow::lock_mode = false;
        m_rig->reset();
    }

    void labelsStandInTheirFrames_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::newRow("labDeviceName") << QRect(25, 6, 118, 16);
        QTest::newRow("labIp") << QRect(187, 6, 126, 16);
        QTest::newRow("labLayerSrc2_Name") << QRect(62, 69, 66, 20);
        QTest::newRow("labLayerSrc3_Res") << QRect(136, 102, 180, 19);
        QTest::newRow("labWindowOffDisplay_2") << QRect(64, 68, 180, 19);
        QTest::newRow("labNet5") << QRect(103, 208, 24, 21);
        QTest::newRow("labConnectState") << QRect(268, 208, 46, 30);
    }
    void labelsStandInTheirFrames()
    {
        QFETCH(QRect, place);
        auto *label = find(QTest::currentDataTag());
        QCOMPARE(QRect(label->mapTo(m_rig->home, QPoint()), label->size()), place);
        QVERIFY(m_rig->home->rect().contains(place));
    }

    void layers()
    {
        MainWindow &home = *m_rig->home;
        QVERIFY(home.SetLayerName(LAYER_PIP1, "HDMI2"));
        QVERIFY(home.SetLayerRes(LAYER_PIP1, "3840x2160@60"));
        QVERIFY(home.SetWindowState(WINDOW_PIP1, COMMON_OFF));
        QVERIFY(!find("labLayerSrc2_Name")->isVisible());
        QVERIFY(!find("labLayerSrc2_Res")->isVisible());
        QVERIFY(find("labWindowOffDisplay_2")->isVisible());
        home.slot_SetWinodwState(WINDOW_PIP1, COMMON_ON);
        QVERIFY(find("labLayerSrc2_Name")->isVisible());
        QVERIFY(!find("labWindowOffDisplay_2")->isVisible());
        QCOMPARE(find("labLayerSrc2_Name")->text(), QString("HDMI2"));
        QCOMPARE(find("labLayerSrc2_Res")->text(), QString("3840x2160@60"));
        home.slot_SetLayerState(LAYER_PIP1, LAYER_NO_SIGNAL);
        QCOMPARE(find("labLayerSrc2_Res")->text(), QString("No Signal"));
        home.slot_SetResState(LAYER_PIP1, "800x600@60");
        QCOMPARE(find("labLayerSrc2_Res")->text(), QString("800x600@60"));
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

    void settersFromTheReportThread()
    {
        MainWindow &home = *m_rig->home;
        home.SetScreenRes("before");
        std::unique_ptr<QThread> thread(QThread::create([&home] {
            home.SetScreenRes("1280x720@50");
            home.SetBrightNess("42%");
            home.SetIp("10.0.0.7");
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
        for (int second = 0; second < 4; ++second) {
            home.slot_Twinkledisplay();
            QCOMPARE(find("labIp")->text(), QString("10.0.0.8"));
        }
        home.SetDeviceRename("Stage left");
        QStringList seen;
        for (int second = 0; second < 8; ++second) {
            home.slot_Twinkledisplay();
            seen << find("labIp")->text();
        }
        // Two seconds each.
        QCOMPARE(seen.count("Stage left"), 4);
        QCOMPARE(seen.mid(4), seen.mid(0, 4));
        home.SetDeviceRename("");
        QCOMPARE(find("labIp")->text(), QString("10.0.0.8"));
    }

    void lockStopsAllKeysButTheChord()
    {
        m_rig->hold(KEY_LOCK);
        QVERIFY(MainWindow::m_bLockFlag);
        QVERIFY(find("labLock")->isVisible());
        QCOMPARE(m_rig->engine->GetParaFromIndex(MENU_ScreenLock), QString("1"));
        notes().clear();
        for (unsigned char key : {KEY_OK, KEY_ESC, KEY_MAIN, KEY_INPUT1, KEY_TEST, KEY_PRESET, KEY_FN}) {
            m_rig->press(key);
            m_rig->hold(key);
        }
        m_rig->turn(3);
        QCOMPARE(notes(), QStringList{});
        QCOMPARE(m_rig->shown(), m_rig->home);
        m_rig->hold(KEY_LOCK);
        QVERIFY(!MainWindow::m_bLockFlag);
        QVERIFY(!find("labLock")->isVisible());
        QCOMPARE(m_rig->engine->GetParaFromIndex(MENU_ScreenLock), QString("0"));
        m_rig->press(KEY_OK);
        QCOMPARE(m_rig->shown(), PageRig::page(ENUM_MAIN_MENU));
    }

    void hiddenMenusByTheirLongPressAtHomeOnly()
    {
        m_rig->hold(KEY_USER_HIDDEN_MENU);
        QCOMPARE(m_rig->shown(), PageRig::page(ENUM_USER_HIDE_MENU));
        m_rig->hold(KEY_PRODUCT_HIDDEN_MENU);
        QCOMPARE(m_rig->shown(), PageRig::page(ENUM_USER_HIDE_MENU));
        m_rig->press(KEY_ESC);
        m_rig->hold(KEY_PRODUCT_HIDDEN_MENU);
        QCOMPARE(m_rig->shown(), PageRig::page(ENUM_PRODUCT_HIDE_MENU));
    }

    void theKnobDoesNothingAtHome()
    {
        m_rig->turn(8);
        m_rig->turn(-8);
        QCOMPARE(m_rig->shown(), m_rig->home);
        QCOMPARE(notes(), QStringList{});
    }

    void theFactoryTestHasTheKeys()
    {
        Factory::m_cur_step = FACTORY_STEP_KEYS;
        m_rig->press(KEY_OK);
        m_rig->hold(KEY_LOCK);
        Factory::m_cur_step = FACTORY_STEP_NONE;
        QCOMPARE(m_rig->shown(), m_rig->home);
        QVERIFY(!MainWindow::m_bLockFlag);
    }

    void aTakeOverLocksAndItsEndUnlocks()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_PIP1, m_rig->home);
        QApplication::setActiveWindow(page);
        MenuDirectory::bSetScreenBrightness = true;
        m_rig->home->slot_ReturnToMainSoft(false);
        QCOMPARE(m_rig->shown(), m_rig->home);
        QVERIFY(MainWindow::m_bLockFlag);
        QVERIFY(MainWindow::lock_mode);
        QCOMPARE(int(MenuDirectory::m_currentLayer), int(MenuDirectory::noLayer));
        QCOMPARE(m_rig->device->sent, QStringList{"1002="});
        m_rig->home->slot_ReturnToMainSoft(true);
        QVERIFY(!MainWindow::m_bLockFlag);
        QVERIFY(!MainWindow::lock_mode);
    }

    void aLockOfTheUsersOwnSurvivesATakeOversEnd()
    {
        m_rig->hold(KEY_LOCK);
        m_rig->home->slot_ReturnToMainSoft(true);
        QVERIFY(MainWindow::m_bLockFlag);
        m_rig->home->slot_ReturnToMainSoft(false);
        QVERIFY(MainWindow::lock_mode);
    }

private:
    QLabel *find(const char *name) const { return m_rig->home->findChild<QLabel *>(name); }

    std::unique_ptr<PageRig> m_rig;
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
