// The device's persistent environment: a store of named text values that outlives every reset of the panel.
// Open, use, close; any thread, one at a time.
#pragma once

extern "C" {
/// 0 when the store is open, else the rest must not be called.
int sysconf_openenv();
/// The value under a name, null if there is none. Valid until the store is closed.
const char *sysconf_getenv(const char *name);
/// 0 when the value is stored.
int sysconf_setenv(const char *name, const char *value);
void sysconf_closeenv();
} // extern "C"
