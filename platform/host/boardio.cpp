#include "boardio.h"

#include <cstdlib>

namespace board
{
QString filePath(const QString &boardPath)
{
    static const QString root = qEnvironmentVariable("FPD_STATE");
    return root + boardPath;
}
} // namespace board
