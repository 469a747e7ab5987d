// Files, shell and pipes of the board. Program code keeps the board's own absolute paths and command lines
// and passes them through these functions; on a PC they are put below the state folder (environment
// FPD_STATE). All functions may be called from any thread.
#pragma once

#include <QString>
#include <cstdio>

namespace board
{
/// Where the file of an absolute board path lies on this machine; the path itself on the board.
QString filePath(const QString &boardPath);

/// Runs a shell command line of the board and waits for it. Result as of system(3).
int runCommand(const char *commandLine);

/// Opens a pipe to read the output of a shell command line, null on failure. To be closed with closePipe.
FILE *openPipe(const char *commandLine);
int closePipe(FILE *pipe);
} // namespace board
