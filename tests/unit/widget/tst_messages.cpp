// All messages of the table, shown as the engine shows them and answered through the keypad's way to the
// active window: which keys answer what, which are not heard, the time of those that close by themselves.

#include "framework/input/keydispatcher.h"
#include "framework/object/globaltimer.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/dialog/dialog_msgbox.h"

#include <QElapsedTimer>
#include <QPushButton>

using namespace VASK;

namespace
{
constexpr int stillOpen = -7;

/// Keys one after the other, and what exec() gives then; stillOpen if the box stays.
struct Way {
    QList<unsigned char> keys;
    int result;
};

constexpr unsigned char knobLeft = KEY_KNOB_LEFT, knobRight = KEY_KNOB_RIGHT, ok = KEY_OK, esc = KEY_ESC;

QList<Way> waysOf(ENUM_MsgBoxBtnType type)
{
    switch (type) {
    case MSGBOX_CHECK:
        return {{{ok}, 1}, {{esc}, 1}, {{knobRight, ok}, 1}, {{knobLeft, KEY_FN, ok}, 1}};
    case MSGBOX_YES_NO:
        return {{{ok}, 0},
                {{knobRight, ok}, 1},
                {{knobLeft, ok}, 1},
                {{knobRight, knobLeft, ok}, 0},
                {{knobRight, esc}, 0},
                {{esc}, 0},
                {{KEY_FN}, stillOpen}};
    default:
        break;
    }
    return {{{knobRight, ok, knobLeft, ok, esc, KEY_FN}, stillOpen}};
}

/// The buttons from left to right.
QList<const QPushButton *> buttonsOf(const QDialog &box)
{
    QList<const QPushButton *> buttons;
    for (const char *name : {"btnYes", "btnNo"}) {
        const auto *button = box.findChild<QPushButton *>(name);
        if (button->isVisible())
            buttons << button;
    }
    return buttons;
}

/// How a box that has just come up differs from what it should be; empty if it does not.
QString faultOf(QDialog &box, const ST_DialogInfo &row, const QString &extra)
{
    if (QApplication::activeWindow() != &box || box.geometry() != QRect(QPoint(34, 17), QPoint(283, 222)))
        return "not the active window in its place";
    const auto *text = box.findChild<QLabel *>("lab_Info");
    if (text->text() != row.text + extra)
        return "text: " + text->text();
    const bool question = row.buttonType == MSGBOX_YES_NO;
    const QList<const QPushButton *> buttons = buttonsOf(box);
    const int expected = question ? 2 : waysOf(row.buttonType).first().result == stillOpen ? 0 : 1;
    if (buttons.size() != expected)
        return QString("%1 buttons").arg(buttons.size());
    const QImage picture = box.grab().toImage();
    for (const QPushButton *button : buttons) {
        const QPoint inside = button->mapTo(&box, QPoint(6, 6));
        const bool marked = picture.pixelColor(inside) == QColor("#3939ad");
        if (marked != button->hasFocus() || marked != (button == buttons.last()))
            return "the focus is not on the last button";
    }
    return {};
}
/// A page whose work, the answer to a key, shows a message twice; at one moment of it the user types on.
class Worker : public QWidget
{
public:
    enum Moment { Before, FirstPass, LastPass, Between };
    Worker(ParaProcess &engine, ENUM_MenuIndex message, Moment moment, KeyDispatcher &keypad)
        : m_engine(engine), m_message(message), m_moment(moment), m_keypad(keypad)
    {
    }

    int keys = 0;
    bool done = false;
    int result = stillOpen; ///< of the first message

private:
    bool event(QEvent *event) override
    {
        if (event->type() == KeypadEvent::eventType && ++keys == 1) {
            at(Before);
            result = showMessage();
            at(Between);
            showMessage();
            done = true;
        }
        return QWidget::event(event);
    }
    int showMessage()
    {
        constexpr int shownMs = 50;
        const std::unique_ptr<QDialog> box(m_engine.CreateDialog(m_message, QString()));
        QTimer::singleShot(0, box.get(), [this] { at(FirstPass); });
        QTimer::singleShot(shownMs, box.get(), [this, &box] {
            at(LastPass);
            box->done(stillOpen);
        });
        const int answer = box->exec();
        QApplication::setActiveWindow(this); // as the window system of the LCD does
        return answer;
    }
    void at(Moment moment)
    {
        if (moment != m_moment)
            return;
        m_moment = Moment(-1);
        for (KEY_TYPE type : {KEY_PRESSED, KEY_RELEASED})
            m_keypad.post(type, ok, 1, false);
    }

