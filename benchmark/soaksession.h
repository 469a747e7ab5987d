// A plausible session of a panel as text for the emulator's replay: a user who comes now and then and walks
// through the menus, and a device whose signals, cables and values change meanwhile. The same seed gives the
// same session.
#pragma once

#include <QByteArray>

/// A session of so many minutes, made to be replayed at a speed: keys that are held are held as much longer.
QByteArray soakSession(unsigned int seed, int minutes, int speed);
