// Reports about the Ethernet ports and the optical links, and the backup that the device forms of them.

#include "framework/engine/parachange.h"

#include "framework/productiontest/productiontest.h"
#include "framework/ui/homestates.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// The row of the table that serves the six ports of this model.
constexpr ApplyCase shownPorts(ENUM_MenuIndex first, void (*apply)(ParaChange &))
{
    return {first, nth(first, NET_PORT_COUNT - 1), apply};
}

void applyPortLink(ParaChange &change)
{
    const int port = change.index - PARA_PortLink;
    change.engine.UpdatePortState(port);
    if (ProductionTest::m_cur_step == FACTORY_STEP_IN_OUT && change.number(change.index))
        emit change.engine.signal_update_menuitem(en_inout_test_index(INOUT_NET1 + port), ITEM_PASSED);
}

/// The device is primary or backup as a whole; while its ports differ the item stays.
void applyPortBackup(ParaChange &change)
{
    change.engine.UpdatePortState(change.index - PARA_PortBackup);
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
        change.engine.UpdatePortState(change.index - PARA_PortBackupEngaged);
}

void applyOpt1BackupEngaged(ParaChange &change)
{
    change.engine.UpdataOPT1PortState(change.index - PARA_OPT1BackupEngaged);
}

/// The second optical link has no ports on the home screen.
void applyOpt2BackupEngaged(ParaChange &) {}

void applyOpt1PortLink(ParaChange &change)
{
    change.engine.UpdataOPT1PortState(change.index - PARA_OPT1PortLink);
}

void applyOpt2PortLink(ParaChange &change)
{
    const int port = change.index - PARA_OPT2PortLink;
    qDebug() << "device" << port << "opt2" << change.value;
    change.engine.UpdateOPT2PortBackUPState(port);
}

void applyOptLink(ParaChange &change)
{
    if (change.number(change.index) != change.oldValue.toInt())
        change.engine.UpdateOPTLinkState(change.index - PARA_OPT1Link);
}

void applyOpticalBackup(ParaChange &change)
{
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        change.engine.UpdateOPT2PortBackUPState(port);
    change.tail();
}

constexpr ApplyCase cases[] = {
    {MENU_DeviceBackup, MENU_DeviceBackup, applyOpticalBackup},
    {MENU_OPT2Mode, MENU_OPT2Mode, applyOpticalBackup},
    shownPorts(PARA_PortLink, applyPortLink),
    shownPorts(PARA_PortBackup, applyPortBackup),
    shownPorts(PARA_PortBackupEngaged, applyBackupEngaged),
    shownPorts(PARA_OPT1BackupEngaged, applyOpt1BackupEngaged),
    shownPorts(PARA_OPT2BackupEngaged, applyOpt2BackupEngaged),
    {PARA_OPT1PortLink, nth(PARA_OPT1PortLink, ProcessData::portCount - 1), applyOpt1PortLink},
    {PARA_OPT2PortLink, nth(PARA_OPT2PortLink, ProcessData::portCount - 1), applyOpt2PortLink},
    {PARA_OPT1Link, PARA_OPT2Link, applyOptLink},
};
} // namespace

ApplyFamily portFamily()
{
    return {cases, int(std::size(cases))};
}
} // namespace VASK
