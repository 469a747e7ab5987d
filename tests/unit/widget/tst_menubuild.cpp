// The pages as the builder makes them of the menu table, with their real rows.

#include "tests/testprogram.h"
#include "tests/unit/rig/pagerig.h"

#include <QTableWidget>

using namespace VASK;

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

    void aboutGoesByTheMakersSign_data()
    {
        const DataRows<QString, int> row{"sign", "rows"};
        row("on", "1", 6);
        row("off", "0", 2);
        row("on again", "1", 6);
    }
    void aboutGoesByTheMakersSign()
    {
        QFETCH(QString, sign);
        m_rig->set(MENU_MakerSign, sign);
        if (sign == "0")
            QCOMPARE(DirectoryEngineer(ENUM_DIRECTORY_ENGINEER).buildMenu(CONFIG_AboutUs)->rowCount(), 2);
        MenuDirectory *page = PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home);
        page->setCurrentRow(page->rowOfPage(ENUM_PAGE_AboutUs));
        m_rig->press(KEY_OK);
        auto *about = dynamic_cast<MenuDirectory *>(m_rig->shown());
        QVERIFY(about && about != page);
        QTEST(about->rowCount(), "rows");
        m_rig->press(KEY_ESC);
        QCOMPARE(m_rig->shown(), page);
    }

private:
    std::unique_ptr<PageRig> m_rig;
};

FPD_TEST(TestMenuBuild)
#include "tst_menubuild.moc"
