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

constexpr Piece spared[] = {
    {0x2006, 21, bitOf(keepAddress) | bitOf(keepUserData)}, // network
    {0x2F10, 2, bitOf(keepUserData)},                       // preset in use
    {0x3000, 10 * 0x1200, bitOf(keepUserData)},             // presets
    {0xD14000, 1, bitOf(keepUserData)},                     // has a name
    {0xD14100, 64, bitOf(keepUserData)},                    // name
    {0xE00000, 9 * 32, always},                             // signals of the inputs
    {0xE0101F, 1, always},                                  // links of the ports
    {0xE0109F, 1, always},
    {0xE01126, 1, always},
    {0xE011E0, 2, always}, // and which of them are idle
};

/// What is empty at delivery, apart from what the plausible device brings.
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
    for (const Piece &piece : spared) {
        if (piece.sparedBy & bitOf(Kind(kind)))
            kept.append({piece.address, flash.read(piece.address, piece.length)});
    }
    for (const Piece &piece : cleared)
        flash.write(piece.address, QByteArray(piece.length, 0));
    registers.powerOff();
    for (const FlashPiece &piece : plausibleDevice() + kept)
        flash.write(piece.address, piece.bytes);
    return true;
}
} // namespace factory
