#include "framework/protocol/link/cabinetnames.h"

#include "boardio.h"
#include "framework/protocol/packet/packageframe.h"

#include <QDebug>
#include <QFile>
#include <QStringList>

namespace VASK
{
namespace
{
const QString indexFile = QStringLiteral("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName");
constexpr int recordSize = 64; // bytes

/// A record is UTF-16, ended by a zero.
QString recordText(const QByteArray &record)
{
    QString text;
    for (int i = 0; i + 1 < record.size(); i += 2) {
        const auto unit = static_cast<ushort>(littleEndianAt(record, i, 2));
        if (unit == 0)
            break;
        text += QChar(unit);
    }
    return text;
}
} // namespace

QString cabinetNames(const QByteArray &index)
{
    QStringList names;
    for (int end = recordSize; end < index.size(); end += recordSize) {
        const QString name = recordText(index.mid(end - recordSize, recordSize));
        if (name.isEmpty())
            break;
        names += name;
    }
    return names.join('+');
}

QString readFileGetNames()
{
    QFile file(board::filePath(indexFile));
    if (!file.open(QIODevice::ReadOnly))
        qDebug() << "cannot open" << indexFile << file.errorString();
    QString names = cabinetNames(file.isOpen() ? file.readAll() : QByteArray());
    qDebug() << "readFileGetNames:" << names;
    return names;
}
} // namespace VASK
