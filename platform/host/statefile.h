// The files of the state folder as the host platform reaches them.
#pragma once

#include <QString>

namespace host
{
/// A file of the state folder, by its name from fpd_hostlink.h.
QString stateFile(const char *name);

/// Takes one from a decimal counter file. True if there was one to take.
bool takeFault(const char *name);
} // namespace host
