#include "emulator/bus/plausibledevice.h"

#include "emulator/bus/presets.h"

#include <QtEndian>

namespace
{
constexpr int wallWidth = 1920;
constexpr int wallHeight = 1080;
constexpr int rateCentiHz = 6000;

/// Bytes of a block, put at their offsets.
class Block
{
public:
    explicit Block(int length) : m_bytes(length, 0) {}

    template <class Number> Block &put(int offset, Number number)
    {
        qToLittleEndian(number, m_bytes.data() + offset);
        return *this;
    }
    Block &u8(int offset, int number) { return put(offset, quint8(number)); }
    Block &u16(int offset, int number) { return put(offset, quint16(number)); }
    Block &i32(int offset, int number) { return put(offset, qint32(number)); }
    operator QByteArray() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

QByteArray deviceBlock()
{
    Block block(161);
    block.u8(1, 1).u16(2, 50);                                   // fade, 0.5 s
    block.u16(6, 192).u16(8, 168).u16(10, 0).u16(12, 10);        // address
    block.u16(14, 255).u16(16, 255).u16(18, 255).u16(20, 0);     // mask
    block.u8(22, 192).u8(23, 168).u8(24, 0).u8(25, 1).u8(26, 0); // gateway, no DHCP
    block.u16(51, 50);                                           // to black in 0.5 s
    block.u8(5, 5).u8(66, 3).u8(67, 5).u8(68, 3);                // test pattern
    block.u8(158, 1).u8(159, 50);                                // audio of the main layer
    return block;
}

QByteArray stereoBlock()
{
    return Block(11)
        .u8(0, 40)
        .u8(1, 100)
        .u8(2, 40)
        .u16(3, 960)
        .u16(5, 540)
        .u16(8, 7000 * 125 & 0xffff)
        .u8(10, 7000 * 125 >> 16);
}

QByteArray windowsBlock()
{
    constexpr int first = 0x10, stride = 48;
    Block block(160);
    block.u8(first, 1)
        .u8(first + 3, 1)
        .u8(first + 4, 17)
        .i32(first + 13, wallWidth)
        .i32(first + 17, wallHeight);
    for (int pip : {1, 2}) {
        const int at = first + pip * stride;
        block.u8(at + 2, pip)
            .u8(at + 3, pip + 1)
            .i32(at + 5, 480 * (pip - 1))
            .i32(at + 13, 480)
            .i32(at + 17, 270);
    }
    return block;
}

QByteArray picturesBlock()
{
    constexpr int sourceCodes[] = {17, 18, 105, 106, 48};
    Block block(160);
    for (int input = 0; input < 5; ++input) {
        const int at = 20 * input;
        block.u8(at, sourceCodes[input]).u8(at + 1, 50).u8(at + 2, 50).u8(at + 4, 50);
    }
    return block;
}

QByteArray cropsBlock()
{
    Block block(412);
    for (int layer = 0; layer < 3; ++layer) {
        for (int input = 0; input < 5; ++input) {
            const int at = 0x14 + 132 * layer + 16 * input;
            if (at + 11 <= 412)
                block.u16(at + 7, wallWidth).u16(at + 9, wallHeight);
        }
    }
    return block;
}

QByteArray outputBlock()
{
    return Block(16)
        .u16(3, wallWidth)
        .u16(5, wallHeight)
        .u16(7, rateCentiHz)
        .u16(10, wallWidth)
        .u16(12, wallHeight)
        .u16(14, rateCentiHz);
}

QByteArray inputsBlock()
{
    Block block(64);
    block.u8(48, 1);
    for (int input = 0; input < 8; ++input)
        block.u8(49 + 2 * input, input < 2 ? 1 : 0);
    return block;
}

QByteArray nameBlock()
{
    Block block(64);
    const QString name = "LED Wall 4x4";
    for (int i = 0; i < name.size(); ++i)
        block.u16(2 * i, name[i].unicode());
    return block;
}
} // namespace

QVector<FlashPiece> plausibleDevice()
{
    return {
        {0x2000, deviceBlock()},
        {0x2400, stereoBlock()},
        {presets::inUseAddress, QByteArray(1, 0)},
        {presets::recordAddress(0), presets::record("Concert")},
        {presets::recordAddress(1), presets::record(QString::fromUtf8("新闻直播"))},
        {0xE800, windowsBlock()},
        {0xEA00, picturesBlock()},
        {0xEE00, cropsBlock()},
        {0xF600, outputBlock()},
        {0x10600, Block(53).u8(0, 255).u8(18, 255).u8(22, 255).u8(26, 255)},
        {0x12600, Block(28).u16(24, wallWidth).u16(26, wallHeight)},
        {0x15600, inputsBlock()},
        {0xD14000, QByteArray(1, char(0x9A))},
        {0xD14100, nameBlock()},
    };
}
