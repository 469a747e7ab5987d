#include "emulator/console/keyarguments.h"

#include "emulator/device/keynames.h"

namespace
{
bool isCalled(const KeyName &key, const QString &text)
{
    const QString label = QString(key.label).remove(' ');
    return text.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0 ||
           text.compare(label, Qt::CaseInsensitive) == 0;
}

QString nameList()
{
    QStringList names;
    for (const KeyName &key : keyNames()) {
        const QString label = QString(key.label).remove(' ').toLower();
        names << (label == key.name ? label : QString("%1 (%2)").arg(label, key.name));
    }
    return names.join(' ');
}

/// The code of one key by its name, by what is printed on it, or by its number.
int keyCode(Arguments &arguments, const QString &text)
{
    for (const KeyName &key : keyNames()) {
        if (isCalled(key, text))
            return key.code;
    }
    bool isNumber = false;
    const int code = text.toInt(&isNumber, text.startsWith("0x", Qt::CaseInsensitive) ? 16 : 10);
    if (!isNumber || code < 0 || code >= releasedBit)
        arguments.complain(QString("no such key: %1; there are %2 and the codes 0 to %3")
                               .arg(text, nameList())
                               .arg(releasedBit - 1));
    return code;
}
} // namespace

QVector<int> takeKeys(Arguments &arguments)
{
    QVector<int> codes;
    for (const QString &name : arguments.text("NAME").split('+'))
        codes.append(keyCode(arguments, name));
    return codes;
}
