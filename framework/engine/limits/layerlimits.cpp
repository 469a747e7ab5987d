// Limits of the load area, the input crop of the layers, and the input mosaic.

#include "framework/engine/limits/limits.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/processdata.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
constexpr int coordinateEnd = 32768;          ///< pixels
constexpr uint64_t mosaicArea = 2211840;      ///< pixels, 2048 times 1080
constexpr uint64_t mosaicAreaTwice = 4423681; ///< the first doubled area that is too large

/// The smaller one. A limit that other values have pushed below zero counts as zero.
QString atMost(const QString &value, int limit)
{
    return QString::number(qMin(value.toInt(), qMax(0, limit)));
}

QString limitLoadAreaSize(const ParaLimit &asked)
{
    const bool isWidth = asked.index == MENU_ImageMosaic_LoadAreaWidth;
    const int output = asked.engine.processData().value(isWidth ? PARA_OutputWidth : PARA_OutputHeight);
    qDebug() << "cur_width" << asked.value << "output_width" << output;
    return atMost(asked.value, output);
}

QString limitLoadAreaStart(const ParaLimit &asked)
{
    const bool isX = asked.index == MENU_ImageMosaic_LoadAreaInitialX;
    const int size = uint16_t(
        asked.engine.GetParaFromIndex(isX ? MENU_ImageMosaic_LoadAreaWidth : MENU_ImageMosaic_LoadAreaHeight)
            .toInt());
    qDebug() << "hor_totla_points" << coordinateEnd << "region_width" << size << "para" << asked.value;
    return atMost(asked.value, coordinateEnd - size);
}

/// A size and its start together may not pass the input's size.
QString limitCrop(const ParaLimit &asked)
{
    const ENUM_MenuIndex status = nth(MENU_MainLayerCrop_Status, asked.member, STRIDE_Crop);
    const int field = asked.index - status; // 1 width, 2 height, 3 X, 4 Y
    const ENUM_MenuIndex partner = nth(asked.index, field <= 2 ? 2 : -2);
    const ENUM_MenuIndex source = nth(MENU_MainLayer_InputSource, asked.member, STRIDE_Layer);
    const InputRecord input = asked.engine.processData().input(asked.engine.GetParaFromIndex(source).toInt());
    const int size = field % 2 == 1 ? input.width : input.height;
    return atMost(asked.value, size - uint16_t(asked.engine.GetParaFromIndex(partner).toInt()));
}

QString limitMosaic(const ParaLimit &asked)
{
    const ENUM_MenuIndex partner = asked.index == MENU_Mosaic_Width ? MENU_Mosaic_Height : MENU_Mosaic_Width;
    const uint64_t other = uint16_t(asked.engine.GetParaFromIndex(partner).toInt());
    const uint64_t size = uint16_t(asked.value.toInt());
    if (other == 0 || size * other * 2 < mosaicAreaTwice)
        return asked.value;
    return QString::number(uint16_t(mosaicArea / other));
}

constexpr LimitCase cases[] = {
    {range(MENU_ImageMosaic_LoadAreaWidth, MENU_ImageMosaic_LoadAreaHeight), limitLoadAreaSize},
    {range(MENU_ImageMosaic_LoadAreaInitialX, MENU_ImageMosaic_LoadAreaInitialY), limitLoadAreaStart},
    {each(FAMILY_Crop, MENU_MainLayerCrop_HorWidth, MENU_MainLayerCrop_InitialY), limitCrop},
    {range(MENU_Mosaic_Width, MENU_Mosaic_Height), limitMosaic},
};
} // namespace

Table<LimitCase> layerLimits()
{
    return cases;
}
} // namespace VASK
