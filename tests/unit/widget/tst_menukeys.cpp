// OK and ESC on the rows of a page, and the dedicated keys from the home screen and from deep in the menu.

#include "tests/unit/widget/pagerig.h"
#include "widget/panellayers.h"

using namespace VASK;

namespace
{
QString line(const char *what, int item, const QString &rest = {})
{
    const QString text = QString("%1 %2").arg(what).arg(item);
    return rest.isEmpty() ? text : text + ' ' + rest;
}
const QString converter = "1";
const QString sendingCard = "2";
constexpr int home = ENUM_MAIN_WINDOW;
constexpr int menu = ENUM_MAIN_MENU;
} // namespace
Q_DECLARE_METATYPE(ENUM_MenuIndex)
Q_DECLARE_METATYPE(ENUM_ObjectIndex)

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

    void okAndEsc_data()
    {
        QTest::addColumn<ENUM_ObjectIndex>("page");
        QTest::addColumn<int>("row");
        QTest::addColumn<QByteArray>("keys"); ///< o OK, e ESC, l and r the knob
        QTest::addColumn<QStringList>("calls");
        QTest::addColumn<bool>("editing");
        const QString size = QString::number(MENU_MainLayer_HorWidth);
        QTest::newRow("number: knob between two OK")
            << ENUM_PAGE_MainLayer << 3 << QByteArray("orlo")
            << QStringList{"Number " + size + " 0 0", "DownTurned " + size + " 2", "UpTurned " + size + " 2",
                           "Number " + size + " 1 1"}
            << false;
        QTest::newRow("number: ESC keeps the value")
            << ENUM_PAGE_MainLayer << 3 << QByteArray("ore")
            << QStringList{"Number " + size + " 0 0", "DownTurned " + size + " 2", "Esc " + size + " 1"}
            << false;
        const QString list = QString::number(MENU_MainLayer_ScalingMode);
        QTest::newRow("list: OK takes")
            << ENUM_PAGE_MainLayer << 2 << QByteArray("orlo")
            << QStringList{"List " + list + " 0", "Down " + list, "Up " + list, "List " + list + " 1"}
            << false;
        QTest::newRow("list: ESC leaves it")
            << ENUM_PAGE_MainLayer << 2 << QByteArray("ore")
            << QStringList{"List " + list + " 0", "Down " + list, "EscList " + list} << false;
        const QString ip = QString::number(MENU_Net_IPAddress);
        QTest::newRow("address: only ESC ends it")
            << ENUM_PAGE_NetworkSettings << 1 << QByteArray("ooroe")
            << QStringList{"Enter " + ip, "Enter " + ip, "DownTurned " + ip + " 2", "Enter " + ip,
                           "Esc " + ip + " 0"}
            << false;
        QTest::newRow("button") << ENUM_PAGE_SystemSetting << 2 << QByteArray("o")
                                << QStringList{line("Enter", MENU_SelfTest)} << false;
        QTest::newRow("check") << ENUM_PAGE_DisplayControl << 1 << QByteArray("o")
                               << QStringList{line("Enter", MENU_Freeze)} << false;
        QTest::newRow("apply") << ENUM_PAGE_HDMIOutput << 3 << QByteArray("o")
                               << QStringList{line("Enter", MENU_Output_Apply)} << false;
        QTest::newRow("information does nothing")
            << ENUM_PAGE_HDMI1_Attributes << 0 << QByteArray("o") << QStringList{} << false;
    }
    void okAndEsc()
    {
        QFETCH(ENUM_ObjectIndex, page);
        QFETCH(int, row);
        QFETCH(QByteArray, keys);
        MenuDirectory *shown = PageRig::open(page, m_rig->home);
        shown->setCurrentRow(row);
        notes().clear();
        for (char key : keys) {
            if (key == 'o' || key == 'e')
                m_rig->press(key == 'o' ? KEY_OK : KEY_ESC);
            else
                m_rig->turn(key == 'r' ? 2 : -2);
        }
        QTEST(notes(), "calls");
        QTEST(shown->isEditing(), "editing");
        QVERIFY(shown->isVisible());
        QVERIFY(!MenuDirectory::RotateFlg);
    }

    void disabledRowsAndOptions()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_MainLayer, m_rig->home);
        page->setCurrentRow(2);
        m_rig->store->UpdataItemEnable(MENU_MainLayer_ScalingMode, false);
        m_rig->press(KEY_OK);
        QCOMPARE(notes(), QStringList{});
        QVERIFY(!page->isEditing());

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

    void brightnessGoesToTheCards()
    {
        PageRig::open(ENUM_MAIN_MENU, m_rig->home);
        for (unsigned char end : {KEY_OK, KEY_ESC}) {
            m_rig->device->sent.clear();
            m_rig->messages.clear();
            m_rig->press(KEY_OK);
            QVERIFY(MenuDirectory::bSetScreenBrightness);
            QCOMPARE(m_rig->device->sent, QStringList{});
            m_rig->press(end);
            QVERIFY(!MenuDirectory::bSetScreenBrightness);
            QCOMPARE(m_rig->device->sent, QStringList{"1002="});
            QCOMPARE(m_rig->messages, QStringList{"SaveingHardwareInfomation"});
        }
    }

    void questionBeforeAnAction()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_FactoryReset, m_rig->home);
        page->setCurrentRow(2);
        notes().clear();
        m_rig->answer = 0;
        m_rig->press(KEY_OK);
        QCOMPARE(m_rig->messages, QStringList{"IFResetAll"});
        QCOMPARE(notes(), QStringList{});
        m_rig->answer = 1;
        m_rig->press(KEY_OK);
        QCOMPARE(notes(), QStringList{line("Enter", MENU_ResetAll)});
    }

    void walkInAndOut()
    {
        m_rig->press(KEY_OK);
        QCOMPARE(m_rig->shown(), PageRig::page(ENUM_MAIN_MENU));
        m_rig->turn(1);
        m_rig->press(KEY_OK);
        m_rig->turn(2);
        m_rig->press(KEY_OK);
        QCOMPARE(int(MenuDirectory::m_currentObj), int(ENUM_PAGE_PIP2));
        QCOMPARE(int(MenuDirectory::m_currentLayer), 2);
        PageRig::page(ENUM_PAGE_PIP2)->setCurrentRow(8);
        m_rig->press(KEY_OK);
        QCOMPARE(int(MenuDirectory::m_currentLayer), 2);
        QCOMPARE(m_rig->wayHome(),
                 (QList<int>{ENUM_PAGE_PIP2Crop, ENUM_PAGE_PIP2, ENUM_PAGE_LayerSettings, menu, home}));
        QCOMPARE(PageRig::page(ENUM_PAGE_PIP2)->child(), PageRig::page(ENUM_PAGE_PIP2Crop));
        QCOMPARE(int(MenuDirectory::m_currentLayer), int(MenuDirectory::noLayer));
    }

    void deepLinks_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("held");
        QTest::addColumn<QList<int>>("way");
        const QList<int> layers{ENUM_PAGE_LayerSettings, menu, home};
        QTest::newRow("main layer") << int(KEY_MAIN) << false << QList<int>{ENUM_PAGE_MainLayer} + layers;
        QTest::newRow("PIP 1") << int(KEY_PIP1) << false << QList<int>{ENUM_PAGE_PIP1} + layers;
        QTest::newRow("PIP 2") << int(KEY_PIP2) << false << QList<int>{ENUM_PAGE_PIP2} + layers;
        const QList<int> inputs{ENUM_PAGE_InputSettings, menu, home};
        QTest::newRow("HDMI1") << int(KEY_INPUT1) << true << QList<int>{ENUM_PAGE_HDMI1} + inputs;
        QTest::newRow("HDMI2") << int(KEY_INPUT2) << true << QList<int>{ENUM_PAGE_HDMI2} + inputs;
        QTest::newRow("DVI") << int(KEY_INPUT3) << true << QList<int>{ENUM_PAGE_DVI} + inputs;
        QTest::newRow("SDI") << int(KEY_INPUT4) << true << QList<int>{ENUM_PAGE_SDI} + inputs;
        QTest::newRow("Fn") << int(KEY_FN) << false
                            << QList<int>{ENUM_PAGE_Synchronization, ENUM_PAGE_AdvancedSetting, menu, home};
        QTest::newRow("test") << int(KEY_TEST) << false
                              << QList<int>{ENUM_PAGE_TestPattern, ENUM_PAGE_DisplayControl, menu, home};
        QTest::newRow("preset") << int(KEY_PRESET) << false
                                << QList<int>{ENUM_PAGE_PresetSettings, menu, home};
    }
    void deepLinks()
    {
        QFETCH(int, key);
        QFETCH(bool, held);
        for (bool fromDeep : {false, true}) {
            m_rig->reset();
            if (fromDeep)
                PageRig::open(ENUM_PAGE_NetworkSettings, m_rig->home);
            if (held)
                m_rig->hold(static_cast<unsigned char>(key));
            else
                m_rig->press(static_cast<unsigned char>(key));
            QTEST(m_rig->wayHome(), "way");
            // Every cursor stands on the row that leads on.
            QFETCH(QList<int>, way);
            for (int i = 1; i < way.size() - 1; ++i) {
                MenuDirectory *page = PageRig::page(ENUM_ObjectIndex(way[i]));
                QCOMPARE(page->currentRow(), page->rowOfPage(ENUM_ObjectIndex(way[i - 1])));
            }
        }
    }

    void aLayerKeyTurnsItsLayerOn()
    {
        m_rig->press(KEY_PIP1);
        QVERIFY(notes().contains(line("Set", MENU_PIP1_Status, "1 1")));
        notes().clear();
        m_rig->set(MENU_PIP1_Status, "1");
        m_rig->press(KEY_PIP1);
        QVERIFY(!notes().contains(line("Set", MENU_PIP1_Status, "1 1")));
        m_rig->hold(KEY_PIP1);
        QVERIFY(notes().contains(line("Set", MENU_PIP1_Status, "0 1")));
        notes().clear();
        m_rig->set(MENU_PIP1_Status, "0");
        m_rig->hold(KEY_PIP1);
        QCOMPARE(notes(), QStringList{});
    }

    void sourcesGoToTheOpenLayer()
    {
        m_rig->press(KEY_INPUT1);
        QCOMPARE(notes(), QStringList{line("Set", MENU_MainLayer_InputSource, "0 1")});
        PageRig::open(ENUM_PAGE_PIP2, m_rig->home);
        notes().clear();
        m_rig->press(KEY_INPUT2);
        QCOMPARE(notes(), QStringList{line("Set", MENU_PIP2_InputSource, "1 1")});
        m_rig->set(MENU_WorkMode, sendingCard);
        notes().clear();
        m_rig->press(KEY_INPUT2);
        QCOMPARE(notes(), QStringList{line("Set", MENU_MainLayer_InputSource, "1 1")});
        m_rig->set(MENU_WorkMode, "0");
        ST_ItemInfo source;
        m_rig->store->GetMenuItem(MENU_PIP2_InputSource, source);
        source.params1["1"] = optionDisable;
        m_rig->store->updataMenuItem(MENU_PIP2_InputSource, source);
        notes().clear();
        m_rig->press(KEY_INPUT2);
        m_rig->press(KEY_INPUT8); // no such option
        QCOMPARE(notes(), QStringList{});
    }

    void scaleTogglesTheLowestLayer_data()
    {
        QTest::addColumn<QString>("lowest");
        QTest::addColumn<QString>("scaling");
        QTest::addColumn<bool>("fullScreenAllowed");
        QTest::addColumn<QString>("mosaic");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("full to custom")
            << "0"
            << "0" << true << "0" << QStringList{line("Set", MENU_MainLayer_ScalingMode, "2 1")};
        QTest::newRow("custom to full")
            << "1"
            << "2" << true << "0" << QStringList{line("Set", MENU_PIP1_ScalingMode, "0 1")};
        QTest::newRow("pixels to full")
            << "2"
            << "1" << true << "0" << QStringList{line("Set", MENU_PIP2_ScalingMode, "0 1")};
        QTest::newRow("full not allowed") << "0"
                                          << "2" << false << "0" << QStringList{};
        QTest::newRow("no layer") << "255"
                                  << "0" << true << "0" << QStringList{};
        QTest::newRow("mosaic") << "0"
                                << "0" << true << "1" << QStringList{};
    }
    void scaleTogglesTheLowestLayer()
    {
        QFETCH(QString, lowest);
        QFETCH(QString, scaling);
        QFETCH(bool, fullScreenAllowed);
        QFETCH(QString, mosaic);
        m_rig->set(PARA_LowestLayer, lowest);
        m_rig->set(MENU_ImageMosaic_Status, mosaic);
        for (const PanelLayer &layer : panelLayers) {
            ST_ItemInfo item;
            m_rig->store->GetMenuItem(layer.scaling, item);
            item.value = scaling;
            item.params1["0"] = fullScreenAllowed ? optionEnable : optionDisable;
            m_rig->store->updataMenuItem(layer.scaling, item);
        }
        m_rig->press(KEY_SCALE);
        QTEST(notes(), "calls");
    }

    void displayKeys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("fn");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("calls");
        const QStringList normal{line("Enter", MENU_Normal)};
        const QStringList freeze{line("Enter", MENU_Freeze)};
        const QStringList black{line("Enter", MENU_FTB)};
        QTest::newRow("freeze") << int(KEY_FREEZE) << "0"
                                << "0" << freeze;
        QTest::newRow("release") << int(KEY_FREEZE) << "0"
                                 << "1" << normal;
        QTest::newRow("freeze of black") << int(KEY_FREEZE) << "0"
                                         << "2" << freeze;
        QTest::newRow("no freeze of a pattern") << int(KEY_FREEZE) << "0"
                                                << "3" << QStringList{};
        QTest::newRow("end of a pattern") << int(KEY_TEST) << "0"
                                          << "3" << normal;
        QTest::newRow("pattern starts") << int(KEY_TEST) << "0"
                                        << "0" << QStringList{line("Enter", MENU_TestPattern)};
        QTest::newRow("no start from a held picture") << int(KEY_TEST) << "0"
                                                      << "1" << QStringList{};
        QTest::newRow("Fn black") << int(KEY_FN) << "2"
                                  << "0" << black;
        QTest::newRow("Fn from black") << int(KEY_FN) << "2"
                                       << "2" << normal;
        QTest::newRow("Fn freeze") << int(KEY_FN) << "3"
                                   << "0" << freeze;
        QTest::newRow("Fn test ends") << int(KEY_FN) << "4"
                                      << "3" << normal;
        QTest::newRow("Fn of a bad store") << int(KEY_FN) << "9"
                                           << "0" << QStringList{};
    }
    void displayKeys()
    {
        QFETCH(int, key);
        QFETCH(QString, fn);
        QFETCH(QString, mode);
        m_rig->set(MENU_FnMode, fn);
        m_rig->set(PARA_DisplayMode, mode);
        m_rig->press(static_cast<unsigned char>(key));
        QTEST(notes(), "calls");
        m_rig->set(PARA_DisplayMode, "0");
    }

    void workModes_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("held");
        // Does the key do anything? At home and on a page, each in the modes 0, 1, 2.
        QTest::addColumn<QByteArray>("atHome");
        QTest::addColumn<QByteArray>("onPage");
        struct Keys {
            const char *name;
            QList<ENUM_KeyCode> keys;
            bool held;
            const char *atHome, *onPage;
        };
        const QList<ENUM_KeyCode> inputs{KEY_INPUT1, KEY_INPUT2, KEY_INPUT3, KEY_INPUT4};
        const QList<ENUM_KeyCode> bareInputs{KEY_INPUT6, KEY_INPUT7, KEY_INPUT8};
        const Keys groups[] = {
            {"main layer", {KEY_MAIN}, false, "y-y", "y--"},
            {"PIP", {KEY_PIP1, KEY_PIP2}, false, "y--", "y--"},
            {"layer off", {KEY_MAIN, KEY_PIP1, KEY_PIP2}, true, "y-y", "y--"},
            {"scale", {KEY_SCALE}, false, "y--", "y--"},
            {"scale or Fn held", {KEY_SCALE, KEY_FN}, true, "---", "---"},
            {"source", inputs, false, "y-y", "y-y"},
            {"source that no layer can have", bareInputs, false, "---", "---"},
            {"input page", inputs, true, "y-y", "y-y"},
            {"input without a page", bareInputs, true, "--y", "--y"},
            {"Fn", {KEY_FN}, false, "y-y", "y-y"},
            {"freeze", {KEY_FREEZE}, false, "y-y", "y-y"},
            {"test", {KEY_TEST}, false, "y-y", "y-y"},
            {"preset", {KEY_PRESET}, false, "y--", "y--"},
            {"preset held, as its release comes extra", {KEY_PRESET}, true, "---", "---"},
            {"hidden menu", {KEY_USER_HIDDEN_MENU, KEY_PRODUCT_HIDDEN_MENU}, true, "yyy", "---"},
            {"lock", {KEY_LOCK}, true, "---", "yyy"},
            {"OK", {KEY_OK}, false, "yyy", "yyy"},
            {"ESC", {KEY_ESC}, false, "---", "yyy"},
        };
        for (const Keys &group : groups)
            for (ENUM_KeyCode key : group.keys)
                QTest::addRow("%s %d", group.name, key)
                    << int(key) << group.held << QByteArray(group.atHome) << QByteArray(group.onPage);
    }
    void workModes()
    {
        QFETCH(int, key);
        QFETCH(bool, held);
        for (bool onPage : {false, true}) {
            QByteArray acts;
            for (const char *mode : {"0", "1", "2"}) {
                m_rig->reset();
                for (ENUM_MenuIndex status : {MENU_MainLayer_Status, MENU_PIP1_Status, MENU_PIP2_Status})
                    m_rig->set(status, "1");
                if (onPage)
                    PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home)->setCurrentRow(0);
                m_rig->set(MENU_WorkMode, mode);
                notes().clear();
                QWidget *before = m_rig->shown();
                if (held)
                    m_rig->hold(static_cast<unsigned char>(key));
                else
                    m_rig->press(static_cast<unsigned char>(key));
                acts += m_rig->shown() != before || !notes().isEmpty() ? 'y' : '-';
                m_rig->home->SetLockState(PANEL_UNLOCK, false);
            }
            if (onPage)
                QTEST(acts, "onPage");
            else
                QTEST(acts, "atHome");
        }
    }

    void nothingButKnobOkAndEscWhileEditing()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_MainLayer, m_rig->home);
        page->setCurrentRow(3);
        m_rig->press(KEY_OK);
        notes().clear();
        for (unsigned char key = 2; key <= KEY_PRESET; ++key) {
            m_rig->press(key);
            m_rig->hold(key);
        }
        m_rig->hold(KEY_LOCK);
        QCOMPARE(notes(), QStringList{});
        QCOMPARE(m_rig->shown(), page);
        QVERIFY(!MainWindow::m_bLockFlag);
    }

    void escOfAnotherWindowDoesNotLeave()
    {
        MenuDirectory *page = PageRig::open(ENUM_PAGE_SystemSetting, m_rig->home);
        page->slot_devchk_end();
        m_rig->press(KEY_ESC);
        QCOMPARE(m_rig->shown(), page);
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
        QCOMPARE(last.perBase, QString("7"));
        QVERIFY(notes().contains(line("Tag", MENU_CabinetFile8, names[7])));

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

    void lockFromAPageGoesHome()
    {
        PageRig::open(ENUM_PAGE_PIP2Crop, m_rig->home);
        m_rig->hold(KEY_LOCK);
        QCOMPARE(m_rig->shown(), m_rig->home);
        QVERIFY(MainWindow::m_bLockFlag);
        QCOMPARE(int(MenuDirectory::m_currentLayer), int(MenuDirectory::noLayer));
        m_rig->hold(KEY_LOCK);
        QVERIFY(!MainWindow::m_bLockFlag);
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

QTEST_MAIN(TestMenuKeys)
#include "tst_menukeys.moc"
