// Whoever started this program and looks after it, as an init system does: it is told when the start-up has
// ended and, if it asks for that, again and again that the event loop runs.
#pragma once

namespace board
{
/// GUI thread, once, when the start-up has ended. Without a supervisor nothing happens, neither now nor
/// later.
void tellSupervisor();
} // namespace board
