#include "sysconf.h"

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "platform/host/statefile.h"

#include <QMutex>

namespace
{
QMutex openMutex; ///< held from open to close
QMap<QByteArray, QByteArray> values;

QString file()
{
    return host::stateFile(hostlink::environmentFile);
}
} // namespace

int sysconf_openenv()
{
    openMutex.lock();
    values = hostlink::readValues(file());
    return 0;
}

const char *sysconf_getenv(const char *name)
{
    const auto value = values.constFind(name);
    return value == values.constEnd() ? nullptr : value->constData();
}

int sysconf_setenv(const char *name, const char *value)
{
    values.insert(name, value);
    return hostlink::changeValue(file(), name, value) ? 0 : -1;
}

void sysconf_closeenv()
{
    openMutex.unlock();
}
