// Pages that the engine opens and closes by itself, what start-up puts on the home screen, and that the
// production test has the screen to itself.

#include "framework/productiontest/productiontest.h"
#include "menu/pageindex.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"

#include <QSignalSpy>
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
        for (ENUM_ObjectIndex number : {ENUM_PAGE_CustomPictures, ENUM_PAGE_SnapshotSlots})
            if (page(number))
                page(number)->hide();
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

    EngineRig *m_rig = nullptr;
};

FPD_TEST(TestApplyPages)
#include "tst_applypages.moc"
