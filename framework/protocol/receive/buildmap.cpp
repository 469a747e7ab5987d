// The tables of the inputs, built once from the device's own list.
#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
/// Codes by which the device lists its inputs. HDMI and DVI have two families of codes; a device uses one of
/// them.
enum ListedCode : unsigned char {
    LISTED_DVI1 = 0,
    LISTED_HDMI1 = 17,
    LISTED_HDMI2 = 18,
    LISTED_SDI = 48,
    LISTED_HDMI1Alias = 97,
    LISTED_HDMI2Alias = 98,
    LISTED_DVI1Alias = 105,
    LISTED_DVI2 = 106,
    LISTED_OPT1 = 233,
    LISTED_OPT2 = 234,
    LISTED_SyncReference = 254,
};

/// The inputs of a mosaic in the order of the arrangement's rows, each with its codes.
struct MosaicInput {
    unsigned char code;
    unsigned char alias;
};

constexpr MosaicInput mosaicInputs[] = {
    {LISTED_HDMI1, LISTED_HDMI1Alias}, {LISTED_HDMI2, LISTED_HDMI2Alias}, {LISTED_DVI1, LISTED_DVI1Alias},
    {LISTED_DVI2, LISTED_DVI2},        {LISTED_OPT1, LISTED_OPT1},        {LISTED_OPT2, LISTED_OPT2},
};

bool takesEdid(unsigned char code)
{
    return code == LISTED_DVI1 || code == LISTED_HDMI1 || code == LISTED_HDMI2 || code == LISTED_SDI;
}
} // namespace

void Proto3rdReceiveParse::BuildMap(ENUM_MenuIndex index, unsigned char code)
{
    if (BuildOverFlag)
        return;
    qDebug() << receiveLogOrigin << __LINE__ << "BuildMap"
             << "MenuIndex" << index << "SourceCode" << code;
    inputSourceCode.insert(inputSourceNum, {inputSourceNum, code});
    if (takesEdid(code))
        EDIDSourceCode.insert(EDIDNum++, {inputSourceNum, code});
    ++inputSourceNum;
    if (code == LISTED_SDI)
        bHaveSDI = true;
    if (code == LISTED_SyncReference)
        closeInputTables();
}

void Proto3rdReceiveParse::closeInputTables()
{
    unsigned char row = 0;
    for (const MosaicInput &input : mosaicInputs) {
        for (unsigned char code : {input.code, input.alias})
            if (inputSourceCode.keyOfCode(code) != InputTable::noKey) {
                MosaicSourceCode.insert(row, {row, code});
                break;
            }
        ++row;
    }
    pParaProcess->HideSdiMenu(bHaveSDI);
    BuildOverFlag = true;
}
} // namespace VASK
