// The Ethernet ports to the wall: link, backup and whether backup is in use. Main thread.
#pragma once

#include "emulator/model/subject.h"

namespace ports
{
constexpr int count = 10;

enum class State { link, backup, engaged };

struct Port {
    bool link = false;
    bool backup = false;  ///< works as the backup of another one
    bool engaged = false; ///< the backup has taken over
};

Port read(const Registers &registers, int port);
/// What happens outside: a cable is plugged or pulled, a backup takes over. What the device tells of it.
Reports set(Registers &registers, int port, State state, bool on);
} // namespace ports
