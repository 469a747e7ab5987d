#include "emulator/model/factory.h"

#include "emulator/bus/plausibledevice.h"

namespace factory
{
namespace
{
struct Piece {
    quint32 address;
    int length;
    int sparedBy; ///< bits of the kinds
};

constexpr int bitOf(Kind kind)
{
    return 1 << kind;
}
constexpr int always = bitOf(keepAddress) | bitOf(everything) | bitOf(keepUserData);
constexpr int lastKind = keepUserData;

/// Pieces of the flash.
constexpr Piece sparedFlash[] = {
    {0x2F10, 2, bitOf(keepUserData)},           // preset in use
    {0x3000, 10 * 0x1200, bitOf(keepUserData)}, // presets
    {0xD14000, 1, bitOf(keepUserData)},         // has a name
    {0xD14100, 64, bitOf(keepUserData)},        // name
};

/// Registers.
constexpr Piece sparedRegisters[] = {
    {0x13000006, 21, bitOf(keepAddress) | bitOf(keepUserData)}, // network
    {0x13010001, 7 * 32, always},                               // signals of all inputs but the mosaic
    {0x13010101, 32, always},                                   // signal of the reference
    {0x0200001F, 1, always},                                    // links of the ports
    {0x0200009F, 1, always},
    {0x02000126, 1, always},
    {0x020001E0, 2, always}, // and which of them are idle
};

/// What is empty at delivery, apart from what a delivered device brings.
constexpr Piece cleared[] = {
    {0x2000, 0x1000, always},
    {0x3000, 11 * 0x1200, always},
    {0xF600, 16, always},
    {0xE00000, 0x2000, always},
};
} // namespace

bool reset(Registers &registers, int kind)
{
    if (kind < 0 || kind > lastKind)
        return false;
    FlashImage &flash = registers.flash();
    QVector<FlashPiece> kept;
    for (const Piece &piece : sparedFlash) {
        if (piece.sparedBy & bitOf(Kind(kind)))
            kept.append({piece.address, flash.read(piece.address, piece.length)});
    }
    QVector<FlashPiece> keptRegisters;
    for (const Piece &piece : sparedRegisters) {
        if (piece.sparedBy & bitOf(Kind(kind)))
            keptRegisters.append({piece.address, registers.read(piece.address, piece.length)});
    }
    for (const Piece &piece : cleared)
        flash.write(piece.address, QByteArray(piece.length, 0));
    registers.powerOff();
    for (const FlashPiece &piece : deliveredDevice() + kept)
        flash.write(piece.address, piece.bytes);
    for (const FlashPiece &piece : keptRegisters)
        registers.write(piece.address, piece.bytes);
    return true;
}
} // namespace factory
