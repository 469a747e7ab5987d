// The pages as the builder makes them of the menu table, with their real rows.

#include "tests/unit/widget/pagerig.h"

#include <QTableWidget>

using namespace VASK;

namespace
{
/// A page that is not of the three trees is built on demand.
MenuDirectory *pageOf(ENUM_ConfigIndex config)
{
    if (builtPages().contains(config))
        return PageRig::page(g_config[config].object);
    return DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(config);
}
} // namespace

class TestMenuBuild : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_rig.reset(new PageRig(PageRig::Real));
        QVERIFY(m_rig->built);
        m_rig->home->Init();
    }
    void init() { m_rig->reset(); }

    void everyRowIsPlaced_data()
    {
        QTest::addColumn<int>("config");
        for (auto page = g_config.cbegin(); page != g_config.cend(); ++page)
            QTest::addRow("%d %s", int(page.key()), qPrintable(page->title)) << int(page.key());
    }
    void everyRowIsPlaced()
    {
        QFETCH(int, config);
        const ST_MenuConfig &info = g_config[ENUM_ConfigIndex(config)];
        MenuDirectory *page = pageOf(ENUM_ConfigIndex(config));
        QVERIFY(page);
        auto *table = page->findChild<QTableWidget *>();
        QCOMPARE(table->rowCount(), int(info.rows));
        QCOMPARE(page->currentRow(), 0);
        page->show();
        for (int i = 0; i < info.rows; ++i) {
            QWidget *widget = table->cellWidget(i, 0);
            QVERIFY2(widget, qPrintable(QString("row %1").arg(i)));
            ENUM_ObjectIndex number = ENUM_OBJECT_END;
            QVERIFY(dynamic_cast<VaskObject &>(*widget).GetObectIndex(number));
            QCOMPARE(int(number), int(info.rowsMap[i].itemObject));
            QCOMPARE(table->rowHeight(i), int(g_MenuXmlConfig[info.rowsMap[i].menuIndex].rowHeight));
            // What a row asks for fits beside the scroll bar.
            QVERIFY(widget->isVisible());
            QVERIFY(widget->width() <= table->viewport()->width());
        }
        page->hide();
    }

    void kindsAndPagesThatThereAreNot()
    {
        DirectoryEngineer builder(ENUM_DIRECTORY_ENGINEER);
        QVERIFY(!builder.buildMenu(CONFIG_END));
        QVERIFY(!builder.buildMenu(ENUM_ConfigIndex(100)));
        QVERIFY(!builder.buildMenu(ENUM_ConfigIndex(36)));
        // One row of a kind without a class: nothing of the page is left to be opened.
        const auto whole = g_config[CONFIG_Fn];
        g_config[CONFIG_Fn].rowsMap[2].controlType = ENUM_ControlType(8);
        QVERIFY(!DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(CONFIG_SystemSetting));
        g_config[CONFIG_Fn] = whole;
    }

    void aPageIsWiredByText()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_PIP1, m_rig->home);
        const QMap<QString, QString> wires{{SIGNAL(objectNameChanged(QString)), SLOT(hide())}};
        QCOMPARE(page->BuildHandshake(nullptr, wires), 0);
        DirectoryEngineer peer(ENUM_DIRECTORY_ENGINEER);
        QCOMPARE(page->BuildHandshake(&peer, wires), 0);
        QVERIFY(page->isVisible());
        peer.setObjectName("new");
        QVERIFY(!page->isVisible());
    }

    void aboutWithoutTheMakersSign()
    {
        m_rig->set(MENU_MakerSign, "0");
        QCOMPARE(DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(CONFIG_AboutUs)->rowCount(), 2);
    }

    void aboutGoesByTheMakersSign_data()
    {
        QTest::addColumn<QString>("sign");
        QTest::addColumn<int>("rows");
        QTest::newRow("on") << "1" << 6;
        QTest::newRow("off") << "0" << 2;
        QTest::newRow("on again") << "1" << 6;
    }
    void aboutGoesByTheMakersSign()
    {
        QFETCH(QString, sign);
        m_rig->set(MENU_MakerSign, sign);
        MenuDirectory *page = PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home);
        page->setCurrentRow(page->rowOfPage(ENUM_PAGE_AboutUs));
        m_rig->press(KEY_OK);
        auto *about = dynamic_cast<MenuDirectory *>(m_rig->shown());
        QVERIFY(about && about != page);
        QTEST(about->rowCount(), "rows");
        m_rig->press(KEY_ESC);
        QCOMPARE(m_rig->shown(), page);
    }

    void aFastKnobKeepsUp()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_MainLayer, m_rig->home);
        QElapsedTimer time;
        time.start();
        constexpr int steps = 50;
        for (int i = 0; i < steps; ++i) {
            m_rig->turn(i / 9 % 2 ? -1 : 1);
            page->repaint();
        }
        // Fifty steps a second with a wide reserve for the board.
        QVERIFY2(time.elapsed() < 250, qPrintable(QString::number(time.elapsed())));
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

QTEST_MAIN(TestMenuBuild)
#include "tst_menubuild.moc"
