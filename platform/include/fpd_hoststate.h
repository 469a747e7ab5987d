// Where the state folder lies when nobody says, for the emulator and its console client alike.
#pragma once

#include <cstdlib>
#include <string>

/// What FPD_STATE says, else "fpd" in the folder that the user keeps states of programs in. A setting that is
/// empty or relative counts as none.
inline std::string defaultState()
{
    const char *state = getenv("FPD_STATE");
    if (state && *state)
        return state;
    const char *base = getenv("XDG_STATE_HOME");
    if (base && *base == '/')
        return std::string(base) + "/fpd";
    const char *home = getenv("HOME");
    return std::string(home ? home : "") + "/.local/state/fpd";
}
