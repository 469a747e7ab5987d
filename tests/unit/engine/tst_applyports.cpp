// The Ethernet ports on the home screen, with their backup and the optical links, as the device reports them.

#include "enginerig.h"
#include "widget/dialog_factory.h"

using namespace VASK;

namespace
{
constexpr int portCount = 6;
const char *const portLabels[] = {"labNet1", "labNet2", "labNet3", "labNet4", "labNet5", "labNet6"};

ENUM_MenuIndex ofPort(int first, int port)
{
    return ENUM_MenuIndex(first + port);
}
} // namespace

class TestApplyPorts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();
    void cleanup() { Factory::m_cur_step = FACTORY_STEP_NONE; }

    void portShowsItsState_data();
    void portShowsItsState();
    void engagedBackupBlinks();
    void restingFiberHidesNoPort();
    void opticalLinkWithoutInputShowsItsPorts();
    void deviceBackupFollowsAllPorts_data();
    void deviceBackupFollowsAllPorts();
    void userValueLeavesDeviceBackup();
    void opticalBackupByMode_data();
    void opticalBackupByMode();
    void linkedPortPassesTheTest_data();
    void linkedPortPassesTheTest();
    void portsBeyondTheScreenAreOnlyStored();

private:
    /// The picture of a port by its state: disabled, enabled, backup.
    QString picture(int port) const
    {
        const QPixmap shown = m_rig->home->findChild<QLabel *>(portLabels[port])->pixmap(Qt::ReturnByValue);
        for (const char *state : {"port%1_disable", "port%1_enable", "hotbackupport%1_enable"}) {
            const QString name = QString(state).replace("%1", QString::number(port + 1));
            if (shown.toImage() == QPixmap(":/resource/image/mainWindow/" + name + ".png").toImage())
                return QString(state).remove("%1");
        }
        return "none";
    }
    EngineRig *m_rig = nullptr;
};

void TestApplyPorts::init()
{
    m_rig->reset();
    for (int port = 0; port < portCount; ++port)
        m_rig->fromDevice(ofPort(PARA_PortLink, port), "0");
    m_rig->forget();
}

void TestApplyPorts::portShowsItsState_data()
{
    QTest::addColumn<int>("first"); ///< array that reports last
    QTest::addColumn<QString>("ethernet");
    QTest::addColumn<QString>("optical");
    QTest::addColumn<QString>("backup");
    QTest::addColumn<QString>("engaged"); ///< own, and of the first optical link
    QTest::addColumn<QString>("shown");
    const QString off = "port_disable";
    const QString on = "port_enable";
    const QString second = "hotbackupport_enable";
    QTest::newRow("no link") << int(PARA_PortLink) << "0"
                             << "0"
                             << "0"
                             << "00" << off;
    QTest::newRow("no link, though backup") << int(PARA_PortBackup) << "0"
                                            << "0"
                                            << "1"
                                            << "00" << off;
    QTest::newRow("link") << int(PARA_PortLink) << "1"
                          << "0"
                          << "0"
                          << "00" << on;
    QTest::newRow("backup") << int(PARA_PortBackup) << "1"
                            << "0"
                            << "1"
                            << "00" << second;
    QTest::newRow("backup engaged") << int(PARA_PortBackupEngaged) << "1"
                                    << "0"
                                    << "0"
                                    << "10" << second;
    QTest::newRow("optical link") << int(PARA_OPT1PortLink) << "0"
                                  << "1"
                                  << "0"
                                  << "00" << on;
    QTest::newRow("optical backup") << int(PARA_OPT1PortLink) << "0"
                                    << "1"
                                    << "1"
                                    << "00" << second;
    QTest::newRow("optical engaged") << int(PARA_OPT1BackupEngaged) << "0"
                                     << "1"
                                     << "0"
                                     << "01" << second;
    QTest::newRow("own link gone, optical link") << int(PARA_PortLink) << "0"
                                                 << "1"
                                                 << "0"
                                                 << "00" << off;
}

