// The three layers as the engine knows them: their items, the pictures they show, and what a change of one of
// them does to the others. A layer is told by its items, so that one function serves all three.
// Runs where the change came in: on the GUI thread, or on the report thread for what the device tells.
#pragma once

#include "framework/engine/layeritems.h"
#include "framework/engine/parachange.h"
#include "menu/itemindex.h"

namespace VASK
{
/// The layer whose item has changed.
inline const LayerItems &layerOf(const ParaChange &change)
{
    return layers[size_t(change.member)];
}

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
