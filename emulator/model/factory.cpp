#include "emulator/model/factory.h"

#include "emulator/bus/flashmap.h"
#include "emulator/bus/plausibledevice.h"
#include "emulator/model/inputs.h"
#include "emulator/model/registermap.h"
#include "emulator/model/service.h"

namespace factory
{
namespace
{
constexpr quint32 resetRegister = 0x01000002;
constexpr int resetMs = 500;
constexpr int restartMs = 1000;

/// What a reset spares; cables stay plugged in all of them.
enum Kind { keepAddress = 0, everything = 1, keepUserData = 2 };

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
    {flashmap::presetInUse, 2, bitOf(keepUserData)},
    {flashmap::firstPreset, flashmap::presetCount *flashmap::presetLength, bitOf(keepUserData)},
    {flashmap::renamed, 1, bitOf(keepUserData)},
    {flashmap::name, flashmap::nameLength, bitOf(keepUserData)},
};

/// Registers: the network, and what tells of cables.
const QVector<Piece> &sparedRegisters()
{
    static const QVector<Piece> pieces = {
        {networkRegister, networkLength + 1,
         bitOf(keepAddress) | bitOf(keepUserData)}, // and whether it is got
        {inputs::recordAddress(inputs::hdmi1), inputs::mosaic * inputs::recordLength, always},
        {inputs::recordAddress(inputs::reference), inputs::recordLength, always},
        {linkRegisters[0], 1, always},
        {linkRegisters[1], 1, always},
        {linkRegisters[2], 1, always},
        {idleRegister, idleLength, always},
        {opticalLinkRegister, 1, always},
        {opticalPortRegister, opticalPortLength, always},
    };
    return pieces;
}

/// What is empty at delivery, apart from what a delivered device brings.
constexpr Piece cleared[] = {
    {flashmap::device, flashmap::smallBlocksLength, always},
    {flashmap::firstPreset, (flashmap::presetCount + 1) * flashmap::presetLength, always},
    {flashmap::output, flashmap::outputLength, always},
    {flashmap::own, flashmap::ownLength, always},
};

/// False if there is no such kind.
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
    for (const Piece &piece : sparedRegisters()) {
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

/// Answers with the kind of reset, and then tells what is left.
Reports obeyReset(Registers &registers, const RegisterRow &row, int, const Write &write)
{
    if (!reset(registers, quint8(write.bytes[0])))
        return {};
    Reports reports = {{row.first, write.bytes.left(1), resetMs}};
    for (const Subject &subject : allSubjects()) {
        for (Report report : subject.reports(registers)) {
            if (report.address == service::upRegister)
                continue; // the services stay up
            report.afterMs = restartMs;
            reports.append(report);
        }
    }
    return reports;
}
} // namespace

RegisterRow resetRow()
{
    return {resetRegister, 1, 1, 0, obeyReset};
}
} // namespace factory
