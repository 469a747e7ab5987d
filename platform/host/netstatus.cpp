#include "netstatus.h"

#include "fpd_hostlink.h"
#include "platform/host/statefile.h"

namespace
{
int linkValue(const char *name)
{
    return host::readValues(host::stateFile(hostlink::linkFile)).value(name).toInt();
}
} // namespace

int get_usb_otg_status()
{
    return linkValue(hostlink::linkUsb);
}

int get_usb_host_status()
{
    return linkValue(hostlink::linkLoop);
}

int get_eth1_status()
{
    return linkValue(hostlink::linkEthernet);
}

int get_pc_connect_priority()
{
    return linkValue(hostlink::linkPriority);
}

void set_pc_connect_priority(int priority)
{
    const QString file = host::stateFile(hostlink::linkFile);
    auto values = host::readValues(file);
    values[hostlink::linkPriority] = QByteArray::number(priority);
    host::writeValues(file, values);
}
