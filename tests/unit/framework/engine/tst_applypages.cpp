// Pages that the engine opens, closes or fills by itself, what start-up puts on the home screen, and that the
// production test has the screen to itself.

#include "framework/input/keypadevent.h"
#include "framework/productiontest/productiontest.h"
#include "menu/keycodes.h"
#include "menu/pageindex.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"

#include <QSignalSpy>
#include <QTableView>
#include <memory>

using namespace VASK;

class TestApplyPages : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = new EngineRig;
        // The way from the menu to the custom pictures is not open on this model.
        DirectoryEngineer builder(ENUM_DIRECTORY_ENGINEER);
        m_rig->engine->CreateObjectToPool(ENUM_PAGE_CustomPictures, builder.buildMenu(CONFIG_CustomPictures));
    }

    void cleanupTestCase() { delete m_rig; }

    void init() { m_rig->reset(); }

    void cleanup()
    {
        ProductionTest::m_cur_step = FACTORY_STEP_NONE;
        for (ENUM_ObjectIndex number :
             {ENUM_PAGE_CustomPictures, ENUM_PAGE_SnapshotSlots, ENUM_PAGE_LoadCabFiles})
            if (page(number))
                page(number)->hide();
        QDir(m_rig->path("/usr/vask/etc/fpd/cabCfg")).removeRecursively();
    }

    void snapshotPageOpensAndCloses()
    {
        for (int slot = MENU_Test_CustomPicture1; slot <= MENU_Test_CustomPicture4; ++slot) {
            open(ENUM_PAGE_CustomPictures);
            m_rig->fromUser(MENU_Test_Snapshot, QString());
            QVERIFY(page(ENUM_PAGE_SnapshotSlots) && page(ENUM_PAGE_SnapshotSlots)->isVisible());
            QVERIFY(!page(ENUM_PAGE_CustomPictures)->isVisible());
            open(ENUM_PAGE_SnapshotSlots);
            m_rig->fromUser(ENUM_MenuIndex(slot), QString());
            QVERIFY(!page(ENUM_PAGE_SnapshotSlots)->isVisible());
            QVERIFY(page(ENUM_PAGE_CustomPictures)->isVisible());
        }
    }

    void listOfFilesFillsTheOpenPage()
    {
        for (int files : {1, 8, 9, 3, 0, 5}) {
            cleanup();
            bringFiles(files);
            open(ENUM_PAGE_LoadCabFiles);
            m_rig->fromDevice(EVENT_CabinetListLoaded, "1");
            const auto *table = page(ENUM_PAGE_LoadCabFiles)->findChild<QTableView *>();
            QVERIFY(table);
            for (int row = 0; row < MenuDirectory::fileRowCount; ++row) {
                const auto item = ENUM_MenuIndex(MENU_CabinetFile1 + row);
                QCOMPARE(table->isRowHidden(row), row >= files);
                QCOMPARE(m_rig->enabled(item), row < files);
                if (row >= files)
                    continue;
                QCOMPARE(m_rig->value(item), QString("wall%1.rcfgx").arg(row));
                QCOMPARE(m_rig->info(item).perBase, QString::number(row));
                const auto index = ENUM_ObjectIndex(ENUM_ROW_CabinetFile1 + row);
                QVERIFY(dynamic_cast<QWidget *>(ObjectPool::getInstance()->GetObject(index))->isEnabled());
            }
            for (int key : {KEY_KNOB_RIGHT, KEY_KNOB_LEFT}) { // a page without rows has nowhere to go
                KeypadEvent turn(KEY_PRESSED, key, 1, false);
                QCoreApplication::sendEvent(page(ENUM_PAGE_LoadCabFiles), &turn);
            }
        }
    }

    void listOfFilesLeavesAClosedPageAlone()
    {
        bringFiles(1);
        open(ENUM_PAGE_CustomPictures);
        const QString before = m_rig->value(MENU_CabinetFile1);
        m_rig->fromDevice(EVENT_CabinetListLoaded, "1");
        QCOMPARE(m_rig->value(MENU_CabinetFile1), before);
        QVERIFY(m_rig->enabled(MENU_CabinetFile8));
    }

    void layerFollowsItsInput()
    {
        const struct {
            int layer, signal;
            QList<int> told; ///< layer and state
        } rows[] = {{0, 3, {0, 0}}, {1, 0, {1, 1}}, {2, 2, {2, 1}}, {3, 3, {}}};
        for (const auto &row : rows) {
            m_rig->input(2, 105, row.signal, 1920, 1080, 16667);
            for (ENUM_MenuIndex source :
                 {MENU_MainLayer_InputSource, MENU_PIP1_InputSource, MENU_PIP2_InputSource})
                m_rig->set(source, "2");
            QSignalSpy layers(m_rig->engine, SIGNAL(signal_Layer_state(qint32, qint32)));
            m_rig->engine->SetLayerSrc_Res(row.layer);
            QList<int> told;
            for (const QList<QVariant> &one : layers)
                told << one.at(0).toInt() << one.at(1).toInt();
            QCOMPARE(told, row.told);
        }
    }

    void emptyHomeScreen()
    {
        auto shows = [this](const QString &label, const QString &picture) {
            const auto *found = m_rig->home->findChild<QLabel *>(label);
            const QPixmap wanted(":/resource/image/mainWindow/" + picture);
            return found && !wanted.isNull() &&
                   found->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
        };
        m_rig->home->SetNetState(NET_PORT1, NET_ENABLED);
        m_rig->home->SetSynModeState(SYN_FAILED);
        m_rig->home->SetConnectState(CONNECT_USB);
        QVERIFY(!shows("labNet1", "port1_disable.png"));
        QSignalSpy layers(m_rig->engine, SIGNAL(signal_Layer_state(qint32, qint32)));
        m_rig->engine->InitdefaultValue();
        m_rig->settle();
        QCOMPARE(layers.size(), 3);
        for (int layer = 0; layer < 3; ++layer)
            QCOMPARE(layers.at(layer), (QList<QVariant>{layer, 1}));
        for (int port = 1; port <= 6; ++port)
            QVERIFY(shows(QString("labNet%1").arg(port), QString("port%1_disable.png").arg(port)));
        QVERIFY(shows("SyncState", "syn_off.png"));
        QVERIFY(shows("labConnectState", "2960-Net_unconnected.png"));
    }

    void productionTestHasTheScreen()
    {
        ProductionTest::m_cur_step = FACTORY_STEP_IN_OUT;
        QVERIFY(!m_rig->engine->CreateDialog(MSG_OverLoad, {}));
        const std::unique_ptr<QDialog> result(m_rig->engine->CreateDialog(MSG_InOutTestSaveResult, {}));
        QVERIFY(result);
        // What needs no answer goes on without its messages; what asks counts as refused.
        m_rig->process(PARA_PortLink, 1);
        m_rig->fromUser(MENU_SavetoRVCard, "");
        m_rig->fromUser(MENU_Net_Reset, "");
        QCOMPARE(m_rig->messages, QStringList());
        QCOMPARE(m_rig->device->sent.take(), QStringList{"SavetoRVCard="});
    }

private:
    static MenuDirectory *page(ENUM_ObjectIndex number)
    {
        return dynamic_cast<MenuDirectory *>(ObjectPool::getInstance()->GetObject(number));
    }
    void open(ENUM_ObjectIndex number)
    {
        page(number)->show();
        QVERIFY(QTest::qWaitForWindowExposed(page(number)));
        QApplication::setActiveWindow(page(number));
        QCOMPARE(QApplication::activeWindow(), page(number));
    }

    /// The folder of the cabinet files, with so many files and their index.
    void bringFiles(int count)
    {
        const QString folder = m_rig->path("/usr/vask/etc/fpd/cabCfg");
        QVERIFY(QDir().mkpath(folder));
        constexpr int fieldBytes = 64;
        QByteArray index;
        for (int i = 0; i < count; ++i) {
            const QString name = QString("wall%1.rcfgx").arg(i);
            QFile file(folder + "/" + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QByteArray field(reinterpret_cast<const char *>(name.utf16()), name.size() * 2);
            index += field + QByteArray(fieldBytes - field.size(), '\0');
        }
        QFile file(folder + "/AllCabCfgFileName");
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(index), qint64(index.size()));
    }

    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestApplyPages)
#include "tst_applypages.moc"
