// The states of the Ethernet ports on the home screen, from what the ports and the optical links report.

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"
#include "widget/home/mainwindow_k2860.h"

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

bool isShown(int port)
{
    return port >= 0 && port < NET_PORT_COUNT;
}
} // namespace

void ParaProcess::UpdatePortState(int port)
{
    if (!isShown(port) || !neededHome())
        return;
    const auto state = netState(m_processData.value(nth(PARA_PortLink, port)),
                                m_processData.value(nth(PARA_PortBackupEngaged, port)),
                                m_processData.value(nth(PARA_PortBackup, port)));
    m_pMainWindow->SetNetState(ENUM_MainWindowNetIndex(port), state);
}

void ParaProcess::UpdataOPT1PortState(int port)
{
    if (!isShown(port) || !neededHome())
        return;
    // The device tells its optical ports also without a fiber: those at rest must not hide the port's own
    // link.
    if (!m_processData.value(nth(PARA_OPT1PortLink, port))) {
        UpdatePortState(port);
        return;
    }
    const auto state = netState(true, m_processData.value(nth(PARA_OPT1BackupEngaged, port)),
                                m_processData.value(nth(PARA_PortBackup, port)));
    m_pMainWindow->SetNetState(ENUM_MainWindowNetIndex(port), state);
}

void ParaProcess::UpdateOPT1_PortLinkState()
{
    for (int port = 0; port < NET_PORT_COUNT; ++port)
        UpdataOPT1PortState(port);
}

void ParaProcess::UpdateOPTLinkState(int link)
{
    // The second link has no ports on the screen.
    if (link != 0)
        return;
    const DeviceView device(*this);
    auto stable = [&device](int code) {
        return device.input(device.inputOfCode(code)).signalState == stableSignal;
    };
    if (m_processData.value(PARA_OPT1Link) == 1 && (stable(INPUT_OPT1) || stable(INPUT_OPT2))) {
        for (int port = 0; port < NET_PORT_COUNT; ++port)
            UpdatePortState(port);
    } else {
        UpdateOPT1_PortLinkState();
    }
}

void ParaProcess::UpdateOPT2PortBackUPState(int port)
{
    if (port < 0 || port >= ProcessData::portCount)
        return;
    const int backup = m_processData.value(nth(PARA_PortBackup, port));
    const bool copies = GetParaFromIndex(MENU_OPT2Mode) == QLatin1String("1");
    m_processData.set(nth(PARA_OPT2BackupEngaged, port), copies ? backup : !backup);
}
} // namespace VASK
