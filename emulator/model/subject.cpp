#include "emulator/model/subject.h"

int RegisterRow::memberOf(const Write &write) const
{
    if (write.deviceType != deviceType || write.address < first)
        return -1;
    const quint32 distance = write.address - first;
    const int member = stride == 0 ? 0 : int(distance / stride);
    const quint32 offset = distance - stride * quint32(member);
    return member < count && offset < quint32(length) ? member : -1;
}

namespace obey
{
Reports store(Registers &registers, const RegisterRow &, int, const Write &write)
{
    registers.write(write.deviceType, write.address, write.bytes);
    return {};
}

Reports storeAndReport(Registers &registers, const RegisterRow &row, int member, const Write &write)
{
    const quint32 address = row.addressOf(member);
    const QByteArray before = registers.read(row.deviceType, address, row.length);
    registers.write(write.deviceType, write.address, write.bytes);
    const QByteArray after = registers.read(row.deviceType, address, row.length);
    if (before == after)
        return {};
    Report report{address, after};
    report.deviceType = row.deviceType;
    return {report};
}
} // namespace obey

QString onOff(bool on)
{
    return on ? "on" : "off";
}
