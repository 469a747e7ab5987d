#include "emulator/model/devicemodel.h"

#include "emulator/model/layers.h"

namespace
{
/// Reports that do not stand where the device keeps their value, by their address and number of addresses.
struct Elsewhere {
    quint32 first;
    quint32 count;
    qint64 shift; ///< to the register that holds the value
    bool isEvent; ///< tells of something that happens, not of a value
};

constexpr Elsewhere elsewhere[] = {
    {0x13019015, 128, -16, false}, // sound of the inputs, counted from one
    {0x020001F0, 1, 0, true},      // a window's start, which comes back as a write
    {0x02002001, 2, 0, true},      // 3D emitter and delay, the same
    {0x13800000, 1, 0, true},      // self test
    {0x01000002, 1, 0, true},      // reset done
    {0x0FF00000, 2, 0, true},      // cabinet loaded, renamed
    {0x14000000, 1, 0, true},      // service up
};
} // namespace

const QVector<Subject> &allSubjects()
{
    static const QVector<Subject> subjects = {
        inputsSubject(), outputSubject(),   screenSubject(), portsSubject(), layersSubject(),
        cropsSubject(),  picturesSubject(), audioSubject(),  osdSubject(),   networkSubject(),
        stereoSubject(), presetsSubject(),  backupSubject(), fiberSubject(), serviceSubject(),
    };
    return subjects;
}

namespace
{
/// The row of the registers that a write begins in; null if nobody knows them.
const RegisterRow *rowOf(const Write &write)
{
    for (const Subject &subject : allSubjects()) {
        for (const RegisterRow &row : subject.rows) {
            if (row.memberOf(write) >= 0)
                return &row;
        }
    }
    return nullptr;
}
} // namespace

Reports DeviceModel::obey(const Write &write)
{
    const RegisterRow *row = rowOf(write);
    if (row && !write.bytes.isEmpty())
        return row->obey(m_registers, *row, row->memberOf(write), write);
    m_registers.write(write.deviceType, write.address, write.bytes);
    return {};
}

Reports DeviceModel::reports() const
{
    Reports list;
    for (const Subject &subject : allSubjects())
        list += subject.reports(m_registers);
    return list;
}

Reports DeviceModel::adopt(const Report &report)
{
    quint32 address = report.address;
    for (const Elsewhere &row : elsewhere) {
        if (report.deviceType != sendingSide || address < row.first || address - row.first >= row.count)
            continue;
        if (row.isEvent)
            return {};
        address = quint32(address + row.shift);
        break;
    }
    m_registers.write(report.deviceType, address, report.bytes);
    const RegisterRow *row = rowOf({report.deviceType, address, report.bytes});
    return row && row->follow ? row->follow(m_registers) : Reports();
}

QStringList DeviceModel::describe() const
{
    QStringList lines;
    for (const Subject &subject : allSubjects()) {
        lines.append(subject.name);
        for (const QString &line : subject.describe(m_registers))
            lines.append("  " + line);
    }
    if (m_registers.lost() > 0)
        lines += {"memory", QString("  bytes without room: %1").arg(m_registers.lost())};
    return lines;
}
