#include "framework/engine/portstates.h"

#include "framework/engine/device.h"
#include "framework/engine/homeupdater.h"
#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"

namespace VASK
{
namespace
{
ENUM_MainWindowNetState netState(bool link, bool engaged, bool backup)
{
    if (!link)
        return NET_DISABLED;
    if (engaged)
        return NET_BACKUP_BLINKING;
    return backup ? NET_BACKUP : NET_ENABLED;
}
} // namespace

void PortStates::showState(int port, bool link, bool engaged)
{
    const bool backup = m_engine.processData().value(nth(PARA_PortBackup, port));
    m_home.showPort(port, netState(link, engaged, backup));
}

void PortStates::show(int port)
{
    const ProcessData &data = m_engine.processData();
    if (port >= 0 && port < NET_PORT_COUNT && m_home.needed())
        showState(port, data.value(nth(PARA_PortLink, port)), data.value(nth(PARA_PortBackupEngaged, port)));
}

void PortStates::showOfOpt1(int port)
{
    if (port < 0 || port >= NET_PORT_COUNT || !m_home.needed())
        return;
    // The device tells its optical ports also without a fiber: those at rest must not hide the port's own
    // link.
    const ProcessData &data = m_engine.processData();
    if (data.value(nth(PARA_OPT1PortLink, port)))
        showState(port, true, data.value(nth(PARA_OPT1BackupEngaged, port)));
    else
        show(port);
}

void PortStates::showAllOfOpt1()
{
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        showOfOpt1(port);
}

void PortStates::followLink(int link)
{
    // The second link has no ports on the screen.
    if (link != 0)
        return;
    const DeviceView device(m_engine);
    auto stable = [&device](int code) {
        return device.input(device.inputOfCode(code)).signalState == stableSignal;
    };
    if (m_engine.processData().value(PARA_OPT1Link) == 1 && (stable(INPUT_OPT1) || stable(INPUT_OPT2))) {
        for (int port = 0; port < NET_PORT_COUNT; ++port)
            show(port);
    } else {
        showAllOfOpt1();
    }
}

void PortStates::workOutOpt2Backup(int port)
{
    if (port < 0 || port >= ProcessData::portCount)
        return;
    const int backup = m_engine.processData().value(nth(PARA_PortBackup, port));
    const bool copies = isOn(m_engine.GetParaFromIndex(MENU_OPT2Mode));
    m_engine.SaveProcessData(QString::number(copies ? backup : !backup), nth(PARA_OPT2BackupEngaged, port));
}

bool PortStates::anyLink() const
{
    for (ENUM_MenuIndex first : {PARA_PortLink, PARA_OPT1PortLink, PARA_OPT2PortLink})
        for (int port = 0; port < ProcessData::portCount; ++port)
            if (m_engine.processData().value(nth(first, port)) != 0)
                return true;
    return false;
}
} // namespace VASK