void TestApplyPorts::portShowsItsState()
{
    QFETCH(int, first);
    QFETCH(QString, ethernet);
    QFETCH(QString, optical);
    QFETCH(QString, backup);
    QFETCH(QString, engaged);
    const int port = 4;
    QMap<int, QString> values{{PARA_PortLink, ethernet},
                              {PARA_OPT1PortLink, optical},
                              {PARA_PortBackup, backup},
                              {PARA_PortBackupEngaged, engaged.mid(0, 1)},
                              {PARA_OPT1BackupEngaged, engaged.mid(1, 1)}};
    const QString last = values.take(first);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_rig->process(ofPort(value.key(), port), value.value().toInt());
    m_rig->fromDevice(ofPort(first, port), last);
    QTEST(picture(port), "shown");
    QCOMPARE(picture(port - 1), QString("port_disable"));
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyPorts::engagedBackupBlinks()
{
    m_rig->fromDevice(ofPort(PARA_PortLink, 0), "1");
    m_rig->fromDevice(ofPort(PARA_PortLink, 1), "1");
    m_rig->fromDevice(ofPort(PARA_PortBackup, 1), "1");
    m_rig->fromDevice(ofPort(PARA_PortBackupEngaged, 0), "1");
    QStringList shown;
    for (int tick = 0; tick < 2; ++tick) {
        m_rig->home->slot_Twinkledisplay();
        shown << picture(0);
        QCOMPARE(picture(1), QString("hotbackupport_enable"));
    }
    shown.sort();
    QCOMPARE(shown, (QStringList{"hotbackupport_enable", "port_enable"}));
    m_rig->fromDevice(ofPort(PARA_PortBackupEngaged, 0), "0");
    m_rig->home->slot_Twinkledisplay();
    QCOMPARE(picture(0), QString("port_enable"));
}

void TestApplyPorts::restingFiberHidesNoPort()
{
    m_rig->fromDevice(ofPort(PARA_PortLink, 2), "1");
    m_rig->fromDevice(ofPort(PARA_OPT1PortLink, 2), "0");
    m_rig->fromDevice(ofPort(PARA_OPT1BackupEngaged, 2), "0");
    QCOMPARE(picture(2), QString("port_enable"));
}

void TestApplyPorts::opticalLinkWithoutInputShowsItsPorts()
{
    m_rig->process(ofPort(PARA_OPT1PortLink, 0), 1);
    m_rig->process(ofPort(PARA_PortLink, 1), 1);
    m_rig->input(4, 233, 3, 1920, 1080, 16667);
    m_rig->fromDevice(PARA_OPT1Link, "1"); // the fiber brings a picture: only own links count
    QCOMPARE(picture(0) + picture(1), QString("port_disableport_enable"));
    m_rig->input(4, 233, 0, 0, 0, 0);
    m_rig->fromDevice(PARA_OPT1Link, "1"); // known already
    QCOMPARE(picture(0), QString("port_disable"));
    m_rig->fromDevice(PARA_OPT1Link, "0");
    QCOMPARE(picture(0) + picture(1), QString("port_enableport_enable"));
}

void TestApplyPorts::deviceBackupFollowsAllPorts_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("ports");
    QTest::addColumn<QString>("after");
    QTest::newRow("all backup") << "0"
                                << "111111"
                                << "1";
    QTest::newRow("all primary") << "1"
                                 << "000000"
                                 << "0";
    QTest::newRow("mixed, was primary") << "0"
                                        << "111110"
                                        << "0";
    QTest::newRow("mixed, was backup") << "1"
                                       << "011111"
                                       << "1";
}

