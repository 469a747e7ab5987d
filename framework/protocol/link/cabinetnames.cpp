#include "framework/protocol/link/cabinetnames.h"

#include "boardio.h"
#include "framework/protocol/packet/bytes.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace VASK
{
namespace
{
const QString indexFile = QStringLiteral("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName");
constexpr int recordSize = 64; // bytes; a name in UTF-16, ended by a zero
constexpr int mostRecords = 1024;
} // namespace

bool readCabinetIndex(QByteArray &index)
{
    const QString name = board::filePath(indexFile);
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly)) {
        qDebug() << "cannot read the index of the cabinet files" << name << file.errorString();
        return false;
    }
    index = file.read(mostRecords * recordSize);
    return true;
}

QString cabinetNameAt(const QByteArray &index, int record)
{
    return utf16Text(index.mid(record * recordSize, recordSize));
}

int cabinetRecords(const QByteArray &index)
{
    return (index.size() + recordSize - 1) / recordSize;
}

QString cabinetNames(const QByteArray &index)
{
    QStringList names;
    // What ends with the file is no record any more.
    for (int record = 0; (record + 1) * recordSize < index.size(); ++record) {
        const QString name = cabinetNameAt(index, record);
        if (name.isEmpty())
            break;
        names += name;
    }
    return names.join('+');
}

QString readFileGetNames()
{
    QByteArray index;
    readCabinetIndex(index);
    QString names = cabinetNames(index);
    qDebug() << "readFileGetNames:" << names;
    return names;
}
} // namespace VASK
