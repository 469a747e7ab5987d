// Lists: the way through the drop-down, disabled options, reversed lists, preview, ESC and stray values.

#include "menu/menutypes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/rowbench.h"
#include "widget/row/typeicocombox.h"
#include "widget/row/typemosaic.h"
#include "widget/row/typestringcombox.h"

using namespace VASK;

namespace
{
constexpr ENUM_MenuIndex list = MENU_Color_ColorTemp; // no rule of the engine limits it
constexpr ENUM_MenuIndex reversed = MENU_BootLogo;

QMap<QString, QString> options(int count)
{
    QMap<QString, QString> texts;
    for (int i = 0; i < count; ++i)
        texts[QString::number(i)] = QString("option %1").arg(i);
    return texts;
}

QMap<QString, QString> disabled(int count, const QList<int> &off)
{
    QMap<QString, QString> states;
    for (int i = 0; i < count; ++i)
        states[QString::number(i)] = off.contains(i) ? optionDisable : optionEnable;
    return states;
}

void setOptions(RowBench &bench, ENUM_MenuIndex index, int count, const QString &value,
                const QMap<QString, QString> &states = {})
{
    bench.edit(index, [&](ST_ItemInfo &item) {
        item.params = options(count);
        item.params1 = states;
        item.value = value;
        item.enable = true;
    });
}

void open(VaskUiObject &row, ENUM_MenuIndex index, QWidget &page)
{
    row.EnterEntry(index, &page, 0, 0);
}

void take(VaskUiObject &row, ENUM_MenuIndex index, QWidget &page)
{
    row.EnterEntry(index, &page, 1, 0);
}

void turn(VaskUiObject &row, ENUM_MenuIndex index, int clicks)
{
    for (int i = 0; i < qAbs(clicks); ++i)
        clicks < 0 ? row.UpEntry(index) : row.DownEntry(index);
}

int openTables(const QWidget &page)
{
    return page.findChildren<stringcomboxtable *>().size();
}
} // namespace

class TestListRows : public RowTest
{
    Q_OBJECT
private slots:
    void choosing_data()
    {
        const DataRows<QList<int>, QString, int, QString> row{"off", "start", "clicks", "end"};
        row("next", {}, "1", 1, "2");
        row("round forwards", {}, "3", 1, "0");
        row("round backwards", {}, "0", -1, "3");
        row("over disabled forwards", {1, 2}, "0", 1, "3");
        row("over disabled backwards", {2, 3}, "0", -1, "1");
        row("over disabled and round", {3}, "2", 1, "0");
        row("no other to go to", {0, 2, 3}, "1", 1, "1");
        row("no other, backwards", {0, 2, 3}, "1", -1, "1");
    }
    void choosing()
    {
        const auto [off, start, clicks] = fetched<QList<int>, QString, int>({"off", "start", "clicks"});
        setOptions(*m_bench, list, 4, start, disabled(4, off));
        Seen<typestringcombox> row(list, ENUM_OBJECT_END);
        QWidget page;
        open(row, list, page);
        QCOMPARE(openTables(page), 1);
        turn(row, list, clicks);
        QVERIFY(row.CurrentItemEnabled());
        take(row, list, page);
        QTEST(m_bench->value(list), "end");
        QFETCH(QString, end);
        QVERIFY(shows(row, "option " + end));
        QCOMPARE(openTables(page), 0);
        QCOMPARE(RowBench::takeApplied(), start == end ? QList<int>{} : QList<int>{list});
    }

    void aDisabledOptionInForceCannotBeTakenAgain()
    {
        setOptions(*m_bench, list, 3, "1", disabled(3, {0, 1, 2}));
        Seen<typestringcombox> row(list, ENUM_OBJECT_END);
        QVERIFY(!row.CurrentItemEnabled()); // nothing is open
        QWidget page;
        open(row, list, page);
        turn(row, list, 1);
        QVERIFY(!row.CurrentItemEnabled());
        row.EscEntry(list);
        QCOMPARE(m_bench->value(list), QString("1"));
    }

