// Gamma: the exponent goes to the receiving cards together with the table that was computed from it.

#include "framework/protocol/send/sendrow.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
using P = TGProtocolParser3rd;

constexpr int exponentScale = 10; ///< the register holds tenths

/// The sending side's table, a copy for each colour.
int writeSenderTable(const SendChange &change, const QByteArray &table, unsigned int lowAddress)
{
    struct Channel {
        RegisterAddress address;
        const char *name;
    };
    static constexpr Channel channels[] = {{REG_SenderGammaRed, "redGamma"},
                                           {REG_SenderGammaGreen, "greenGamma"},
                                           {REG_SenderGammaBlue, "blueGamma"}};
    for (const Channel &channel : channels) {
        const QString name(channel.name);
        if (change.send(P::Set_CommonWrite(table, channel.address + lowAddress, name)) != SEND_Done)
            return SEND_Failed;
    }
    return SEND_Done;
}

QByteArray repeatedPairs(const QByteArray &table, int times)
{
    QByteArray repeated;
    repeated.reserve(table.size() * times);
    for (int i = 0; i < table.size(); i += 2)
        repeated += table.mid(i, 2).repeated(times);
    return repeated;
}

int sendGammaTableToSender(const SendChange &change, int gamma)
{
    constexpr unsigned int low10Bit = 0x2000;
    constexpr unsigned int low12Bit = 0;
    constexpr int repeats10Bit = 4;
    const GammaSettings &settings = Proto3rdSend::m_gamma;
    QByteArray table = GetGammaTable(GetGammaValue(gamma / double(exponentScale), settings.m_HDEnableType));
    if (settings.m_HDEnableType == HDENABLE_10Bit)
        table = repeatedPairs(table, repeats10Bit);
    return writeSenderTable(change, table, settings.m_sendCardBit == 10 ? low10Bit : low12Bit);
}

/// Empty for a chip whose cards make the table themselves.
QVector<int> getGammaTable(int gamma)
{
    const GammaSettings &settings = Proto3rdSend::m_gamma;
    qDebug("m_chipType:%d", settings.m_chipType);
    if (settings.m_chipType != 0)
        return {};
    qDebug() << "getUniversalGammaTable";
    return CountGammaCurve(gamma / double(exponentScale), settings.m_grayDepth, 1.0, settings.m_lowGrayQuery,
                           settings.m_grayRealize, 0);
}

int SendGammaTable(const SendChange &change, const QByteArray &table)
{
    return change.send(P::Set_ScannerCommonWrite(table, table.size(), REG_ReceivingCardGamma));
}

int ScannerGammaChanged(const SendChange &change)
{
    const int gamma = int(change.value.toDouble() * exponentScale);
    const int sendCardBit = Proto3rdSend::m_gamma.m_sendCardBit;
    qDebug("m_sendCardBit:%d", sendCardBit);
    if (sendCardBit == 10 || sendCardBit == 12)
        sendGammaTableToSender(change, gamma);
    const int result = change.sendBytes(littleEndian(gamma, 1));
    if (result != SEND_Done)
        return result;
    const QVector<int> table = getGammaTable(gamma);
    return table.isEmpty() ? int(SEND_Done) : SendGammaTable(change, GetGammaTable(table));
}

constexpr SendRow rows[] = {
    own(MENU_Color_Gamma, ScannerGammaChanged, P::Set_AcceptCardGammaData),
};
} // namespace

Table<SendRow> gammaRows()
{
    return rows;
}
} // namespace VASK