    ParaProcess &m_engine;
    ENUM_MenuIndex m_message;
    Moment m_moment;
    KeyDispatcher &m_keypad;
};
} // namespace

class TestMessages : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        m_rig->answering = false;
        QCoreApplication::processEvents(); // the keypad's keys are dropped until the event loop runs
    }

    void eachIsShownAndAnswered_data()
    {
        QTest::addColumn<int>("index");
        for (auto row = g_dialogConfig.cbegin(); row != g_dialogConfig.cend(); ++row)
            QTest::addRow("%d %s", int(row.key()), qPrintable(row->text)) << int(row.key());
    }
    void eachIsShownAndAnswered()
    {
        QFETCH(int, index);
        const auto number = ENUM_MenuIndex(index);
        g_dialogConfig[number].enabled = true; // both of the two that take turns
        const ST_DialogInfo row = g_dialogConfig.value(number);
        for (const Way &way : waysOf(row.buttonType)) {
            const std::unique_ptr<QDialog> box(m_rig->engine->CreateDialog(number, " 42 %"));
            QVERIFY(box);
            QString fault;
            QCOMPARE(answer(*box, way.keys, [&] { fault = faultOf(*box, row, " 42 %"); }), way.result);
            QCOMPARE(fault, QString());
        }
    }

    void aPressedKeyWaitsForItsRelease()
    {
        const std::unique_ptr<QDialog> box(m_rig->engine->CreateDialog(MSG_UpdateError, QString()));
        int seen = 0;
        QTimer::singleShot(0, box.get(), [&] {
            if (!QTest::qWaitForWindowActive(box.get()))
                return box->done(stillOpen);
            for (unsigned char key : {ok, esc})
                deliver(KEY_PRESSED, key);
            seen = box->isVisible();
            deliver(KEY_RELEASED, ok);
        });
        QCOMPARE(box->exec(), 1);
        QCOMPARE(seen, 1);
    }

    void keysTypedAheadAreTheMessages_data()
    {
        const DataRows<int, int, int> row{"message", "moment", "result"};
        row("before one that is answered", MSG_UpdateError, int(Worker::Before), 1);
        const int waiting = MSG_Waiting;
        row("before one that is not", waiting, int(Worker::Before), stillOpen);
        row("while it comes up", waiting, int(Worker::FirstPass), stillOpen);
        row("as it goes", waiting, int(Worker::LastPass), stillOpen);
        row("before the next one", waiting, int(Worker::Between), stillOpen);
    }
    void keysTypedAheadAreTheMessages()
    {
        const auto [message, moment] = fetched<int, int>({"message", "moment"});
        m_rig->home->hide();
        Worker page(*m_rig->engine, ENUM_MenuIndex(message), Worker::Moment(moment), m_keypad);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        m_keypad.post(KEY_RELEASED, ok, 1, false);
        QTRY_VERIFY(page.done);
        QTest::qWait(20); // what is still under way
        QCOMPARE(page.keys, 1);
        QTEST(page.result, "result");
    }

    /// All of them at once, one over the other, so that it takes no longer than the longest.
    void timedOnesCloseByThemselves()
    {
        m_timed.clear();
        for (auto row = g_dialogConfig.cbegin(); row != g_dialogConfig.cend(); ++row)
            if (row->buttonType == MSGBOX_TIMED)
                m_timed << Timed{row.key(), row->timeMs, -1, -1, stillOpen};
        m_clock.start();
        openTimed(0);
        for (const Timed &message : qAsConst(m_timed)) {
            const QByteArray name = g_dialogConfig.value(message.index).text.toUtf8();
            // Beside a timer of its length, which is as late as a busy machine makes it.
            QVERIFY2(message.afterMs >= message.timeMs && qAbs(message.afterMs - message.timerMs) <= 400,
                     name + ' ' + QByteArray::number(message.afterMs));
            QVERIFY2(message.result == 2, name);
        }
    }

    /// A key that no button hears starts the time to return anew: the page below stays as long as after any.
    void everyKeyHoldsTheReturnToHomeOff()
    {
        constexpr int lastKeyMs = 1600, closedMs = 1700, returnMs = 1000;
        m_rig->set(MENU_ReturntoHome, "1");
        GlobalTimer::getInstance()->Initialize(m_rig->home);
        QElapsedTimer time;
        time.start();
        PageRig::open(ENUM_MAIN_MENU, m_rig->home);
        const std::unique_ptr<QDialog> box(m_rig->engine->CreateDialog(MSG_ResetSucceed, QString()));
        for (int at : {lastKeyMs / 2, lastKeyMs})
            QTimer::singleShot(at, Qt::PreciseTimer, box.get(), [this] { deliver(KEY_PRESSED, knobRight); });
        QTimer::singleShot(closedMs, Qt::PreciseTimer, box.get(), [&box] { box->done(0); });
        box->exec();
        QApplication::setActiveWindow(PageRig::page(ENUM_MAIN_MENU));
        QTRY_VERIFY_WITH_TIMEOUT(m_rig->home->isVisible(), 5000);
        // Timers of this length may come a twentieth early.
        QVERIFY2(time.elapsed() >= lastKeyMs + returnMs * 9 / 10, QByteArray::number(time.elapsed()));
    }

    void lineBreaksAndExtraText()
    {
        dialog_msgBox box(nullptr, "first\\r\\nsecond", MSGBOX_NONE, 0, " third");
        QCOMPARE(box.findChild<QLabel *>("lab_Info")->text(), QString("first\r\nsecond third"));
    }

