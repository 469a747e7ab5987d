#include "framework/protocol/send/sendrow.h"

#include "framework/engine/paraprocess.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
QString SendChange::item(ENUM_MenuIndex other) const
{
    const ParaProcess *engine = Proto3rdSend::engine();
    return engine ? engine->GetParaFromIndex(other) : QString();
}

void SendChange::log(const QByteArray &data) const
{
    qDebug() << "inputstr:" << value << "--parsedata:" << data.toHex(' ');
}

WritePackage SendChange::package(const QByteArray &data, int number) const
{
    return row.builder.package(data, number, tag());
}

int SendChange::send(WritePackage package) const
{
    const int result = Proto3rdSend::SendMsgFromCommunication(std::move(package));
    if (result != SEND_Done)
        qDebug() << row.failText;
    return result;
}

int SendChange::sendBytes(const QByteArray &data) const
{
    log(data);
    return send(package(data));
}

const QVector<Table<SendRow>> &sendFamilies()
{
    static const QVector<Table<SendRow>> families{
#define FPD_FAMILY(name) name##Rows(),
#include "framework/protocol/send/families.def"
#undef FPD_FAMILY
    };
    return families;
}

int sendPlain(const SendChange &change)
{
    QByteArray data;
    if (change.row.form.encode(change.value, data))
        return change.sendBytes(data);
    qDebug() << change.row.refusal << change.value;
    return SEND_Failed;
}
} // namespace VASK
