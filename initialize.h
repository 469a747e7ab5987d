// Start-up: makes every service object, fills the pool, loads store and translation, builds the pages, waits
// for the device side and connects to it. On the GUI thread, before the event loop runs.
#pragma once

#include <QTime>

/// When the process began; the time base of the start-up log.
extern QTime runTime1;

/// Goes through the steps of the start-up in their order. A step that fails ends it, with a log line; what
/// exists by then stays, and the caller runs the event loop in every case.
void Initialize();
