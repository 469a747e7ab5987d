// What the home screen shows. A setter gives false, with a log line, for a bad argument. GUI thread.
#pragma once

#include "framework/ui/homestates.h"
#include "widget/home/addressline.h"
#include "widget/home/homeports.h"
#include "widget/home/mainwindowui.h"

#include <QPixmap>

class HomeView
{
public:
    explicit HomeView(QWidget &window);

    /// The background and the sign of the lock; false without that sign.
    bool loadPictures();
    /// What is shown before the device has told anything.
    void showFirstValues();
    void setStyles() { m_ui.setStyles(); }
    /// The language has changed.
    void translateAgain() { m_ui.translateAgain(); }
    void paint(QWidget &window) const;
    /// Once a second.
    void tick();

    bool setWindowName(int window, const QString &name);
    bool setLayerName(int layer, const QString &name);
    bool setLayerRes(int layer, const QString &resolution);
    bool setWindowState(int window, ENUM_CommonState state);
    bool setLayerState(int layer, ENUM_MainWindowLayerState state);
    bool setSynMode(const QString &source);
    bool setSynModeState(ENUM_MainWindowSynState state);
    bool setConnectState(ENUM_MainWindowConnectState state);
    bool setTestMode(ENUM_MainWindowTESTMode mode);
    bool setNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state);
    bool setOptWorkMode(ENUM_MainWindowOPTWorkMode mode) const;
    bool setDevNameState(ENUM_CommonState state);
    bool setScreenRes(const QString &resolution);
    bool setBrightness(const QString &brightness);
    AddressLine &address() { return m_address; }
    const AddressLine &address() const { return m_address; }
    /// The sign of the lock.
    void showLocked(bool locked) { m_ui.labLock->setVisible(locked); }

private:
    void showWindowState(int window, bool on);
    void showLayerState(int layer, bool on);
    void showSynState(ENUM_MainWindowSynState state);

    Ui_MainWindow m_ui;
    AddressLine m_address;
    HomePorts m_ports;
    QPixmap m_background;
};
