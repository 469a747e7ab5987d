// The production test and the self-check window by themselves: the times of an input under test, driven by
// ticks instead of a clock, what counts as a key, the count of runs, and texts that are cut off.
#include "framework/productiontest/selfchecklist.h"
#include "sysconf.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/lookrig.h"
#include "widget/factory/devcheckwin.h"
#include "widget/factory/dialog_factory.h"
#include "widget/page/testwindows.h"

#include <QListWidget>
#include <QScrollBar>

using namespace VASK;

class TestFactory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = std::make_unique<PageRig>();
        QVERIFY(m_rig->engine->Initialize());
        QVERIFY(m_rig->home->Init());
    }
    void init()
    {
        m_rig->reset();
        m_test = std::make_unique<Factory>();
        m_test->show();
    }
    void cleanup()
    {
        m_test.reset();
        Factory::m_cur_step = FACTORY_STEP_NONE;
        Factory::InputSoureStable = false;
        signalOfInput(0, 0);
        delete TestWindows::selfCheck();
    }

    void stepsFollowTheSelfTest_data()
    {
        addColumns<int, int, int>({"key", "type", "step"});
        QTest::addRow("passed") << int(KEY_SELF_TEST_DONE) << int(KEY_RELEASED) << int(FACTORY_STEP_KEYS);
        QTest::addRow("failed") << int(KEY_SELF_TEST_DONE) << int(KEY_PRESSED) << int(FACTORY_STEP_SELF_TEST);
        for (int key : {KEY_OK, KEY_ESC, KEY_LOCK, KEY_SERVICE})
            QTest::addRow("key %d", key) << key << int(KEY_RELEASED) << int(FACTORY_STEP_SELF_TEST);
    }
    void stepsFollowTheSelfTest()
    {
        const auto [key, type] = fetched<int, int>({"key", "type"});
        m_test->beginSelfTest();
        send(key, KEY_TYPE(type));
        QTEST(Factory::m_cur_step.load(), "step");
        const bool failed = key == KEY_SELF_TEST_DONE && type == KEY_PRESSED;
        QCOMPARE(m_test->isVisible(), !failed);
        QCOMPARE(TestWindows::selfCheck() && TestWindows::selfCheck()->isVisible() && DevCheckWin::test_flg,
                 failed);
    }

    /// Held keys are no keys pressed; the knob has no release.
    void whatCountsAsAKey()
    {
        struct Case {
            int key;
            KEY_TYPE type;
            int row, column;
            bool counts;
        };
        m_test->InitDisp(FACTORY_STEP_KEYS);
        for (const Case &c :
             {Case{KEY_MAIN, KEY_PRESSED, 0, 0, false}, Case{KEY_MAIN, KEY_LONG_PRESS, 0, 0, false},
              Case{KEY_MAIN, KEY_RELEASED, 0, 0, true}, Case{KEY_KNOB_LEFT, KEY_PRESSED, 1, 2, true},
              Case{KEY_KNOB_RIGHT, KEY_PRESSED, 0, 2, true}, Case{KEY_FREEZE, KEY_RELEASED, 5, 0, false}}) {
            send(c.key, c.type);
            QCOMPARE(label(c.row, c.column)->property("state").toBool(), c.counts);
        }
    }

    void inputUnderTest_data()
    {
        const DataRows<QString, QString, bool> row{"course", "colour", "over"};
        const QString none, passed = "#17BC1E", failed = "#C40F0F";
        // stable, lost; 2: its two seconds are over; a number with x: so many ticks of a fifth of a second
        row("never stable", "50x", none, false);
        row("stable for ten seconds", "stable 10x 2 40x", passed, true);
        row("stable already", "already 10x 2 40x", passed, true);
        row("reported again and again", "stable stable 10x 2 stable 40x", passed, true);
        row("not watched long enough", "stable 10x 2 39x", none, false);
        row("lost at 1.9 s", "stable 9x lost 2 50x", none, false);
        row("lost at 1.9 s and back for good", "stable 9x lost 2 5x stable 10x 2 40x", passed, true);
        row("back before two seconds", "stable 5x lost stable 4x 2 40x", passed, true);
        row("lost at 2.1 s", "stable 10x 2 lost 1x", failed, true);
        row("lost at 2.1 s and back", "stable 10x 2 lost stable 1x", failed, true);
        row("lost at 7.9 s of the eight", "stable 10x 2 39x lost 1x", failed, true);
        row("lost at 8.1 s of the eight", "stable 10x 2 40x lost 5x", passed, true);
        row("another one is lost", "stable 10x 2 other 40x", passed, true);
    }
    void inputUnderTest()
    {
        QFETCH(QString, course);
        m_test->InitDisp(FACTORY_STEP_IN_OUT);
        m_test->slot_Start_CountDown(); // of before the test: nobody waits for it
        if (course.startsWith("already"))
            signalOfInput(0, 3);
        send(KEY_OK, KEY_RELEASED);
        QCOMPARE(Factory::InputTestNumCur.load(), int(INOUT_HDMI1));
        for (const QString &word : course.split(' ')) {
            if (word == "stable")
                m_test->slot_Start_CountDown();
            else if (word == "lost")
                m_test->slot_UpdateMenuItem(INOUT_HDMI1, ITEM_FAILED);
            else if (word == "other")
                m_test->slot_UpdateMenuItem(INOUT_HDMI2, ITEM_FAILED);
            else if (word == "2")
                m_test->slot_2StimeOver();
            for (int tick = 0; word.endsWith('x') && tick < word.chopped(1).toInt(); ++tick)
                m_test->slot_InputTestDone();
        }
        QFETCH(QString, colour);
        const QString style = label(0, 0)->styleSheet();
        QVERIFY2(colour.isEmpty() ? style.contains("state=") : style.contains(colour), qPrintable(style));
        // The next OK takes the next input, or still waits for this one.
        send(KEY_OK, KEY_RELEASED);
        QFETCH(bool, over);
        QCOMPARE(Factory::InputTestNumCur.load(), int(over ? INOUT_HDMI2 : INOUT_HDMI1));
    }

    void passedRunsAreCounted_data()
    {
        const DataRows<QByteArray, QByteArray> row{"before", "after"};
        row("new unit", {}, "1");
        row("again", "41", "42");
        row("spoilt", "x", "1");
    }
    void passedRunsAreCounted()
    {
        QFETCH(QByteArray, before);
        setCount(before);
        for (int port = 0; port < NET_PORT_COUNT; ++port)
            m_rig->set(ENUM_MenuIndex(PARA_PortLink + port), "1");
        m_test->InitDisp(FACTORY_STEP_IN_OUT);
        for (int input = 0; input < 3; ++input) {
            QCOMPARE(count(), before);
            send(KEY_OK, KEY_RELEASED);
            m_test->slot_Start_CountDown();
            m_test->slot_2StimeOver();
            m_test->slot_InOutTestDone(); // an input is under test
            for (int tick = 0; tick < 40; ++tick)
                m_test->slot_InputTestDone();
        }
        m_test->slot_UpdateMenuItem(INOUT_USB_IN, ITEM_PASSED);
        m_test->slot_InOutTestDone();
        QCOMPARE(m_rig->messages, QStringList());
        m_test->slot_UpdateMenuItem(INOUT_ETHERNET, ITEM_PASSED);
        m_test->slot_InOutTestDone();
        QCOMPARE(m_rig->messages.size(), 1);
        QTEST(count(), "after");
        // A second OK is no second run.
        send(KEY_OK, KEY_RELEASED);
        QVERIFY(!runningTimers());
    }

    /// The device is set up for a known picture.
    void knownPicture()
    {
        m_test->InitDisp(FACTORY_STEP_IN_OUT);
        const QMap<ENUM_MenuIndex, QString> values = {{MENU_Quick_CabinetRow, "8"},
                                                      {MENU_Quick_CabinetCol, "15"},
                                                      {MENU_Quick_PortOneCab, "12"},
                                                      {MENU_Quick_FlowWay, "1"},
                                                      {MENU_MainLayer_Status, "1"},
                                                      {MENU_MainLayer_InputSource, "0"},
                                                      {MENU_MainLayer_ScalingMode, "0"},
                                                      {MENU_PIP1_Status, "0"},
                                                      {MENU_PIP2_Status, "0"}};
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            QCOMPARE(m_rig->engine->GetParaFromIndex(value.key()), value.value());
        QVERIFY(!m_rig->device->sent.take().isEmpty());
    }

    void listIsShownWhole_data() { eachLanguage(); }
    void listIsShownWhole()
    {
        const Language &language = languageOfRow();
        m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, language.item == MENU_LanguageEn ? "1" : "0");
        for (int number = 0; number < SelfCheckList::FpgaStatus; ++number)
            SelfCheckList::setResult(number, "148.5M", number % 2 ? "normal" : "error");
        DevCheckWin window;
        window.InitDefaultItems(false);
        window.show();
        const auto *list = window.findChild<QListWidget *>();
        const int rows = SelfCheckList::rows().size();
        QVERIFY(rows >= 30);
        QCOMPARE(list->count(), rows);
        QCOMPARE(cutTexts(window), QStringList());
    }

