#include "framework/protocol/send/valueform.h"

namespace VASK
{
bool ValueForm::encode(const QString &value, QByteArray &data) const
{
    for (const Choice &choice : choices) {
        if (choice.text && value == QLatin1String(choice.text)) {
            data = littleEndian(choice.number, size);
            return true;
        }
    }
    switch (rule) {
    case Fixed:
        data = littleEndian(rest, size);
        return true;
    case Number:
        data = littleEndian(qint64(value.toInt()) * (rest ? rest : 1), size);
        return true;
    case Shifted:
        data = littleEndian(value.toInt() + rest, size);
        return true;
    case Centi:
        // Rounded: in single precision some hundredths lie a little below their whole number.
        data = littleEndian(qRound(value.toFloat() * 100.f), size);
        return true;
    case Percent:
        data = littleEndian(value.toInt() * 255 / 100, size);
        return true;
    case Refuse:
        break;
    }
    return false;
}
} // namespace VASK
