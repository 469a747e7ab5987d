// One report of the device as its handler gets it: a register address and the bytes that stand there now.
// Made on the report thread, read there, gone when the handler returns.
#pragma once

#include "framework/protocol/packet/bytes.h"
#include "framework/protocol/packet/packagebase.h"
#include "framework/protocol/packet/registeraddress.h"
#include "framework/table.h"
#include "menu/span.h"

#include <QByteArray>
#include <QString>

namespace VASK
{
/// What a package brought.
struct stMessageHandle {
    QByteArray data;
    unsigned int length = 0;  ///< as the frame tells it; may promise more than data holds
    unsigned int address = 0; ///< the high address in the upper 16 bits
    QString tag;
    unsigned char ackCode = 0;
    bool flag = false; ///< as it stood in the queue
    enum_ProtoType protoType = PROTO_Read;
};

class Proto3rdReceiveParse;

/// A report with the place of its register in the family, and readers that give 0 for bytes beyond the data;
/// without an offset the one number of which it consists. All numbers are little-endian.
struct Report {
    const stMessageHandle &message;
    Proto3rdReceiveParse &parse;
    int member; ///< number of the layer, input or port group, as the row counts them

    int u8(int offset = 0) const { return bytes().u8(offset); }
    int u16(int offset = 0) const { return bytes().u16(offset); }
    int u24(int offset = 0) const { return bytes().u24(offset); }
    int i32(int offset) const { return bytes().i32(offset); }
    ByteView bytes() const { return ByteView(message.data); }
};

/// Registers, and what is done with their reports.
struct ReportRow {
    Span<RegisterAddress> span;
    /// 0 done, 1 nothing to do with it, 2 bad value, 3 failed; only for the eye.
    int (*handle)(const Report &report);
    int bytesNeeded = 0;

    /// Without so many bytes a report says nothing: a shorter one is dropped.
    constexpr ReportRow needs(int bytes) const { return {span, handle, bytes}; }
};

/// One register, or each of a family of registers.
constexpr ReportRow report(Span<RegisterAddress> registers, int (*handle)(const Report &))
{
    return {registers, handle};
}
/// The register of one member, where those of the others lie elsewhere.
constexpr ReportRow report(RegisterAddress address, int member, int (*handle)(const Report &))
{
    return {{address, address, {0, 1, member}}, handle};
}

#define FPD_FAMILY(name) Table<ReportRow> name##Reports();
#include "framework/protocol/receive/families.def"
#undef FPD_FAMILY
} // namespace VASK
