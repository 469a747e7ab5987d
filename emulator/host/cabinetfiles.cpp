#include "emulator/host/cabinetfiles.h"

#include <QtEndian>

namespace
{
constexpr int indexRecord = 64; ///< bytes of a name in the index: UTF-16, ended by a zero word

QByteArray indexEntry(const QString &name)
{
    QByteArray record(indexRecord, 0);
    for (int i = 0; i < name.size() && i < indexRecord / 2 - 1; ++i)
        qToLittleEndian(name[i].unicode(), record.data() + 2 * i);
    return record;
}
} // namespace

QVector<CabinetFile> cabinetFiles()
{
    QVector<CabinetFile> files = {
        {"P1.5-480x270.cab", "width=480\nheight=270\npitch=1.5\n"},
        {"P2.5-128x128.cab", "width=128\nheight=128\npitch=2.5\n"},
        {QString::fromUtf8("室内P3.9-128x128.cab"), "width=128\nheight=128\npitch=3.9\n"},
        {QString::fromUtf8("户外P10-96x96.cab"), "width=96\nheight=96\npitch=10\n"},
    };
    QByteArray index;
    for (const CabinetFile &file : qAsConst(files))
        index += indexEntry(file.name);
    // The walk over the index stops before its last record, which stays empty.
    index += QByteArray(indexRecord, 0);
    files.append({"AllCabCfgFileName", index});
    return files;
}
