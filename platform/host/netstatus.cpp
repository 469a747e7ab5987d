#include "netstatus.h"

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "platform/host/statefile.h"

namespace
{
int linkValue(const char *name)
{
    return hostlink::readValues(host::stateFile(hostlink::linkFile)).value(name).toInt();
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
    hostlink::changeValue(host::stateFile(hostlink::linkFile), hostlink::linkPriority,
                          QByteArray::number(priority));
}
