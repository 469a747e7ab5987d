// The cursor of a page: how far a turn takes it, what it jumps over and what it marks.

#include "tests/unit/widget/pagerig.h"

using namespace VASK;

namespace
{
/// A page of our own, a row a letter: b button, t tip, a apply, r apply and reset.
ST_MenuConfig pageOf(const QByteArray &rows)
{
    struct Kind {
        char letter;
        ENUM_ControlType type;
        ENUM_MenuIndex item;
    };
    static const Kind kinds[] = {{'b', TYPE_BUTTON, MENU_SaveIP},
                                 {'t', TYPE_TIP, MENU_TipReset},
                                 {'a', TYPE_APPLY, MENU_Color_Reset},
                                 {'r', TYPE_APPLYRESET, MENU_Net_Apply}};
    // Numbers that no page of the table uses.
    int object = 2000;
    QMap<int, st_MenuItemInfo> map;
    for (char letter : rows)
        for (const Kind &kind : kinds)
            if (kind.letter == letter)
                map.insert(map.size(),
                           {ENUM_ObjectIndex(object++), ENUM_OBJECT_END, kind.type, kind.item, CONFIG_END});
    return {ENUM_ObjectIndex(2999), 320, static_cast<signed char>(rows.size()), "Title", "*{}", map, {}};
}
} // namespace

class TestMenuCursor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_rig.reset(new PageRig); }
    void init()
    {
        m_rig->reset();
        m_rig->home->hide();
    }

    void turns_data()
    {
        QTest::addColumn<QByteArray>("rows");
        QTest::addColumn<int>("start");
        QTest::addColumn<QList<int>>("turns");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("part"); ///< of the row with parts; -1 if there is none
        const QByteArray ten(10, 'b');
        QTest::newRow("a step on") << ten << 0 << QList<int>{1} << 1 << -1;
        QTest::newRow("as many rows as the speed") << ten << 1 << QList<int>{5, -2} << 4 << -1;
        QTest::newRow("fast beyond the top") << ten << 2 << QList<int>{-8} << 0 << -1;
        QTest::newRow("fast beyond the end") << ten << 5 << QList<int>{8, 8} << 9 << -1;
        QTest::newRow("over a tip") << QByteArray("btb") << 0 << QList<int>{1} << 2 << -1;
        QTest::newRow("back over a tip") << QByteArray("btb") << 2 << QList<int>{-1} << 0 << -1;
        QTest::newRow("fast onto a tip") << QByteArray("bbtbbb") << 0 << QList<int>{2} << 4 << -1;
        QTest::newRow("a tip at the end") << QByteArray("bbt") << 0 << QList<int>{1, 1} << 1 << -1;
        QTest::newRow("fast to a tip at the end") << QByteArray("bbt") << 0 << QList<int>{8} << 1 << -1;
        QTest::newRow("a tip at the top") << QByteArray("tbb") << 2 << QList<int>{-8, -1} << 1 << -1;
        QTest::newRow("into the first part") << QByteArray("br") << 0 << QList<int>{1} << 1 << 1;
        QTest::newRow("from part to part") << QByteArray("br") << 0 << QList<int>{1, 1} << 1 << 2;
        QTest::newRow("fast into parts") << QByteArray("bbbr") << 0 << QList<int>{8} << 3 << 1;
        QTest::newRow("stays on the last part") << QByteArray("br") << 0 << QList<int>{1, 1, 1} << 1 << 2;
        QTest::newRow("fast beyond the last part") << QByteArray("br") << 0 << QList<int>{1, 8} << 1 << 2;
        QTest::newRow("out of the parts") << QByteArray("br") << 0 << QList<int>{1, 1, -1, -1} << 0 << 0;
        QTest::newRow("the rest of a fast turn moves on")
            << QByteArray("bbbr") << 0 << QList<int>{3, 1, -3} << 1 << 0;
        QTest::newRow("from below into the last part") << QByteArray("rb") << 1 << QList<int>{-1} << 0 << 2;
        QTest::newRow("fast beyond the first part") << QByteArray("rb") << 1 << QList<int>{-1, -8} << 0 << 1;
    }
    void turns()
    {
        QFETCH(QByteArray, rows);
        QFETCH(int, start);
        QFETCH(QList<int>, turns);
        const std::unique_ptr<MenuDirectory> page(PageRig::makePage(pageOf(rows)));
        page->show();
        page->setCurrentRow(start);
        for (int turn : turns)
            m_rig->turn(turn);
        QTEST(page->currentRow(), "row");
        QTEST(rows.contains('r') ? PageRig::row(ENUM_ObjectIndex(2000 + rows.indexOf('r')))->part : -1,
              "part");
    }

    void applyIsMarkedWhileTheCursorIsOnIt()
    {
        const std::unique_ptr<MenuDirectory> page(PageRig::makePage(pageOf("aba")));
        page->show();
        page->setCurrentRow(1);
        const QString item = QString::number(MENU_Color_Reset);
        m_rig->turn(1);
        QCOMPARE(notes(), QStringList{"Style " + item + " 1"});
        notes().clear();
        m_rig->turn(-1);
        QCOMPARE(notes(), QStringList{"Style " + item + " 0"});
        notes().clear();
        m_rig->turn(-1);
        m_rig->turn(8);
        QCOMPARE(notes(),
                 (QStringList{"Style " + item + " 1", "Style " + item + " 0", "Style " + item + " 1"}));
    }

    void onlyFilesThatAreThereAreReached()
    {
        MenuDirectory *files = PageRig::open(ENUM_PAGE_LoadCabFiles, m_rig->home);
        files->showFiles({"a", "b", "c"});
        for (int i = 0; i < 5; ++i)
            m_rig->turn(1);
        QCOMPARE(files->currentRow(), 2);
        files->setRowCount(MenuDirectory::fileRowCount);
        m_rig->turn(8);
        QCOMPARE(files->currentRow(), 2);
    }

    void cursorIsAlwaysVisible()
    {
        MenuDirectory *menu = PageRig::open(ENUM_MAIN_MENU, m_rig->home);
        auto *table = menu->findChild<QTableWidget *>();
        for (int i = 0; i < 9; ++i) {
            m_rig->turn(1);
            const QRect row(QPoint(0, table->rowViewportPosition(i + 1)), QSize(1, table->rowHeight(i + 1)));
            QVERIFY(table->viewport()->rect().contains(row));
            QVERIFY(menu->rect().contains(table->geometry()));
        }
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

QTEST_MAIN(TestMenuCursor)
#include "tst_menucursor.moc"