private:
    void send(int key, KEY_TYPE type)
    {
        KeypadEvent event(type, static_cast<unsigned char>(key), 1, type == KEY_LONG_PRESS);
        QCoreApplication::sendEvent(m_test.get(), &event);
    }
    QLabel *label(int row, int column)
    {
        const auto *table = m_test->findChild<QTableWidget *>();
        return qobject_cast<QLabel *>(table->cellWidget(row, column));
    }
    bool runningTimers() const
    {
        for (int ms : {1000, 200, 2000})
            for (const QTimer *timer : m_test->findChildren<QTimer *>())
                if (timer->isActive() && timer->interval() == ms)
                    return true;
        return false;
    }
    void signalOfInput(int input, int state)
    {
        constexpr int signalState = 2; // the place in the input's record
        m_rig->engine->SaveProcessData(
            QString::number(state),
            ENUM_MenuIndex(PARA_InputRecordFirst + input * STRIDE_InputRecord + signalState));
    }
    static void setCount(const QByteArray &text)
    {
        QFile::remove(board::filePath("/sysconf.env"));
        if (text.isEmpty() || sysconf_openenv() != 0)
            return;
        sysconf_setenv("FACTORY_TEST_COUNT", text.constData());
        sysconf_closeenv();
    }
    static QByteArray count()
    {
        if (sysconf_openenv() != 0)
            return "not open";
        const char *text = sysconf_getenv("FACTORY_TEST_COUNT");
        const QByteArray value(text ? text : "");
        sysconf_closeenv();
        return value;
    }

    std::unique_ptr<PageRig> m_rig;
    std::unique_ptr<Factory> m_test;
};

FPD_TEST(TestFactory)
#include "tst_factory.moc"
