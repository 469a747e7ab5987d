// Files, shell, pipes and ports of the board. Program code keeps the board's own absolute paths and command
// lines and passes them through these functions; on a PC they are put below the state folder (environment
// FPD_STATE). All functions may be called from any thread.
#pragma once

#include <QString>
#include <cstdio>

namespace board
{
/// Where the file of an absolute board path lies on this machine; the path itself on the board.
QString filePath(const QString &boardPath);

/// The port at which a service of this machine is reached that listens at that port on the board. On a PC the
/// emulator of the state folder says which; 0, where nobody listens, while it has not said so.
unsigned short localPort(unsigned short boardPort);

/// Runs a shell command line of the board and waits for it. Result as of system(3).
int runCommand(const char *commandLine);

/// Opens a pipe to read the output of a shell command line, null on failure. To be closed with closePipe.
FILE *openPipe(const char *commandLine);
int closePipe(FILE *pipe);
} // namespace board
