// The three layers as the engine knows them: their items, the pictures they show, and what a change of one of
// them does to the others. A layer is told by its items, so that one function serves all three.
// Runs where the change came in: on the GUI thread, or on the report thread for what the device tells.
#pragma once

#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

#include <array>

namespace VASK
{
/// The items of one layer.
struct LayerItems {
    int number; ///< 0 main, 1 PIP 1, 2 PIP 2
    ENUM_MenuIndex status;
    ENUM_MenuIndex source;
    ENUM_MenuIndex scaling;
    ENUM_MenuIndex width;
    ENUM_MenuIndex height;
    ENUM_MenuIndex x;
    ENUM_MenuIndex y;
    ENUM_MenuIndex priority;
    ENUM_MenuIndex cropPage;
    /// The first of the four that remember a custom geometry: width, height, x, y.
    ENUM_MenuIndex customWidth;
    ENUM_MenuIndex cropStatus;
    ENUM_MenuIndex cropWidth;
    ENUM_MenuIndex cropHeight;
    ENUM_MenuIndex cropX;
    ENUM_MenuIndex cropY;

    bool isMain() const { return number == 0; }
    /// The item that remembers one of the four of the geometry.
    ENUM_MenuIndex customOf(ENUM_MenuIndex geometry) const { return nth(customWidth, geometry - width); }
    std::array<ENUM_MenuIndex, 4> geometry() const { return {width, height, x, y}; }
};

constexpr LayerItems itemsOfLayer(int layer)
{
    return {layer,
            nth(MENU_MainLayer_Status, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer),
            nth(MENU_MainLayer_ScalingMode, layer, STRIDE_Layer),
            nth(MENU_MainLayer_HorWidth, layer, STRIDE_Layer),
            nth(MENU_MainLayer_VerHeight, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InitialX, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InitialY, layer, STRIDE_Layer),
            nth(MENU_MainLayer_Priority, layer, STRIDE_Layer),
            nth(MENU_MainLayer_InputCrop, layer, STRIDE_Layer),
            nth(MENU_MainLayer_CustomWidth, layer, STRIDE_CustomScaling),
            nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_HorWidth, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_VerHeight, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_InitialX, layer, STRIDE_Crop),
            nth(MENU_MainLayerCrop_InitialY, layer, STRIDE_Crop)};
}

inline constexpr std::array<LayerItems, layerCount> layers{itemsOfLayer(0), itemsOfLayer(1), itemsOfLayer(2)};

/// The layer whose item has changed.
inline const LayerItems &layerOf(const ParaChange &change)
{
    return layers[size_t(change.member)];
}

/// Rows of the scaling lists.
inline const QString fullScreen = QStringLiteral("0");
inline const QString pixelToPixel = QStringLiteral("1");
inline const QString customScaling = QStringLiteral("2");
inline const QString customLayout = QStringLiteral("2");
constexpr int fullScreenRow = 0;
constexpr int pixelToPixelRow = 1;

struct PictureSize {
    int width;  ///< pixels
    int height; ///< lines

    /// A PIP layer has the pixels for it.
    bool fitsPip() const { return qint64(width) * height <= 3249999; }
};
/// The output in force.
PictureSize outputSize(const ParaChange &change);
/// What the input of a layer delivers; 1920x1080 for one that has never told.
PictureSize inputSize(const ParaChange &change, const LayerItems &layer);
/// What a layer takes of its input: the crop, if it is on, or all.
PictureSize pictureSize(const ParaChange &change, const LayerItems &layer);

bool mainShowsMosaic(const ParaChange &change);
bool isSendingCard(const ParaChange &change);
bool bothPipsOff(const ParaChange &change);
bool stereoIsOff(const ParaChange &change);
/// Does the mosaic stand to choice for the main layer?
void offerMosaic(ParaChange &change, bool on);

/// A PIP layer can be scaled pixel for pixel as long as it has the pixels for its crop.
void offerPixelToPixel(ParaChange &change, const LayerItems &layer);

/// Enable and reload.
void setEnabled(ParaChange &change, ENUM_MenuIndex item, bool on);
/// Show and send.
void showAndSend(ParaChange &change, ENUM_MenuIndex item, const QString &value);
/// Switches a layer on or off, here, on the home screen and in the device, if it is not that already.
void switchLayer(ParaChange &change, const LayerItems &layer, bool on);
/// More than one layer, or the mosaic, leaves the main layer without effects: a plain cut.
void lockTransition(ParaChange &change);
void freeTransition(ParaChange &change);
/// A layer was moved by hand: none of the fixed layouts holds any more.
void leaveFixedLayout(ParaChange &change);
/// Width and height, which a sending card has not, and start can be dialled.
void freeGeometry(ParaChange &change, const LayerItems &layer);
/// The window takes a size: shown, then sent as a whole.
void takeSize(ParaChange &change, const LayerItems &layer, PictureSize size);
} // namespace VASK
