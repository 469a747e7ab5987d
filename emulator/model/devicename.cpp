#include "emulator/model/devicename.h"

#include "emulator/bus/flashmap.h"

#include <QtEndian>

namespace devicename
{
namespace
{
constexpr quint32 renamedRegister = 0x0FF00001;
constexpr int units = flashmap::nameLength / 2;
constexpr char renamedMark = char(0x9A);
} // namespace

Reports rename(Registers &registers, const QString &name)
{
    registers.flash().write(flashmap::renamed, mark(name));
    registers.flash().write(flashmap::name, record(name));
    return {{renamedRegister, QByteArray(1, 1)}};
}

QString nameOf(const FlashImage &flash)
{
    if (flash.byte(flashmap::renamed) != renamedMark)
        return QString();
    const QByteArray bytes = flash.read(flashmap::name, flashmap::nameLength);
    QString name;
    for (int i = 0; i < units; ++i) {
        const auto unit = qFromLittleEndian<quint16>(bytes.constData() + 2 * i);
        if (unit == 0)
            break;
        name += QChar(unit);
    }
    return name;
}

QByteArray record(const QString &name)
{
    QByteArray bytes(flashmap::nameLength, 0);
    int length = qMin(name.size(), units);
    if (length > 0 && length < name.size() && name[length - 1].isHighSurrogate())
        --length; // no half of a character
    for (int i = 0; i < length; ++i)
        qToLittleEndian(quint16(name[i].unicode()), bytes.data() + 2 * i);
    return bytes;
}

QByteArray mark(const QString &name)
{
    return QByteArray(1, name.isEmpty() ? '\0' : renamedMark);
}
} // namespace devicename
