// Ends the event loop on SIGINT, SIGTERM and SIGHUP. Main thread.
#pragma once

/// Blocks nothing and may be called once, when the application exists.
void quitOnSignals();
