// The output to the wall: size and rate from the device or from the software configuration, the display mode,
// and whom the output is synchronised to. Main thread.
#pragma once

#include "emulator/model/subject.h"
#include "emulator/model/videomode.h"

namespace output
{
/// Genlock as the device tells it.
enum Genlock { freeRunning = 0, locked = 2, waiting = 3, noMatch = 4 };

struct Output {
    bool followsSoftware = false;
    VideoMode own;
    VideoMode software;
    int displayMode = 3;
    int testPattern = 0;
    bool syncOn = false;
    int syncSource = 0; ///< number of an input
};

Output read(const Registers &registers);
/// What leaves the device: the rate is that of the source while it is synchronised.
VideoMode inForce(const Registers &registers);
/// Brings genlock in line with its source; reports of what has changed, also against the size before.
Reports followSync(Registers &registers, const VideoMode &before);
} // namespace output
