// The picture that the device lays over the wall.
#include "emulator/model/block.h"
#include "emulator/model/registermap.h"
#include "emulator/model/subject.h"

namespace
{
struct Osd {
    bool on = false;
    bool inFront = true;
    int picture = 0;
    int x = 0, y = 0;
};

constexpr int osdLength = 40;

// Offsets in the OSD register.
constexpr int offsetOn = 0, offsetPicture = 3, offsetX = 32, offsetY = 36;

Osd read(const Registers &registers)
{
    const Block block(registers.read(osdRegister, osdLength), osdLength);
    return {block.u8(offsetOn) != 0, block.u8(osdPriorityOffset) == osdInFront, block.u8(offsetPicture),
            block.i32(offsetX), block.i32(offsetY)};
}

/// Priority comes as low or high; the device keeps it as the place among everything on the wall.
Reports obeyOsd(Registers &registers, const RegisterRow &row, int member, Write const &write)
{
    Write kept = write;
    if (write.address == osdRegister + osdPriorityOffset && write.bytes.size() == 1 && write.bytes[0] != 0)
        kept.bytes[0] = osdInFront;
    return obey::storeAndReport(registers, row, member, kept);
}

Reports allReports(const Registers &registers)
{
    Reports list = {{osdRegister, registers.read(osdRegister, osdLength)}};
    for (quint32 picture = 0; picture < osdPictureCount; ++picture)
        list.append({osdPictureRegister + picture, registers.read(osdPictureRegister + picture, 1)});
    return list;
}

QStringList describe(const Registers &registers)
{
    const Osd osd = read(registers);
    return {QString("OSD: %1, picture %2 at %3,%4, %5")
                .arg(onOff(osd.on))
                .arg(osd.picture)
                .arg(osd.x)
                .arg(osd.y)
                .arg(osd.inFront ? "in front" : "behind")};
}
} // namespace

Subject osdSubject()
{
    return {"OSD",
            {{osdRegister, osdLength, 1, 0, obeyOsd},
             {osdPictureRegister, 1, osdPictureCount, 1, obey::storeAndReport}},
            allReports,
            describe};
}
