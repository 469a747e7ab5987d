#include "emulator/device/keynames.h"

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

const KeyName *keyByName(const QString &name)
{
    for (const KeyName &key : keyNames()) {
        if (name == QLatin1String(key.name))
            return &key;
    }
    return nullptr;
}

const QVector<PcKey> &pcKeys()
{
    static const QVector<PcKey> keys = {
        {Qt::Key_Return, "Enter", keyOk, 0},
        {Qt::Key_Enter, "NumpadEnter", keyOk, 0},
        {Qt::Key_Space, "Space", keyOk, 0},
        {Qt::Key_Escape, "Escape", keyEsc, 0},
        {Qt::Key_Backspace, "Backspace", keyEsc, 0},
        {Qt::Key_Left, "ArrowLeft", 0, -1},
        {Qt::Key_Up, "ArrowUp", 0, -1},
        {Qt::Key_Right, "ArrowRight", 0, 1},
        {Qt::Key_Down, "ArrowDown", 0, 1},
    };
    return keys;
}

int knobSpeed(qint64 milliseconds)
{
    return milliseconds < 25 ? 4 : milliseconds < 50 ? 3 : milliseconds < 90 ? 2 : 1;
}
