// The Ethernet ports on the home screen, with their backup and the optical links, as the device reports them.

#include "enginerig.h"
#include "framework/productiontest/productiontest.h"
#include "menu/itemindex.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
constexpr int portCount = 6;
const char *const portLabels[] = {"labNet1", "labNet2", "labNet3", "labNet4", "labNet5", "labNet6"};

ENUM_MenuIndex ofPort(int first, int port)
{
    return ENUM_MenuIndex(first + port);
}
using Values = QMap<int, int>;
} // namespace
Q_DECLARE_METATYPE(Values)

class TestApplyPorts : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();
    void cleanup() { ProductionTest::m_cur_step = FACTORY_STEP_NONE; }

    void portShowsItsState_data();
    void portShowsItsState();
    void restingFiberHidesNoPort();
    void opticalLinkWithoutInputShowsItsPorts();
    void deviceBackupStaysWhilePortsDiffer();
    void opticalBackupByMode_data();
    void opticalBackupByMode();
    void linkedPortPassesTheTest_data();
    void linkedPortPassesTheTest();

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
    addColumns<int, Values, QString>({"last", "values", "shown"}); // the array that reports last, the others
    const QString off = "port_disable";
    addRow("no link, though backup", PARA_PortBackup, Values{{PARA_PortBackup, 1}}, off);
    addRow("backup engaged", PARA_PortBackupEngaged, Values{{PARA_PortLink, 1}, {PARA_PortBackupEngaged, 1}},
           "hotbackupport_enable");
    addRow("optical backup", PARA_OPT1PortLink, Values{{PARA_OPT1PortLink, 1}, {PARA_PortBackup, 1}},
           "hotbackupport_enable");
    addRow("own link gone, optical link", PARA_PortLink, Values{{PARA_OPT1PortLink, 1}}, off);
}

void TestApplyPorts::portShowsItsState()
{
    QFETCH(int, last);
    QFETCH(Values, values);
    const int port = 4;
    const int value = values.take(last);
    for (auto other = values.cbegin(); other != values.cend(); ++other)
        m_rig->process(ofPort(other.key(), port), other.value());
    m_rig->fromDevice(ofPort(last, port), QString::number(value));
    QTEST(picture(port), "shown");
    QCOMPARE(picture(port - 1), QString("port_disable"));
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

/// From backup, too; and a value of the user's says nothing of the device.
void TestApplyPorts::deviceBackupStaysWhilePortsDiffer()
{
    for (int port = 0; port < portCount; ++port)
        m_rig->fromUser(ofPort(PARA_PortBackup, port), "1");
    QCOMPARE(m_rig->value(MENU_DeviceBackup), QString("0"));
    m_rig->fromDevice(PARA_PortBackup, "1");
    QCOMPARE(m_rig->value(MENU_DeviceBackup), QString("1"));
    m_rig->fromDevice(PARA_PortBackup, "0");
    QCOMPARE(m_rig->value(MENU_DeviceBackup), QString("1"));
}

void TestApplyPorts::opticalBackupByMode_data()
{
    addColumns<int, QString, QString>({"trigger", "mode", "engaged"}); // of ports 1 to 6; two are backups
    addRow("device backup, backup mode", MENU_DeviceBackup, "0", "001111");
    addRow("device backup, copy mode", MENU_DeviceBackup, "1", "110000");
    addRow("mode changes to copy", MENU_OPT2Mode, "1", "110000");
    addRow("optical port, backup mode", PARA_OPT2PortLink + 2, "0", "001000");
    addRow("optical port, copy mode", PARA_OPT2PortLink + 1, "1", "010000");
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
    QCOMPARE(m_rig->device->sent.take(), QStringList{"DeviceBackup=1"});
}

void TestApplyPorts::linkedPortPassesTheTest_data()
{
    addColumns<int, QString, int>({"step", "link", "passed"});
    addRow("no test", FACTORY_STEP_NONE, "1", -1);
    addRow("keys under test", FACTORY_STEP_KEYS, "1", -1);
    addRow("link", FACTORY_STEP_IN_OUT, "1", 8);
    addRow("no link", FACTORY_STEP_IN_OUT, "0", -1);
}

void TestApplyPorts::linkedPortPassesTheTest()
{
    QFETCH(int, step);
    QFETCH(QString, link);
    ProductionTest::m_cur_step = step;
    int passed = -1;
    const auto connection = connect(m_rig->engine, &ParaProcess::signal_update_menuitem, this,
                                    [&passed](en_inout_test_index index, en_item_state state) {
                                        passed = state == ITEM_PASSED ? int(index) : -2;
                                    });
    m_rig->fromDevice(ofPort(PARA_PortLink, 5), link);
    disconnect(connection);
    QTEST(passed, "passed");
}

FPD_TEST(TestApplyPorts)

#include "tst_applyports.moc"
