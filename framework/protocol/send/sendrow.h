// The table of the send path: which items go to which register in which form. A row that is more than a form
// and a register names a function of its own. Rows are data; functions run on the thread of the change.
#pragma once

#include "framework/protocol/devicecodes.h"
#include "framework/protocol/link/proto3rdsend.h"
#include "framework/protocol/packet/tgprotocolparser3rd.h"
#include "framework/protocol/send/valueform.h"
#include "framework/table.h"
#include "menu/itemfamilies.h"
#include "menuconfig_k2860.h"

namespace VASK
{
/// The package of a builder, to all ports and boards behind the device; the numbers are those of an indexed
/// register.
template <class Builder, class... Numbers>
WritePackage toAllBoards(Builder builder, const QByteArray &data, const QString &tag, Numbers... numbers)
{
    constexpr unsigned char destination = 0;
    constexpr int timeOut = 10;
    return builder(DESPORTNAME, destination, allPorts, allBoards, timeOut, false, tag, data,
                   static_cast<unsigned char>(numbers)...);
}

/// A builder of the register catalogue, for one register or for a row of registers with a number each.
struct RegisterBuilder {
    using Plain = WritePackage (*)(QString, unsigned char, unsigned char, unsigned short, int, bool, QString,
                                   QByteArray);
    using Indexed = WritePackage (*)(QString, unsigned char, unsigned char, unsigned short, int, bool,
                                     QString, QByteArray, unsigned char);

    constexpr RegisterBuilder() = default;
    constexpr RegisterBuilder(Plain builder) : plain(builder) {}
    constexpr RegisterBuilder(Indexed builder) : indexed(builder) {}

    /// The package for these bytes. The number counts for a row of registers only.
    WritePackage package(const QByteArray &data, int number, const QString &tag) const
    {
        return indexed ? toAllBoards(indexed, data, tag, number) : toAllBoards(plain, data, tag);
    }

    Plain plain = nullptr;
    Indexed indexed = nullptr;
};

struct SendChange;

struct SendRow {
    ItemSpan span;
    int (*handler)(const SendChange &change) = nullptr;
    RegisterBuilder builder = {};
    ValueForm form = {};
    const char *failText = "SendMsg Faild!";
    const char *refusal = "strCurValue is invalid:";
};

/// One changed value on its way to the device.
struct SendChange {
    ENUM_MenuIndex index;
    const QString &value;
    const SendRow &row;
    int member; ///< number of the layer, input or port that the item belongs to
    int place;  ///< place of the item in the block of its member

    /// The current value of another item.
    QString item(ENUM_MenuIndex other) const;
    int number(ENUM_MenuIndex other) const { return item(other).toInt(); }
    QString tag() const { return QString::number(index); }
    void log(const QByteArray &data) const;

    /// The package that the row's builder makes of these bytes.
    WritePackage package(const QByteArray &data, int number) const;
    WritePackage package(const QByteArray &data) const { return package(data, member); }
    /// Queues a package and releases it; SEND_Done or SEND_Failed.
    int send(WritePackage package) const;
    /// Logs the bytes and queues them through the row's builder.
    int sendBytes(const QByteArray &data) const;
};

/// Puts the value into the row's form and sends it to the row's register.
int sendPlain(const SendChange &change);

constexpr SendRow plain(ItemSpan items, ValueForm form, RegisterBuilder builder)
{
    return {items, sendPlain, builder, form};
}
constexpr SendRow own(ItemSpan items, int (*handler)(const SendChange &), RegisterBuilder builder = {},
                      ValueForm form = {})
{
    return {items, handler, builder, form};
}

/// All of them; no item stands in two.
const QVector<Table<SendRow>> &sendFamilies();

#define FPD_FAMILY(name) Table<SendRow> name##Rows();
#include "framework/protocol/send/families.def"
#undef FPD_FAMILY
} // namespace VASK
