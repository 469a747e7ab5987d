// The output ports on the home screen; those that run on their backup blink in step. GUI thread.
#pragma once

#include "framework/ui/homestates.h"

#include <array>

class QLabel;

class HomePorts
{
public:
    explicit HomePorts(QLabel *const *labels);

    void show(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state);
    /// Once a second.
    void tick();

private:
    bool showPicture(int port, const char *name);

    QLabel *const *m_labels;
    std::array<ENUM_MainWindowNetState, NET_PORT_COUNT> m_states;
    bool m_blinkPhase = true;
};