private:
    struct Timed {
        ENUM_MenuIndex index;
        int timeMs;
        qint64 afterMs;
        qint64 timerMs; ///< after which a plain timer of that length has fired
        int result;
    };

    void deliver(KEY_TYPE type, unsigned char key)
    {
        constexpr int betweenKeysMs = 5;
        m_keypad.post(type, key, 1, false);
        QTest::qWait(betweenKeysMs);
    }
    /// The result of a box that gets these keys, and is looked at before.
    int answer(QDialog &box, const QList<unsigned char> &keys, const std::function<void()> &look)
    {
        bool ended = true;
        QTimer::singleShot(0, &box, [&] {
            if (!QTest::qWaitForWindowActive(&box))
                return box.done(stillOpen);
            look();
            for (unsigned char key : keys) {
                deliver(KEY_PRESSED, key);
                if (key == ok || key == esc)
                    deliver(KEY_RELEASED, key);
            }
            if (!box.isVisible())
                return;
            ended = false;
            box.done(stillOpen);
        });
        const int result = box.exec();
        return ended ? result : stillOpen;
    }
    void openTimed(int number)
    {
        if (number >= m_timed.size())
            return;
        const std::unique_ptr<QDialog> box(m_rig->engine->CreateDialog(m_timed[number].index, QString()));
        QVERIFY(box);
        const qint64 start = m_clock.elapsed();
        connect(box.get(), &QDialog::finished, this, [this, start, number](int result) {
            m_timed[number].result = result;
            m_timed[number].afterMs = m_clock.elapsed() - start;
        });
        QTimer::singleShot(0, box.get(), [this, number] { openTimed(number + 1); });
        QTimer::singleShot(m_timed[number].timeMs, Qt::PreciseTimer, this,
                           [this, start, number] { m_timed[number].timerMs = m_clock.elapsed() - start; });
        box->exec();
    }

    std::unique_ptr<PageRig> m_rig;
    KeyDispatcher m_keypad;
    QVector<Timed> m_timed;
    QElapsedTimer m_clock;
};

FPD_TEST(TestMessages)
#include "tst_messages.moc"
