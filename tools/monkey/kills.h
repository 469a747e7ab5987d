// Deaths and losses: the panel or the whole emulator is killed at a random moment behind a key and started
// again, and has what was last kept or what was last set; bus, keypad and flash go and come back, and all is
// told in the end. GUI thread.
#pragma once

#include <QString>

namespace kills
{
/// So many kills. Empty, or what was lost.
QString kill(int count, unsigned int seed);
/// So many times a part of the device goes and comes back. Empty, or what was lost.
QString unplug(int count, unsigned int seed);
} // namespace kills
