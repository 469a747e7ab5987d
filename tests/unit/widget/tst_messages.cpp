// Message boxes: which keys answer what, which ignore keys, the time of those that close themselves, and that
// every text of the table has room.

#include "framework/keypadevent.h"
#include "menuconfig_k2860.h"
#include "widget/dialog_msgbox.h"
#include "widget/lock.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace VASK;

namespace
{
void press(dialog_msgBox &box, unsigned char key, KEY_TYPE type = KEY_RELEASED)
{
    QCoreApplication::postEvent(&box, new KeypadEvent(type, key, 1, false));
}

constexpr int stillOpen = -7;

/// The result of a box that gets these keys; stillOpen if they do not close it.
int answer(dialog_msgBox &box, const QList<int> &keys)
{
    for (int key : keys)
        press(box, static_cast<unsigned char>(key));
    bool ended = true;
    QTimer::singleShot(0, &box, [&] {
        QCoreApplication::sendPostedEvents(&box);
        if (!box.isVisible())
            return;
        ended = false;
        box.done(stillOpen);
    });
    const int result = box.exec();
    return ended ? result : stillOpen;
}
} // namespace

class TestMessages : public QObject
{
    Q_OBJECT
private slots:
    void answers_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("result");
        const int left = KEY_KNOB_LEFT;
        const int right = KEY_KNOB_RIGHT;
        const int ok = KEY_OK;
        const int esc = KEY_ESC;
        const auto row = [](const char *name, int type, const QList<int> &keys, int result) {
            QTest::newRow(name) << type << keys << result;
        };
        row("none, OK", MSGBOX_NONE, {ok}, stillOpen);
        row("none, ESC", MSGBOX_NONE, {right, esc}, stillOpen);
        row("check, OK", MSGBOX_CHECK, {ok}, 1);
        row("check, ESC", MSGBOX_CHECK, {esc}, 1);
        row("check, turned, OK", MSGBOX_CHECK, {right, ok}, 1);
        row("no, OK", MSGBOX_NO, {ok}, 0);
        row("no, ESC", MSGBOX_NO, {esc}, 0);
        row("check or leave, OK", MSGBOX_CHECK_CANCEL, {ok}, 1);
        row("check or leave, ESC", MSGBOX_CHECK_CANCEL, {esc}, 2);
        row("question, OK at once", MSGBOX_YES_NO, {ok}, 0);
        row("question, right, OK", MSGBOX_YES_NO, {right, ok}, 1);
        row("question, left, OK", MSGBOX_YES_NO, {left, ok}, 1);
        row("question, there and back", MSGBOX_YES_NO, {right, left, ok}, 0);
        row("question, on yes, ESC", MSGBOX_YES_NO, {left, esc}, 0);
        row("question, other key", MSGBOX_YES_NO, {KEY_FN}, stillOpen);
        row("timed, OK", MSGBOX_TIMED, {ok}, stillOpen);
        row("timed, ESC", MSGBOX_TIMED, {esc}, stillOpen);
    }
    void answers()
    {
        QFETCH(int, type);
        QFETCH(QList<int>, keys);
        dialog_msgBox box(nullptr, "IFResetAll", ENUM_MsgBoxBtnType(type), 60000, QString());
        QTEST(answer(box, keys), "result");
    }

    void pressedOkWaitsForItsRelease()
    {
        dialog_msgBox box(nullptr, "IFResetAll", MSGBOX_CHECK, 0, QString());
        press(box, KEY_OK, KEY_PRESSED);
        QCOMPARE(answer(box, {}), stillOpen);
    }

    void aTimedBoxClosesItself()
    {
        constexpr int timeMs = 120;
        dialog_msgBox box(nullptr, "Waiting", MSGBOX_TIMED, timeMs, QString());
        QElapsedTimer time;
        time.start();
        QCOMPARE(box.exec(), 2);
        QVERIFY(time.elapsed() >= timeMs - 10);
    }

    void extraTextAndLineBreaks()
    {
        dialog_msgBox box(nullptr, "first\\r\\nsecond", MSGBOX_NONE, 0, " third");
        QCOMPARE(box.findChild<QLabel *>("lab_Info")->text(), QString("first\r\nsecond third"));
    }

    void everyMessageHasRoom()
    {
        QCOMPARE(g_dialogConfig.size(), 70);
        for (const ST_DialogInfo &row : qAsConst(g_dialogConfig)) {
            dialog_msgBox box(nullptr, row.text, row.buttonType, 0, QString());
            box.ensurePolished();
            auto *label = box.findChild<QLabel *>("lab_Info");
            label->ensurePolished();
            const QRect needed = label->fontMetrics().boundingRect(
                QRect(0, 0, label->width(), 1000), int(label->alignment()) | Qt::TextWordWrap, label->text());
            QVERIFY2(needed.height() <= label->height(), qPrintable(row.text));
            int buttons = 0;
            for (const QPushButton *button : box.findChildren<QPushButton *>())
                buttons += !button->isHidden() && button->parentWidget()->isVisibleTo(&box);
            const int expected = row.buttonType == MSGBOX_YES_NO                                   ? 2
                                 : row.buttonType == MSGBOX_NONE || row.buttonType == MSGBOX_TIMED ? 0
                                                                                                   : 1;
            QCOMPARE(buttons, expected);
        }
    }

    void theLockWindowIsPartOfTheHomeScreen()
    {
        QWidget home;
        home.setFixedSize(320, 240);
        Lock lock(&home);
        QVERIFY(!lock.isWindow()); // else it would take the keys
        QCOMPARE(lock.geometry(), QRect(90, 71, 140, 98));
        lock.SetLockState(true);
        QCOMPARE(lock.findChild<QLabel *>("labTip")->text(),
                 QCoreApplication::translate("MainWindow", "Locked"));
        lock.SetLockState(false);
        QCOMPARE(lock.findChild<QLabel *>("labTip")->text(),
                 QCoreApplication::translate("MainWindow", "Unlocked"));
    }
};

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
