// The cursor of a page, and the keys on its rows and from the home screen, as far as no test of the whole
// panel presses them.

#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"
#include "widget/page/cabinetfiles.h"

using namespace VASK;

namespace
{
QString line(const char *what, int item, const QString &rest = {})
{
    const QString text = QString("%1 %2").arg(what).arg(item);
    return rest.isEmpty() ? text : text + ' ' + rest;
}
const QString fiberConverter = "1";

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

class TestMenuKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig);
        m_rig->home->Init();
    }
    void init() { m_rig->reset(); }

    void turns_data()
    {
        // part: of the row with parts; -1 if there is none
        addColumns<QByteArray, int, QList<int>, int, int>({"rows", "start", "turns", "row", "part"});
        const auto row = [](const char *name, const char *rows, int start, const QList<int> &turns, int end,
                            int part = -1) {
            QTest::newRow(name) << QByteArray(rows) << start << turns << end << part;
        };
        const char *const ten = "bbbbbbbbbb";
        row("a step on", ten, 0, {1}, 1, -1);
        row("as many rows as the speed", ten, 1, {5, -2}, 4, -1);
        row("fast beyond the top", ten, 2, {-8}, 0, -1);
        row("fast beyond the end", ten, 5, {8, 8}, 9, -1);
        row("over a tip", "btb", 0, {1}, 2, -1);
        row("back over a tip", "btb", 2, {-1}, 0, -1);
        row("fast onto a tip", "bbtbbb", 0, {2}, 4, -1);
        row("a tip at the end", "bbt", 0, {1, 1}, 1, -1);
        row("fast to a tip at the end", "bbt", 0, {8}, 1, -1);
        row("a tip at the top", "tbb", 2, {-8, -1}, 1, -1);
        row("into the first part", "br", 0, {1}, 1, 1);
        row("from part to part", "br", 0, {1, 1}, 1, 2);
        row("fast into parts", "bbbr", 0, {8}, 3, 1);
        row("stays on the last part", "br", 0, {1, 1, 1}, 1, 2);
        row("fast beyond the last part", "br", 0, {1, 8}, 1, 2);
        row("out of the parts", "br", 0, {1, 1, -1, -1}, 0, 0);
        row("the rest of a fast turn moves on", "bbbr", 0, {3, 1, -3}, 1, 0);
        row("from below into the last part", "rb", 1, {-1}, 0, 2);
        row("fast beyond the first part", "rb", 1, {-1, -8}, 0, 1);
    }
    void turns()
    {
        m_rig->home->hide();
        const auto [rows, start, turns] = fetched<QByteArray, int, QList<int>>({"rows", "start", "turns"});
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
        m_rig->home->hide();
        page->show();
        page->setCurrentRow(1);
        for (int turn : {1, -1, -1, 8})
            m_rig->turn(turn);
        const QString on = line("Style", MENU_Color_Reset, "1"), off = line("Style", MENU_Color_Reset, "0");
        QCOMPARE(notes(), (QStringList{on, off, on, off, on}));
    }

    void rowsThatDoNotAnswer()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_HDMI1_Attributes, m_rig->home);
        m_rig->press(KEY_OK); // information
        QVERIFY(!page->isEditing());
        page->hide();

        page = PageRig::open(ENUM_PAGE_MainLayer, m_rig->home);
        page->setCurrentRow(2);
        notes().clear();
        m_rig->store->UpdataItemEnable(MENU_MainLayer_ScalingMode, false);
        m_rig->press(KEY_OK);
        QCOMPARE(notes(), QStringList{});
        QVERIFY(!page->isEditing());

        // An option that is off cannot be taken.
        m_rig->store->UpdataItemEnable(MENU_MainLayer_ScalingMode, true);
        m_rig->press(KEY_OK);
        NotingRow *list = PageRig::row(ENUM_ROW_MainLayer_ScalingMode);
        list->optionEnabled = false;
        m_rig->press(KEY_OK);
        QVERIFY(page->isEditing());
        list->optionEnabled = true;
        m_rig->press(KEY_OK);
        QVERIFY(!page->isEditing());
    }

    void scaleKey_data()
    {
        const DataRows<QString, bool, QString, QStringList> row{"scaling", "fullScreenAllowed", "mosaic",
                                                                "calls"};
        row("pixels to full", "1", true, "0", {line("Set", MENU_PIP2_ScalingMode, "0 1")});
        row("full not allowed", "2", false, "0", {});
        row("mosaic", "0", true, "1", {});
    }
    void scaleKey()
    {
        const auto [scaling, fullScreenAllowed, mosaic] =
            fetched<QString, bool, QString>({"scaling", "fullScreenAllowed", "mosaic"});
        m_rig->set(PARA_LowestLayer, "2");
        m_rig->set(MENU_ImageMosaic_Status, mosaic);
        ST_ItemInfo item;
        m_rig->store->GetMenuItem(MENU_PIP2_ScalingMode, item);
        item.value = scaling;
        item.params1["0"] = fullScreenAllowed ? optionEnable : optionDisable;
        m_rig->store->updataMenuItem(item.index, item);
        m_rig->press(KEY_SCALE);
        QTEST(notes(), "calls");
    }

    void fnOfABadStore()
    {
        m_rig->set(MENU_FnMode, "9");
        m_rig->press(KEY_FN);
        QCOMPARE(notes(), QStringList{});
        QCOMPARE(m_rig->shown(), m_rig->home);
    }

    /// The device may become one under a panel that is at work.
    void aConverterHearsOkEscAndTheLockOnly_data()
    {
        const DataRows<bool> row{"onPage"};
        row("at home", false);
        row("on a page", true);
    }
    void aConverterHearsOkEscAndTheLockOnly()
    {
        QFETCH(bool, onPage);
        const auto acts = [&](bool held, unsigned char key) {
            m_rig->reset();
            if (onPage)
                PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home)->setCurrentRow(0);
            for (ENUM_MenuIndex status : {MENU_MainLayer_Status, MENU_PIP1_Status, MENU_PIP2_Status})
                m_rig->set(status, "1");
            m_rig->set(MENU_WorkMode, fiberConverter);
            notes().clear();
            QWidget *before = m_rig->shown();
            held ? m_rig->hold(key) : m_rig->press(key);
            m_rig->home->SetLockState(PANEL_UNLOCK, false);
            return m_rig->shown() != before || !notes().isEmpty();
        };
        for (unsigned char key = KEY_MAIN; key <= KEY_PRESET; ++key) {
            const bool hidden = key == KEY_USER_HIDDEN_MENU || key == KEY_PRODUCT_HIDDEN_MENU;
            QVERIFY2(!acts(false, key), QByteArray::number(key));
            QVERIFY2(acts(true, key) == (hidden && !onPage), QByteArray::number(key));
        }
        QVERIFY(acts(false, KEY_OK));
        QCOMPARE(acts(false, KEY_ESC), onPage);
        QCOMPARE(acts(true, KEY_LOCK), onPage);
    }

    void escOfAnotherWindowDoesNotLeave()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home);
        page->slot_devchk_end();
        m_rig->send(KEY_RELEASED, KEY_ESC, 1);
        QCOMPARE(m_rig->shown(), page);
        // Its release may also have got lost: a whole ESC is the page's.
        page->slot_devchk_end();
        m_rig->press(KEY_ESC);
        QCOMPARE(m_rig->shown(), m_rig->home);
    }

    void fileList()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_ScreenSetting, m_rig->home);
        page->setCurrentRow(1);
        m_rig->press(KEY_OK);
        QCOMPARE(m_rig->messages, QStringList{"NoFiles"});
        QCOMPARE(m_rig->shown(), page);

        QStringList names;
        for (int i = 0; i < 11; ++i)
            names << QString("屏体 %1.rcfgx").arg(i);
        writeFiles(names);
        m_rig->press(KEY_OK);
        MenuDirectory *files = PageRig::page(ENUM_PAGE_LoadCabFiles);
        QCOMPARE(m_rig->shown(), files);
        QCOMPARE(files->rowCount(), MenuDirectory::fileRowCount);
        ST_ItemInfo last;
        m_rig->store->GetMenuItem(MENU_CabinetFile8, last);
        QCOMPARE(last.value, names[7]);

        // Fewer files than last time: the rest of the rows is gone, and so is the cursor from them.
        m_rig->turn(8);
        m_rig->press(KEY_ESC);
        writeFiles(names.mid(0, 3));
        m_rig->press(KEY_OK);
        QCOMPARE(files->rowCount(), 3);
        QCOMPARE(files->currentRow(), 2);
        bool there = true;
        m_rig->store->GetItemEnableSelect(MENU_CabinetFile4, there);
        QVERIFY(!there);
    }

private:
    static void writeFiles(const QStringList &names)
    {
        const QString folder = board::filePath("/usr/vask/etc/fpd/cabCfg");
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QByteArray index;
        for (const QString &name : names) {
            QByteArray field(reinterpret_cast<const char *>(name.utf16()), name.size() * 2);
            index += field.leftJustified(64, '\0');
            QFile file(folder + "/" + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QFile file(folder + "/AllCabCfgFileName");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(index);
    }

    std::unique_ptr<PageRig> m_rig;
};

FPD_TEST(TestMenuKeys)
#include "tst_menukeys.moc"
