#include "emulator/bus/plausibledevice.h"

#include "emulator/bus/flashmap.h"
#include "emulator/model/block.h"
#include "emulator/model/crops.h"
#include "emulator/model/devicename.h"
#include "emulator/model/inputs.h"
#include "emulator/model/layers.h"
#include "emulator/model/pictures.h"
#include "emulator/model/presets.h"
#include "emulator/model/registermap.h"

namespace
{
constexpr int wallWidth = 1920;
constexpr int wallHeight = 1080;
constexpr int rateCentiHz = 6000;
constexpr int pipWidth = 480;
constexpr int pipHeight = 270;

QByteArray deviceBlock()
{
    Block block(flashmap::deviceLength);
    block.u8(1, 1).u16(2, 50);                                   // fade, 0.5 s
    block.u8(4, 3).u8(5, 5);                                     // normal display, test pattern
    block.u16(6, 192).u16(8, 168).u16(10, 0).u16(12, 10);        // address
    block.u16(14, 255).u16(16, 255).u16(18, 255).u16(20, 0);     // mask
    block.u8(22, 192).u8(23, 168).u8(24, 0).u8(25, 1).u8(26, 0); // gateway, no DHCP
    block.u8(43, 1);                                             // would follow HDMI 1
    block.u16(51, 50);                                           // to black in 0.5 s
    block.u8(66, 3).u8(67, 5).u8(68, 3);                         // test pattern
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

/// The main layer with HDMI 1 over the whole wall; small windows in its lower corners wait to be shown.
QByteArray windowsBlock(bool withPip)
{
    constexpr int first = 0x10;
    layers::Layer list[layers::count];
    list[0] = {true, inputs::hdmi1, 0, 0, 0, wallWidth, wallHeight, 100};
    list[1] = {withPip, inputs::hdmi1, 1, 0, 0, pipWidth, pipHeight, 100};
    list[2] = {false, inputs::hdmi1, 2, pipWidth, 0, pipWidth, pipHeight, 100};
    QByteArray block(flashmap::windowsLength, 0);
    for (int layer = 0; layer < layers::count; ++layer)
        block.replace(first + layers::recordLength * layer, layers::recordLength,
                      layers::record(list[layer]));
    return block;
}

QByteArray picturesBlock(int brightness)
{
    QByteArray block;
    pictures::Picture picture;
    picture.brightness = brightness;
    for (int record = 0; record < pictures::count; ++record)
        block += pictures::bytes(record, picture);
    return block.leftJustified(flashmap::picturesLength, '\0');
}

QByteArray cropsBlock()
{
    Block block(flashmap::cropsLength);
    for (int layer = 0; layer < layers::count; ++layer) {
        for (int input = 0; input <= inputs::dvi2; ++input) {
            const int at = int(crops::recordAddress(layer, input) - crops::firstRegister);
            if (at + crops::recordLength <= flashmap::cropsLength)
                block.u16(at + 7, wallWidth).u16(at + 9, wallHeight);
        }
    }
    return block;
}

/// What is on the wall, as the live record and the presets keep it.
QByteArray wallRecord(bool withPip = false, int brightness = 50)
{
    QByteArray bytes(presets::recordLength, 0);
    for (const auto &part : {std::make_pair(flashmap::windowsOffset, windowsBlock(withPip)),
                             std::make_pair(flashmap::picturesOffset, picturesBlock(brightness)),
                             std::make_pair(flashmap::cropsOffset, cropsBlock())})
        bytes.replace(part.first, part.second.size(), part.second);
    return bytes;
}

QByteArray outputBlock()
{
    return Block(flashmap::outputLength)
        .u16(3, wallWidth)
        .u16(5, wallHeight)
        .u16(7, rateCentiHz)
        .u16(10, wallWidth)
        .u16(12, wallHeight)
        .u16(14, rateCentiHz);
}

QByteArray inputsBlock()
{
    Block block(flashmap::inputsLength);
    constexpr int switches = int(flashmap::inputSwitches - flashmap::inputs);
    block.u8(switches, 1);
    for (int input = 0; input < inputs::reference; ++input)
        block.u8(switches + 1 + 2 * input, input <= inputs::hdmi2 ? 1 : 0);
    return block;
}

/// Registers that the device keeps for itself.
QVector<FlashPiece> ownRegisters()
{
    struct Value {
        quint8 deviceType;
        quint32 address;
        QByteArray bytes;
    };
    QVector<Value> values = {
        {sendingSide, cabinetRegister, Block(4).u16(0, wallWidth / 4).u16(2, wallHeight / 4)}, // cabinets
        {sendingSide, linkRegisters[0], QByteArray(1, 0x0F)},                      // four ports linked
        {sendingSide, idleRegister, QByteArray("\xF0\x03", 2)},                    // the others idle
        {sendingSide, osdRegister + osdPriorityOffset, QByteArray(1, osdInFront)}, // OSD in front
        {sendingSide, osdPictureRegister, QByteArray(osdPictureCount, 1)},         // with all pictures
        // The quick form as a panel shows it, which is never told: one row, one column, one cabinet a port.
        {sendingSide, screenPortRegister, Block(4).u8(0, 1).u8(1, 1).u16(2, 1)},
        {receivingCard, cardBrightnessRegister, QByteArray(1, char(60 * 255 / 100))}, // brightness
        {receivingCard, cardGammaRegister, QByteArray(1, 28)},                        // gamma
    };
    values.append(
        {receivingCard, cardColoursRegister, Block(3).u8(0, 255).u8(1, 249).u8(2, 253)}); // standard
    for (int input = 0; input < inputs::count; ++input) {
        inputs::Signal signal;
        signal.stable = input == inputs::hdmi1;
        signal.mode = {wallWidth, wallHeight, rateCentiHz, false};
        values.append({sendingSide, inputs::recordAddress(input), inputs::record(input, signal)});
    }
    QVector<FlashPiece> pieces;
    for (const Value &value : values)
        pieces.append({quint32(FlashImage::mirrorAddress(value.deviceType, value.address)), value.bytes});
    return pieces;
}
} // namespace

QVector<FlashPiece> deliveredDevice()
{
    const QString name = "LED Wall 4x4";
    return QVector<FlashPiece>{
               {flashmap::device, deviceBlock()},
               {flashmap::stereo, stereoBlock()},
               {flashmap::presetInUse, QByteArray(1, presets::noneInUse)},
               {flashmap::live, wallRecord()},
               {flashmap::output, outputBlock()},
               {flashmap::inputBackup, Block(53).u8(0, 255).u8(18, 255).u8(22, 255).u8(26, 255)},
               {flashmap::loadArea, Block(28).u16(24, wallWidth).u16(26, wallHeight)},
               {flashmap::inputs, inputsBlock()},
               {flashmap::renamed, devicename::mark(name)},
               {flashmap::name, devicename::record(name)},
           } +
           ownRegisters();
}

QVector<FlashPiece> plausibleDevice()
{
    const QString news = QString::fromUtf8("新闻直播");
    return deliveredDevice() + QVector<FlashPiece>{
                                   {flashmap::presetInUse, QByteArray(1, 0)},
                                   {presets::recordAddress(0), presets::record(wallRecord(), "Concert")},
                                   {presets::recordAddress(1), presets::record(wallRecord(true, 60), news)},
                               };
}
