// The tables of the inputs, built once from the device's own list.
#include "framework/engine/paraprocess.h"
#include "framework/protocol/inputcodes.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "menu/itemindex.h"

#include <QDebug>

namespace VASK
{
namespace
{
/// The inputs of a mosaic in the order of the arrangement's rows.
constexpr InputCode mosaicInputs[] = {INPUT_HDMI1, INPUT_HDMI2, INPUT_DVI1,
                                      INPUT_DVI2,  INPUT_OPT1,  INPUT_OPT2};

bool takesEdid(unsigned char code)
{
    return code == INPUT_DVI1 || code == INPUT_HDMI1 || code == INPUT_HDMI2 || code == INPUT_SDI;
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
    if (code == INPUT_SDI)
        bHaveSDI = true;
    if (code == INPUT_SyncReference)
        closeInputTables();
}

void Proto3rdReceiveParse::closeInputTables()
{
    unsigned char row = 0;
    for (InputCode input : mosaicInputs) {
        for (unsigned char code :
             {static_cast<unsigned char>(input), static_cast<unsigned char>(otherCode(input))})
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
