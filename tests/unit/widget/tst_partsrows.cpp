// Rows with parts: how the cursor comes in, walks and leaves, and what OK acts on; and the rows that only
// act.

#include "menu/menutypes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/rowbench.h"
#include "widget/row/typeapply.h"
#include "widget/row/typeapplyreset.h"
#include "widget/row/typebutton.h"
#include "widget/row/typecheckitem.h"
#include "widget/row/typefourpic.h"
#include "widget/row/typetwostringcombox.h"

#include <QPushButton>

using namespace VASK;

namespace
{
/// Moves the cursor inside a row and gives the speed that is left for the page.
int walk(VaskUiObject &row, ENUM_MenuIndex index, int clicks, bool end = false)
{
    auto speed = static_cast<unsigned char>(qAbs(clicks));
    if (clicks < 0)
        row.UpEntry(index, speed, end);
    else
        row.DownEntry(index, speed, end);
    return speed;
}
} // namespace

class TestPartsRows : public RowTest
{
    Q_OBJECT
private slots:
    void walking_data()
    {
        // before: clicks that bring the cursor to its start
        // applied: 0: the cursor has left the row
        const DataRows<QList<int>, int, bool, int, int> row{"before", "clicks", "end", "left", "applied"};
        const int apply = MENU_Mosaic_Apply;
        const int reset = apply + 1;
        row("in from the left", {}, 1, false, 0, apply);
        row("in from the right", {}, -1, false, 0, reset);
        row("in by two from the left", {}, 2, false, 0, reset);
        row("in by two from the right", {}, -2, false, 0, apply);
        row("to the second part", {1}, 1, false, 0, reset);
        row("out to the left", {1}, -1, false, 1, 0);
        row("out to the right", {-1}, 1, false, 1, 0);
        row("fast out to the left", {-1}, -3, false, 2, 0);
        row("fast out to the right", {1}, 4, false, 3, 0);
        row("first row of the page", {1}, -3, true, 0, apply);
        row("last row of the page", {-1}, 3, true, 0, reset);
    }
    void walking()
    {
        const auto [before, clicks, end, applied] =
            fetched<QList<int>, int, bool, int>({"before", "clicks", "end", "applied"});
        Seen<typeapplyreset> row(MENU_Mosaic_Apply, ENUM_OBJECT_END);
        for (int move : before)
            walk(row, MENU_Mosaic_Apply, move);
        QTEST(walk(row, MENU_Mosaic_Apply, clicks, end), "left");
        row.EnterEntry(MENU_Mosaic_Apply);
        QCOMPARE(RowBench::takeApplied(), applied ? QList<int>{applied} : QList<int>{});
        const auto *focused = qobject_cast<QPushButton *>(row.focusWidget());
        const QList<QPushButton *> buttons = row.findChildren<QPushButton *>();
        QCOMPARE(focused ? MENU_Mosaic_Apply + buttons.indexOf(const_cast<QPushButton *>(focused)) : 0,
                 applied);
    }

    void aTurnWithoutSpeedReachesNoPart()
    {
        Seen<typeapplyreset> row(MENU_Net_Apply, ENUM_OBJECT_END);
        unsigned char none = 0;
        for (bool left : {true, false}) {
            left ? row.UpEntry(MENU_Net_Apply, none, false) : row.DownEntry(MENU_Net_Apply, none, false);
            row.EnterEntry(MENU_Net_Apply);
            QCOMPARE(RowBench::takeApplied(), QList<int>{});
        }
    }

    void fourPicturesActOnTheRowItself()
    {
        Seen<typefourpic> row(MENU_Test_CustomPictures, ENUM_OBJECT_END);
        walk(row, MENU_Test_CustomPictures, 3);
        row.EnterEntry(MENU_Test_CustomPictures);
        QCOMPARE(RowBench::takeApplied(), QList<int>{MENU_Test_CustomPictures});
        QCOMPARE(walk(row, MENU_Test_CustomPictures, 2), 1);
    }

    void aReloadBringsTheCursorToThePictureInForce()
    {
        m_bench->store().UpdataItemCurValue(MENU_Test_CustomPictures, "3");
        Seen<typefourpic> row(MENU_Test_CustomPictures, ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN, "", SET_XML_DEVICE);
        QCOMPARE(walk(row, MENU_Test_CustomPictures, 2), 1); // the fourth, then one row on
    }

    void anOpenedPageMarksNoButton()
    {
        QWidget page;
        Seen<typeapply> apply(MENU_Color_Reset, ENUM_OBJECT_END);
        Seen<typeapplyreset> pair(MENU_Mosaic_Apply, ENUM_OBJECT_END);
        Seen<typefourpic> pictures(MENU_Test_CustomPictures, ENUM_OBJECT_END);
        for (QWidget *row : QList<QWidget *>{&apply, &pair, &pictures})
            row->setParent(&page);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QVERIFY(!page.focusWidget());
        apply.ChangeStyleEntry(MENU_Color_Reset, 1);
        QVERIFY(page.focusWidget());
        apply.ChangeStyleEntry(MENU_Color_Reset, 0);
        QVERIFY(!page.focusWidget());
    }

    void theNameOfAPairIsNeverFocused()
    {
        Seen<typetwostringcombox> row(MENU_InputBackup_Status, ENUM_OBJECT_END);
        for (int clicks : {1, 1, -1, -1, 8, -8}) {
            walk(row, MENU_InputBackup_Status, clicks);
            QVERIFY(!row.focusWidget() || row.focusWidget()->objectName() == "Btn");
        }
    }

    void aFileShowsItsNameOnce()
    {
        // As it stands in the store when the panel starts again.
        const QString name = "wall 480x270.cab";
        m_bench->store().UpdataItemCurValue(MENU_CabinetFile3, name);
        Seen<typebutton> row(MENU_CabinetFile3, ENUM_OBJECT_END);
        const auto shown = [&row, &name] {
            int count = 0;
            for (const QLabel *label : row.findChildren<QLabel *>())
                count += label->text() == name;
            return count;
        };
        row.UpdateTagName(MENU_CabinetFile3, name);
        QCOMPARE(shown(), 1);
        row.SetParaEntry(MENU_OWN, "", SET_XML_DEVICE);
        row.UpdateTagName(MENU_CabinetFile3, name);
        QCOMPARE(shown(), 1);
    }

    void theTickOfASlowChangeComesFirst()
    {
        tickIsShownBeforeTheWork(MENU_SendingCard, true);
        tickIsShownBeforeTheWork(MENU_FiberConverter, false);
    }

private:
    void tickIsShownBeforeTheWork(ENUM_MenuIndex item, bool first)
    {
        m_bench->store().UpdataItemCurChoice(item, UNSELECTED);
        Seen<typecheckitem> row(item, ENUM_OBJECT_END);
        row.show();
        static typecheckitem *watched;
        static int ticksAtWork;
        watched = &row;
        ticksAtWork = -1;
        static QtMessageHandler previous;
        previous =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &c, const QString &text) {
                if (text.startsWith("index =="))
                    ticksAtWork = ticks(*watched);
                previous(type, c, text);
            });
        const int before = ticks(row);
        row.EnterEntry(item);
        qInstallMessageHandler(previous);
        QCOMPARE(ticksAtWork - before, first ? 1 : 0);
        QCOMPARE(ticks(row) - before, 1);
    }

    static int ticks(const QWidget &row)
    {
        int shown = 0;
        for (const QLabel *label : row.findChildren<QLabel *>())
            shown += label->isVisible() && label->text().isEmpty();
        return shown;
    }
};

FPD_TEST(TestPartsRows)
#include "tst_partsrows.moc"
