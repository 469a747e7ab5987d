#include "emulator/keynames.h"

#include <QStringList>

const QVector<KeyName> &keyNames()
{
    static const QVector<KeyName> names = {
        {2, "main", "MAIN", 0, '1'},   {3, "pip1", "PIP 1", 1, '2'},      {4, "pip2", "PIP 2", 2, '3'},
        {5, "scale", "SCALE", 3, '4'}, {13, "fn", "Fn", 11, '5'},         {14, "freeze", "FREEZE", 12, '6'},
        {16, "test", "TEST", 14, '7'}, {17, "preset", "PRESET", 15, '8'}, {6, "in1", "HDMI 1", 6, 'Q'},
        {7, "in2", "HDMI 2", 7, 'W'},  {8, "in3", "DVI", 4, 'E'},         {9, "in4", "SDI", 5, 'R'},
        {10, "in5", "IN 5", 8, 'T'},   {12, "in6", "IN 6", 9, 'Y'},       {15, "in7", "IN 7", 10, 'U'},
        {11, "in8", "IN 8", 13, 'I'},  {keyOk, "ok", "OK", -1, 0},        {keyEsc, "esc", "ESC", -1, 0},
    };
    return names;
}

std::optional<int> keyCode(const QString &text)
{
    for (const KeyName &key : keyNames()) {
        if (text.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0)
            return key.code;
    }
    bool isNumber = false;
    const int code = text.toInt(&isNumber, 0);
    if (!isNumber || code < 0 || code >= releasedBit)
        return std::nullopt;
    return code;
}

std::optional<QVector<int>> keyCodes(const QString &text)
{
    QVector<int> codes;
    for (const QString &name : text.split('+')) {
        const auto code = keyCode(name);
        if (!code)
            return std::nullopt;
        codes.append(*code);
    }
    return codes;
}
