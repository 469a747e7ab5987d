// What the preset dialog shows: a title above four pictures in a row, each with a caption. GUI thread.
#pragma once

#include <array>

class ElidingLabel;
class PictureLabel;
class QLabel;
class QWidget;

class Ui_Dialog_scene
{
public:
    struct Tile {
        QLabel *bg = nullptr; ///< has the focus while the action is chosen
        PictureLabel *img = nullptr;
        ElidingLabel *name = nullptr;
    };

    /// Fits a dialog of 286x190 pixels.
    void setupUi(QWidget *dialog);

    QLabel *lab_bg = nullptr;
    ElidingLabel *lab_Title = nullptr;
    std::array<Tile, 4> tiles;
};
