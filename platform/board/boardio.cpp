#include "boardio.h"

#include <cstdlib>

namespace board
{
QString filePath(const QString &boardPath)
{
    return boardPath;
}

unsigned short localPort(unsigned short boardPort)
{
    return boardPort;
}

int runCommand(const char *commandLine)
{
    return std::system(commandLine);
}

FILE *openPipe(const char *commandLine)
{
    return popen(commandLine, "r");
}

int closePipe(FILE *pipe)
{
    return pclose(pipe);
}
} // namespace board