    void aReversedListDimsTheRightRow()
    {
        setOptions(*m_bench, reversed, 2, "0", disabled(2, {1}));
        Seen<typestringcombox> row(reversed, ENUM_OBJECT_END);
        QWidget page;
        open(row, reversed, page);
        const QAbstractItemModel *model = page.findChild<QAbstractItemView *>()->model();
        QVERIFY(!(model->flags(model->index(0, 0)) & Qt::ItemIsEnabled));
        QVERIFY(model->flags(model->index(1, 0)) & Qt::ItemIsEnabled);
    }

    void reports_data()
    {
        const DataRows<QString, int, QString, QString, bool> row{"reported", "mode", "shown", "stored",
                                                                 "applied"};
        row("a key from the device", "2", SET_XML_DEVICE, "option 2", "1", false);
        row("a key to store", "2", SET_XML_STORE, "option 2", "2", false);
        row("a key of the user", "2", SET_XML_USER, "option 2", "2", true);
        row("no key", "9", SET_XML_DEVICE, "option 0", "0", true);
        row("reload", "", SET_XML_STORE, "option 1", "1", false);
    }
    void reports()
    {
        const auto [reported, mode, shown, applied] =
            fetched<QString, int, QString, bool>({"reported", "mode", "shown", "applied"});
        setOptions(*m_bench, list, 4, "1");
        Seen<typestringcombox> row(list, ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN, reported, ENUM_MODE_SET_XML(mode));
        QVERIFY(shows(row, shown));
        QTEST(m_bench->value(list), "stored");
        QCOMPARE(RowBench::takeApplied(), applied ? QList<int>{list} : QList<int>{});
    }

    void aReportMovesTheOpenList()
    {
        setOptions(*m_bench, list, 4, "1");
        Seen<typestringcombox> row(list, ENUM_OBJECT_END);
        QWidget page;
        open(row, list, page);
        row.SetParaEntry(list, "3", SET_XML_DEVICE);
        QCOMPARE(page.findChild<QAbstractItemView *>()->currentIndex().row(), 3);
    }

    void otherPicturesWaitForOk()
    {
        m_bench->store().UpdataItemCurValue(MENU_Advanced_FlowWay, "0");
        Seen<typeicocombox> row(MENU_Advanced_FlowWay, ENUM_OBJECT_END);
        QWidget page;
        open(row, MENU_Advanced_FlowWay, page);
        turn(row, MENU_Advanced_FlowWay, -1);
        QCOMPARE(m_bench->value(MENU_Advanced_FlowWay), QString("0"));
        take(row, MENU_Advanced_FlowWay, page);
        const int count = m_bench->item(MENU_Advanced_FlowWay).params.size();
        QCOMPARE(m_bench->value(MENU_Advanced_FlowWay), QString::number(count - 1));
    }

    void mosaicShowsBothSourcesAndTheSize()
    {
        setOptions(*m_bench, MENU_Mosaic_Arrangement, 6, "3");
        m_bench->edit(MENU_Mosaic_Layout, [](ST_ItemInfo &item) { item.value = "0"; });
        Seen<typemosaic> row(MENU_Mosaic_Arrangement, ENUM_OBJECT_END);
        row.updateSource(SOURCELABLE_FIRST, "DVI2");
        row.updateSource(SOURCELABLE_SECOND, "DVI1");
        row.updatePixValue("3840x1080");
        QVERIFY(shows(row, "DVI2"));
        QVERIFY(shows(row, "DVI1"));
        bool sizeBelow = false;
        QList<QLabel *> boxes;
        for (QLabel *label : row.findChildren<QLabel *>()) {
            sizeBelow |= label->text().endsWith("\n3840x1080");
            if (label->property("source").toBool())
                boxes << label;
        }
        QVERIFY(sizeBelow);
        QCOMPARE(boxes.size(), 2);
        row.resize(320, 108);
        row.show();
        for (const char *layout : {"1", "0", "1"}) {
            row.updateSplite(layout);
            QCoreApplication::processEvents();
            const bool stacked = *layout == '0';
            QCOMPARE(boxes[0]->x() == boxes[1]->x(), stacked);
            QCOMPARE(boxes[0]->y() == boxes[1]->y(), !stacked);
        }
        QVERIFY(!boxes[1]->isEnabled());
    }
};

FPD_TEST(TestListRows)
#include "tst_listrows.moc"
