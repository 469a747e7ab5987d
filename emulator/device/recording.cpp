#include "emulator/device/recording.h"

#include "emulator/device/keynames.h"

namespace session
{
namespace
{
struct KindName {
    Kind kind;
    const char *name;
};

constexpr KindName kindNames[] = {
    {Kind::key, "key"},     {Kind::report, "report"}, {Kind::answered, "answered"},
    {Kind::write, "write"}, {Kind::failed, "failed"}, {Kind::message, "message"},
};

QString hex(quint32 number, int digits)
{
    return QString("%1").arg(number, digits, 16, QChar('0'));
}

QString keyRemark(quint16 word)
{
    const int code = word & 0x7f;
    for (const KeyName &key : keyNames()) {
        if (key.code == code)
            return QString(key.name) + (word & releasedBit ? " released" : " pressed");
    }
    return code == keyKnobLeft ? "knob left" : code == keyKnobRight ? "knob right" : QString();
}

QString fieldsOf(const Event &event)
{
    if (event.kind == Kind::message)
        return QString("%1 %2 %3").arg(event.large).arg(event.small).arg(QString(event.payload.toHex()));
    if (event.kind != Kind::key)
        return QString("%1 %2 %3%4")
            .arg(hex(event.report.address, 8))
            .arg(event.report.deviceType)
            .arg(event.kind == Kind::failed ? QString("%1 ").arg(event.ack) : QString(),
                 QString(event.report.bytes.toHex()));
    const QString remark = keyRemark(event.word);
    return hex(event.word, 4) + (remark.isEmpty() ? QString() : "  # " + remark);
}

/// Takes hex digits to bytes; false if they are none.
bool readBytes(const QString &text, QByteArray &bytes)
{
    bytes = QByteArray::fromHex(text.toLatin1());
    return bytes.toHex() == text.toLower().toLatin1();
}

bool readKey(const QStringList &fields, Event &event)
{
    bool isNumber = false;
    event.word = fields.value(0).toUShort(&isNumber, 16);
    return isNumber && fields.size() == 1;
}

bool readReport(const QStringList &fields, Event &event)
{
    bool isAddress = false, isDevice = false;
    event.report.address = fields.value(0).toUInt(&isAddress, 16);
    const uint device = fields.value(1).toUInt(&isDevice);
    event.report.deviceType = quint8(device);
    return isAddress && isDevice && device <= 255 && fields.size() <= 3 &&
           readBytes(fields.value(2), event.report.bytes);
}

bool readFailed(QStringList fields, Event &event)
{
    constexpr int ackPlace = 2;
    bool isAck = false;
    const uint ack = fields.value(ackPlace).toUInt(&isAck);
    event.ack = quint8(ack);
    if (!isAck || ack == 0 || ack > 255)
        return false;
    fields.removeAt(ackPlace);
    return readReport(fields, event);
}

bool readMessage(const QStringList &fields, Event &event)
{
    bool isLarge = false, isSmall = false;
    event.large = fields.value(0).toShort(&isLarge);
    event.small = fields.value(1).toShort(&isSmall);
    return isLarge && isSmall && fields.size() <= 3 && readBytes(fields.value(2), event.payload);
}

bool readLine(QStringList fields, Event &event)
{
    bool isTime = false;
    event.atMs = fields.takeFirst().toLongLong(&isTime);
    const QString name = fields.isEmpty() ? QString() : fields.takeFirst();
    if (!isTime || event.atMs < 0)
        return false;
    for (const KindName &row : kindNames) {
        if (name != QLatin1String(row.name))
            continue;
        event.kind = row.kind;
        return row.kind == Kind::key       ? readKey(fields, event)
               : row.kind == Kind::message ? readMessage(fields, event)
               : row.kind == Kind::failed  ? readFailed(fields, event)
                                           : readReport(fields, event);
    }
    return false;
}
} // namespace

QString toText(const Event &event)
{
    QString name;
    for (const KindName &row : kindNames) {
        if (row.kind == event.kind)
            name = row.name;
    }
    return QString("%1 %2 %3").arg(event.atMs).arg(name, fieldsOf(event)).trimmed();
}

QString parse(const QString &text, QVector<Event> &events)
{
    QStringList lines = text.split('\n');
    if (!lines.takeLast().isEmpty())
        return QString("line %1 is cut: its end is missing").arg(lines.size() + 1);
    qint64 lastMs = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].section('#', 0, 0).simplified();
        if (line.isEmpty())
            continue;
        Event event;
        if (!readLine(line.split(' '), event))
            return QString("line %1 is no event: %2").arg(i + 1).arg(lines[i]);
        if (event.atMs < lastMs)
            return QString("line %1 is earlier than the one before").arg(i + 1);
        lastMs = event.atMs;
        events.append(event);
    }
    return QString();
}
} // namespace session
