// Network: manual or automatic address, and the checks before a manual one is applied.

#include "framework/engine/parachange.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

#include <array>

namespace VASK
{
namespace
{
using Address = std::array<int, 4>;

constexpr int loopbackNet = 127;
constexpr const char *defaultAddress = "192.168.0.10";
constexpr const char *defaultMask = "255.255.255.0";
constexpr const char *defaultGateway = "192.168.0.1";

Address parse(const QString &text)
{
    const QStringList numbers = text.split('.');
    Address address{};
    for (size_t i = 0; i < address.size(); ++i)
        address[i] = numbers.value(int(i)).toInt();
    return address;
}

/// A mask is ones followed by zeros.
bool maskIsRight(const Address &mask)
{
    qDebug() << "strBinMaskstrBinMaskstrBinMaskstrBinMaskstrBinMask";
    QString digits;
    for (int number : mask)
        digits += QString("%1").arg(number, 8, 2, QChar('0'));
    const int zero = digits.indexOf('0');
    const int one = digits.lastIndexOf('1');
    qDebug() << "ZeroPos" << zero << "OnePos" << one;
    return zero < 0 || zero > one;
}

/// The mask of the address's class; empty for an address of no class that hosts use.
QString classMask(int firstNumber)
{
    struct Class {
        int first, last;
        const char *mask;
    };
    static constexpr Class classes[] = {
        {1, 126, "255.0.0.0"},
        {128, 191, "255.255.0.0"},
        {192, 223, "255.255.255.0"},
    };
    for (const Class &row : classes)
        if (firstNumber >= row.first && firstNumber <= row.last)
            return row.mask;
    return {};
}

void enableAddress(ParaChange &change, bool on)
{
    for (int i = MENU_Net_IPAddress; i <= MENU_Net_Reset; ++i) {
        change.enable(ENUM_MenuIndex(i), on);
        change.refresh(ENUM_MenuIndex(i));
    }
}

void applyMode(ParaChange &change)
{
    if (change.value == automaticAddress) {
        enableAddress(change, false);
        change.set(MENU_DhcpDone, "0");
        change.home().showAddress("WaitIP");
    } else {
        change.home().showAddress(change.item(MENU_Net_IPAddress));
        enableAddress(change, true);
    }
    change.tail();
}

void applyAddress(ParaChange &change)
{
    if (change.fromDevice()) {
        change.home().showAddress(change.value);
        change.set(MENU_DhcpDone, "1");
    }
    change.tail();
}

/// Refuses a wrong address or mask with its message. True if both are right.
bool checkAddressAndMask(ParaChange &change, const Address &ip, const Address &mask)
{
    const bool ipRight = ip[0] != loopbackNet;
    const bool maskRight = maskIsRight(mask);
    qDebug() << "bIsIpRight" << ipRight << "bIsMaskRight" << maskRight;
    if (!ipRight) {
        change.dialog(maskRight ? MSG_IpError : MSG_IpMaskError);
        change.engine.UpdateIp();
    } else if (!maskRight) {
        change.dialog(MSG_MaskError);
        const QString fallback = classMask(ip[0]);
        change.set(MENU_Net_SubnetMask, fallback);
        change.refresh(MENU_Net_SubnetMask);
        change.send(MENU_Net_SubnetMask, fallback);
    }
    return ipRight && maskRight;
}

bool gatewayIsInSubnet(const Address &ip, const Address &mask, const Address &gateway)
{
    for (size_t i = 0; i < ip.size(); ++i)
        if ((gateway[i] & mask[i]) != (ip[i] & mask[i]))
            return false;
    return true;
}

void applySettings(ParaChange &change)
{
    if (change.item(MENU_Net_NetMode) != manualAddress) {
        change.tail();
        return;
    }
    const Address ip = parse(change.item(MENU_Net_IPAddress));
    const Address mask = parse(change.item(MENU_Net_SubnetMask));
    if (!checkAddressAndMask(change, ip, mask))
        return;
    if (!gatewayIsInSubnet(ip, mask, parse(change.item(MENU_Net_Gateway)))) {
        change.dialog(MSG_GatewayError);
        change.engine.UpdateIp();
        return;
    }
    change.dialog(MSG_Waiting);
    change.dialog(MSG_NetParameterSetSucceed);
    change.home().showAddress(change.item(MENU_Net_IPAddress));
    change.tail();
}

void resetAddress(ParaChange &change)
{
    if (!change.confirmed(MENU_Net_Reset))
        return;
    struct Default {
        ENUM_MenuIndex item;
        const char *value;
    };
    static constexpr Default defaults[] = {
        {MENU_Net_IPAddress, defaultAddress},
        {MENU_Net_SubnetMask, defaultMask},
        {MENU_Net_Gateway, defaultGateway},
    };
    for (const Default &row : defaults) {
        change.enable(row.item, true);
        change.set(row.item, row.value);
        change.refresh(row.item);
    }
    change.send(MENU_Net_Apply, QString());
    change.home().showAddress(defaultAddress);
}

constexpr ApplyCase cases[] = {
    {MENU_Net_NetMode, applyMode},
    {MENU_Net_IPAddress, applyAddress},
    {MENU_Net_Apply, applySettings},
    {MENU_Net_Reset, resetAddress},
};
} // namespace

Table<ApplyCase> networkCases()
{
    return cases;
}
} // namespace VASK
