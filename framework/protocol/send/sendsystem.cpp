// The device as a whole: backup, work mode, resets, self test, network and the way to a computer.

#include "framework/protocol/send/sendrow.h"

#include "menu/itemindex.h"
#include "menu/itemvalue.h"
#include "sysconf.h"

#include <QDebug>
#include <QStringList>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

/// A device in reserve listens on the word's ports and takes over by the byte.
int HotBackupChanged(const SendChange &change)
{
    static constexpr RegisterAddress portRegisters[] = {REG_PortBackup_Group1, REG_PortBackup_Group2,
                                                        REG_PortBackup_Group3, REG_PortBackup_Group4};
    const bool primary = isOff(change.value);
    const QByteArray word(4, primary ? '\0' : char(0x80));
    const QByteArray role = littleEndian(isOn(change.value) ? 0xA5 : 0x5A, 1);

    change.log(word + role);
    for (RegisterAddress address : portRegisters)
        if (change.send(P::Set_CommonWrite(word, address, change.tag())) != SEND_Done)
            return SEND_Failed;
    return change.send(P::Set_CommonWrite(role, REG_BackupRole, change.tag()));
}

/// The four numbers of a dotted address, each a byte that starts a field of that width. False for a text
/// without four parts.
bool appendAddress(const QString &text, int fieldWidth, QByteArray &data)
{
    constexpr int parts = 4;
    const QStringList numbers = text.split('.');
    if (numbers.size() != parts)
        return false;
    for (const QString &number : numbers)
        data += littleEndian(number.toInt() & 0xFF, fieldWidth);
    return true;
}

int SetNetWorkInfo(const SendChange &change, const QString &ip, const QString &mask, const QString &gateway)
{
    QByteArray data;
    if (!appendAddress(ip, 2, data) || !appendAddress(mask, 2, data) || !appendAddress(gateway, 1, data)) {
        qDebug() << "network address is invalid:" << ip << mask << gateway;
        return SEND_BadValue;
    }
    const int result = change.sendBytes(data);
    if (result == SEND_Done)
        qDebug() << "SEND END!" << ip << mask << gateway;
    return result;
}

int NetWorkApply(const SendChange &change)
{
    qDebug() << "NetWorkApply NetWorkApply NetWorkApply NetWorkApply NetWorkApply";
    return SetNetWorkInfo(change, change.item(MENU_Net_IPAddress), change.item(MENU_Net_SubnetMask),
                          change.item(MENU_Net_Gateway));
}

QString GetEnvVariable(const char *name)
{
    QString value;
    if (sysconf_openenv() == 0) {
        value = QString::fromUtf8(sysconf_getenv(name));
        sysconf_closeenv();
    }
    return value;
}

int ResetNetClick(const SendChange &change)
{
    return SetNetWorkInfo(change, GetEnvVariable("defaultIp"), GetEnvVariable("defaultMask"),
                          GetEnvVariable("defaultGw"));
}

constexpr SendRow sendcardModeToSender()
{
    SendRow row = plain(EVENT_SendingCardMode, onOff(165, 0), P::Set_SendcardModeToSenderValue);
    row.failText = "SendMsg fail";
    return row;
}

constexpr SendRow rows[] = {
    own(MENU_DeviceBackup, HotBackupChanged),
    plain(MENU_OPT2Mode, zeroElse(0, 4), P::Set_FiberWorkModel),
    plain(MENU_SelfTest, fixed(0), P::Set_SelfTest),
    plain(MENU_SaveIP, fixed(0), P::Set_ReturnFactoryData),
    plain(MENU_SaveUserData, fixed(2), P::Set_ReturnFactoryData),
    plain(MENU_ResetAll, fixed(1), P::Set_ReturnFactoryData),
    plain(MENU_CommunicationMode, textElse("USBPreferred", 0, 1), P::Set_CommunicationModelData),

    plain(MENU_Net_NetMode, onOff(deviceOn, 0), P::Set_DHCPSwitchData),
    own(MENU_Net_Apply, NetWorkApply, P::Set_NetCommunicateData),
    own(MENU_Net_Reset, ResetNetClick, P::Set_NetCommunicateData),

    plain(MENU_FiberConverter, onOff(1, 0), P::Set_PhotoElectricityValue),
    plain(MENU_SendingCard, onOff(16, 0), P::Set_SendcardModeValue),
    sendcardModeToSender(),
};
} // namespace

Table<SendRow> systemRows()
{
    return rows;
}
} // namespace VASK
