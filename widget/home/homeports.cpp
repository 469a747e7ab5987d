#include "widget/home/homeports.h"

#include "widget/home/homepicture.h"

namespace
{
const char *const enabledPicture = "port%1_enable.png";
const char *const backupPicture = "hotbackupport%1_enable.png";
const char *const pictures[] = {"port%1_disable.png", enabledPicture, backupPicture, backupPicture};
} // namespace

HomePorts::HomePorts(QLabel *const *labels) : m_labels(labels)
{
    m_states.fill(NET_STATE_NONE);
}

void HomePorts::show(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state)
{
    // A picture that is missing leaves the state, so that the next call tries again.
    if (m_states[port] != state && showPicture(port, pictures[state]))
        m_states[port] = state;
}

void HomePorts::tick()
{
    bool blinking = false;
    for (int port = 0; port < NET_PORT_COUNT; ++port) {
        if (m_states[size_t(port)] != NET_BACKUP_BLINKING)
            continue;
        blinking = true;
        showPicture(port, m_blinkPhase ? backupPicture : enabledPicture);
    }
    if (blinking)
        m_blinkPhase = !m_blinkPhase;
}

bool HomePorts::showPicture(int port, const char *name)
{
    return showHomePicture(m_labels[port], QString(name).replace("%1", QString::number(port + 1)),
                           "set net State faild,path:");
}