void TestApplyPorts::deviceBackupFollowsAllPorts()
{
    QFETCH(QString, before);
    QFETCH(QString, ports);
    m_rig->set(MENU_DeviceBackup, before);
    for (int port = 1; port < portCount; ++port)
        m_rig->process(ofPort(PARA_PortBackup, port), ports.mid(port, 1).toInt());
    m_rig->fromDevice(PARA_PortBackup, ports.mid(0, 1));
    QTEST(m_rig->value(MENU_DeviceBackup), "after");
    const QString told = QString("1048=%1").arg(m_rig->value(MENU_DeviceBackup));
    QCOMPARE(m_rig->reloaded.take().contains(told), ports.count('1') % portCount == 0);
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyPorts::userValueLeavesDeviceBackup()
{
    for (int port = 0; port < portCount; ++port)
        m_rig->fromUser(ofPort(PARA_PortBackup, port), "1");
    QCOMPARE(m_rig->value(MENU_DeviceBackup), QString("0"));
}

void TestApplyPorts::opticalBackupByMode_data()
{
    QTest::addColumn<int>("trigger");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("engaged"); ///< of ports 1 to 6; only the first two are backups
    QTest::newRow("device backup, backup mode") << int(MENU_DeviceBackup) << "0"
                                                << "001111";
    QTest::newRow("device backup, copy mode") << int(MENU_DeviceBackup) << "1"
                                              << "110000";
    QTest::newRow("mode changes to copy") << int(MENU_OPT2Mode) << "1"
                                          << "110000";
    QTest::newRow("optical port, backup mode") << PARA_OPT2PortLink + 2 << "0"
                                               << "001000";
    QTest::newRow("optical port, copy mode") << PARA_OPT2PortLink + 1 << "1"
                                             << "010000";
}

void TestApplyPorts::opticalBackupByMode()
{
    QFETCH(int, trigger);
    QFETCH(QString, mode);
    m_rig->process(ofPort(PARA_PortBackup, 0), 1);
    m_rig->process(ofPort(PARA_PortBackup, 1), 1);
    m_rig->set(MENU_OPT2Mode, mode);
    m_rig->fromDevice(ENUM_MenuIndex(trigger), trigger == MENU_OPT2Mode ? mode : QString("1"));
    QString engaged;
    for (int port = 0; port < portCount; ++port)
        engaged += m_rig->value(ofPort(PARA_OPT2BackupEngaged, port));
    QTEST(engaged, "engaged");
    m_rig->forget();
    m_rig->fromUser(MENU_DeviceBackup, "1");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1048=1"});
}

void TestApplyPorts::linkedPortPassesTheTest_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("link");
    QTest::addColumn<int>("passed");
    QTest::newRow("no test") << int(FACTORY_STEP_NONE) << "1" << -1;
    QTest::newRow("keys under test") << int(FACTORY_STEP_KEYS) << "1" << -1;
    QTest::newRow("link") << int(FACTORY_STEP_IN_OUT) << "1" << 8;
    QTest::newRow("no link") << int(FACTORY_STEP_IN_OUT) << "0" << -1;
}

void TestApplyPorts::linkedPortPassesTheTest()
{
    QFETCH(int, step);
    QFETCH(QString, link);
    Factory::m_cur_step = step;
    int passed = -1;
    const auto connection = connect(m_rig->engine, &ParaProcess::signal_update_menuitem, this,
                                    [&passed](en_inout_test_index index, en_item_state state) {
                                        passed = state == ITEM_PASSED ? int(index) : -2;
                                    });
    m_rig->fromDevice(ofPort(PARA_PortLink, 5), link);
    disconnect(connection);
    QTEST(passed, "passed");
}

void TestApplyPorts::portsBeyondTheScreenAreOnlyStored()
{
    for (int first : {PARA_PortLink, PARA_PortBackup, PARA_OPT1PortLink, PARA_PortActive})
        for (int port = portCount; port < 10; ++port)
            m_rig->fromDevice(ofPort(first, port), "1");
    QCOMPARE(m_rig->value(ofPort(PARA_OPT1PortLink, 9)), QString("1"));
    for (int port = 0; port < portCount; ++port)
        QCOMPARE(picture(port), QString("port_disable"));
}

QTEST_MAIN(TestApplyPorts)
#include "tst_applyports.moc"
