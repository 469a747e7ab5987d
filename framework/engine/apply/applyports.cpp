// Reports about the Ethernet ports and the optical links, and the backup that the device forms of them.

#include "framework/engine/parachange.h"

#include "framework/productiontest/productiontest.h"
#include "framework/ui/homestates.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// The ports that this model has, of those that the device tells.
constexpr Family shownPorts{1, NET_PORT_COUNT};
constexpr Family opticalLinks{1, 2};

void applyPortLink(ParaChange &change)
{
    change.engine.UpdatePortState(change.member);
    if (ProductionTest::m_cur_step == FACTORY_STEP_IN_OUT && change.number(change.index))
        emit change.engine.signal_update_menuitem(en_inout_test_index(INOUT_NET1 + change.member),
                                                  ITEM_PASSED);
}

/// The device is primary or backup as a whole; while its ports differ the item stays.
void applyPortBackup(ParaChange &change)
{
    change.engine.UpdatePortState(change.member);
    if (!change.fromDevice())
        return;
    int backups = 0;
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        backups += change.number(nth(PARA_PortBackup, port)) != 0;
    if (backups != 0 && backups != NET_PORT_COUNT)
        return;
    const bool backup = backups != 0;
    change.choice(MENU_DeviceBackup, backup);
    change.show(MENU_DeviceBackup, backup ? "1" : "0");
}

void applyBackupEngaged(ParaChange &change)
{
    if (change.number(change.index) != change.oldValue.toInt())
        change.engine.UpdatePortState(change.member);
}

void applyOpt1BackupEngaged(ParaChange &change)
{
    change.engine.UpdataOPT1PortState(change.member);
}

/// The second optical link has no ports on the home screen.
void applyOpt2BackupEngaged(ParaChange &) {}

void applyOpt1PortLink(ParaChange &change)
{
    change.engine.UpdataOPT1PortState(change.member);
}

void applyOpt2PortLink(ParaChange &change)
{
    qDebug() << "device" << change.member << "opt2" << change.value;
    change.engine.UpdateOPT2PortBackUPState(change.member);
}

void applyOptLink(ParaChange &change)
{
    if (change.number(change.index) != change.oldValue.toInt())
        change.engine.UpdateOPTLinkState(change.member);
}

void applyOpticalBackup(ParaChange &change)
{
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        change.engine.UpdateOPT2PortBackUPState(port);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_DeviceBackup, applyOpticalBackup},
    {MENU_OPT2Mode, applyOpticalBackup},
    {each(shownPorts, PARA_PortLink), applyPortLink},
    {each(shownPorts, PARA_PortBackup), applyPortBackup},
    {each(shownPorts, PARA_PortBackupEngaged), applyBackupEngaged},
    {each(shownPorts, PARA_OPT1BackupEngaged), applyOpt1BackupEngaged},
    {each(shownPorts, PARA_OPT2BackupEngaged), applyOpt2BackupEngaged},
    {each(FAMILY_PortState, PARA_OPT1PortLink), applyOpt1PortLink},
    {each(FAMILY_PortState, PARA_OPT2PortLink), applyOpt2PortLink},
    {each(opticalLinks, PARA_OPT1Link), applyOptLink},
};
} // namespace

Table<ApplyCase> portCases()
{
    return cases;
}
} // namespace VASK
