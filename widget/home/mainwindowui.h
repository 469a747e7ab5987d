// The labels of the home screen and where they stand. Made once by the home screen, on the GUI thread.
#pragma once

#include "menu/itemfamilies.h"

#include <QLabel>

class Ui_MainWindow
{
public:
    static constexpr int layerCount = VASK::FAMILY_Layer.count;
    static constexpr int portCount = 6;
    static constexpr int width = 320; ///< pixels
    static constexpr int height = 240;

    void setupUi(QWidget *window);
    /// Font and colour of every label.
    void setStyles();

    QWidget *centralWidget = nullptr;
    QLabel *labDeviceName = nullptr;
    QLabel *labLock = nullptr;
    QLabel *labIp = nullptr;
    QLabel *labWindow[layerCount] = {};
    QLabel *labLayerSrc_Name[layerCount] = {};
    QLabel *labLayerSrc_Res[layerCount] = {};
    QLabel *labWindowOffDisplay[layerCount] = {};
    QLabel *labScreen = nullptr;
    QLabel *labScreenRes = nullptr;
    QLabel *labBright = nullptr;
    QLabel *labPort = nullptr;
    QLabel *labNet[portCount] = {};
    QLabel *labSyn = nullptr;
    QLabel *labSynName = nullptr;
    QLabel *labTestMode = nullptr;
    QLabel *labConnectState = nullptr;

    /// Style of a layer's source name, with the picture under the text.
    static QString sourceNameStyle(const QString &picture);
    /// Sets the property that chooses a label's colour, and applies it.
    static void setSwitch(QLabel *label, bool on);
    /// A text that follows the language, by its key; and one that stands for itself.
    static void showKey(QLabel *label, const QString &key);
    static void showText(QLabel *label, const QString &text);
    /// The language has changed: every text that was shown by its key is translated again.
    void translateAgain();
};
