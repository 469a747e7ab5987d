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

QString limitLoadAreaSize(ParaProcess &engine, const QString &value, ENUM_MenuIndex index)
{
    const bool isWidth = index == MENU_ImageMosaic_LoadAreaWidth;
    const int output = engine.processData().value(isWidth ? PARA_OutputWidth : PARA_OutputHeight);
    qDebug() << "cur_width" << value << "output_width" << output;
    return atMost(value, output);
}

QString limitLoadAreaStart(ParaProcess &engine, const QString &value, ENUM_MenuIndex index)
{
    const bool isX = index == MENU_ImageMosaic_LoadAreaInitialX;
    const int size = uint16_t(
        engine.GetParaFromIndex(isX ? MENU_ImageMosaic_LoadAreaWidth : MENU_ImageMosaic_LoadAreaHeight)
            .toInt());
    qDebug() << "hor_totla_points" << coordinateEnd << "region_width" << size << "para" << value;
    return atMost(value, coordinateEnd - size);
}

/// A size and its start together may not pass the input's size.
QString limitCrop(ParaProcess &engine, const QString &value, ENUM_MenuIndex index)
{
    const int layer = (index - MENU_MainLayerCrop_Status) / STRIDE_Crop;
    const ENUM_MenuIndex status = nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop);
    const int field = index - status; // 1 width, 2 height, 3 X, 4 Y
    const ENUM_MenuIndex partner = nth(index, field <= 2 ? 2 : -2);
    const ENUM_MenuIndex source = nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer);
    const InputRecord input = engine.processData().input(engine.GetParaFromIndex(source).toInt());
    const int size = field % 2 == 1 ? input.width : input.height;
    return atMost(value, size - uint16_t(engine.GetParaFromIndex(partner).toInt()));
}

QString limitMosaic(ParaProcess &engine, const QString &value, ENUM_MenuIndex index)
{
    const ENUM_MenuIndex partner = index == MENU_Mosaic_Width ? MENU_Mosaic_Height : MENU_Mosaic_Width;
    const uint64_t other = uint16_t(engine.GetParaFromIndex(partner).toInt());
    const uint64_t size = uint16_t(value.toInt());
    if (other == 0 || size * other * 2 < mosaicAreaTwice)
        return value;
    return QString::number(uint16_t(mosaicArea / other));
}

constexpr LimitCase cases[] = {
    {MENU_ImageMosaic_LoadAreaWidth, MENU_ImageMosaic_LoadAreaHeight, limitLoadAreaSize},
    {MENU_ImageMosaic_LoadAreaInitialX, MENU_ImageMosaic_LoadAreaInitialY, limitLoadAreaStart},
    {MENU_MainLayerCrop_HorWidth, MENU_MainLayerCrop_InitialY, limitCrop},
    {MENU_PIP1Crop_HorWidth, MENU_PIP1Crop_InitialY, limitCrop},
    {MENU_PIP2Crop_HorWidth, MENU_PIP2Crop_InitialY, limitCrop},
    {MENU_Mosaic_Width, MENU_Mosaic_Height, limitMosaic},
};
} // namespace

LimitFamily layerLimits()
{
    return {cases, int(std::size(cases))};
}
} // namespace VASK
