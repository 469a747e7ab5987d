// The home screen, as the rest of the panel knows it: the live state of layers, screen, ports,
// synchronisation, address and connection. It shows state and never edits it; its keys open the menus, switch
// sources and layers, or lock the panel. What it does stands in the classes behind it: HomeView what it
// shows, HomeKeys what the keys do, PanelLock the lock, HomeMessages what comes up by itself, TakeOver what a
// PC does to it. It lives on the GUI thread; the slots are reached by queued signals.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/ui/home.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <atomic>
#include <memory>

class HomeKeys;
class HomeMessages;
class HomeView;
class PanelLock;
class QTimer;
class TakeOver;

namespace VASK
{
class MenuDirectory;
class transport;
} // namespace VASK

class MainWindow : public VASK::HomeScreen
{
    Q_OBJECT
public:
    /// Period of everything that blinks on this screen, milliseconds.
    static constexpr int m_TwinkledisplayTimer = 1000;
    explicit MainWindow(VASK::ENUM_ObjectIndex index);
    ~MainWindow() override;

    /// Lays the screen out, sets its start state and finds the three menu roots. False, with a log line, if
    /// something that it cannot do without is missing. Called once, when the pages are in the pool.
    bool Init();

    /// The language has changed. Any thread.
    void SetParaEntry(VASK::ENUM_MenuIndex, QString, VASK::ENUM_MODE_SET_XML) override;

    // Of the home screen
    bool SetLayerName(ENUM_MainWindowLayerIndex layer, QString name) override;
    bool SetLayerRes(ENUM_MainWindowLayerIndex layer, QString resolution) override;
    bool SetWindowState(ENUM_MainWindowWindowIndex window, ENUM_CommonState state) override;
    bool SetLayerState(ENUM_MainWindowLayerIndex layer, ENUM_MainWindowLayerState state) override;
    bool SetSynMode(QString source) override;
    bool SetSynModeState(ENUM_MainWindowSynState state) override;
    bool SetConnectState(ENUM_MainWindowConnectState state) override;
    bool SetTestMode(ENUM_MainWindowTESTMode mode) override;
    bool SetNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state) override;
    bool SetIp(QString ip) override;
    bool SetDeviceRename(QString name) override;
    bool SetDevNameState(ENUM_CommonState state) override;
    bool SetScreenRes(QString resolution) override;
    bool SetBrightNess(QString brightness) override;
    bool SetdeviceStartComplate() override;
    QString ip() const override;

    /// Setters like those.
    /// @{
    bool SetWindowName(ENUM_MainWindowWindowIndex window, QString name);
    bool SetOPTWorkMode(ENUM_MainWindowOPTWorkMode mode);
    /// Locks or unlocks the panel and stores it; with showDialog the lock window tells so for two seconds.
    bool SetLockState(ENUM_MainWindowLockState state, bool showDialog);
    /// @}

    /// The chord of OK and ESC: locks an unlocked panel and unlocks a locked one.
    void keypadLockEvent(VASK::KeypadEvent *event);

    bool event(QEvent *event) override;

    /// The user's name of the device. Any thread.
    QString deviceName() const;
    bool isLocked() const;
    /// A PC had the panel or has it: the next unlock reads the device state again.
    bool isTakenOver() const;
    /// Both services of the device have told that they run. Any thread.
    bool deviceStarted() const { return m_deviceStartComplate; }
    void logMenus() const;

public slots:
    void slot_SetWinodwState(qint32 window, qint32 state) override;
    void slot_SetLayerState(qint32 layer, qint32 state) override;
    void slot_SetResState(qint32 layer, QString resolution) override;
    void slot_SetSynModeState(qint32 state) override;
    void slot_SetSynModeState(qint8 signalState, QString text) override;
    void slot_popup_window(quint32 index) override;
    void slot_CreateDialog() override;
    void slot_FactoryRest() override;
    void slot_softDeviceBackup(quint8 step);
    void slot_softDeviceRestore(quint8 step);
    void slot_soft_calibrate(quint8 state) override;
    void slot_update(quint8 mode, quint16 count) override;
    void slot_ReturnToMainSoft(bool mode) override;
    void slot_cancelLockDialog();
    void slot_Twinkledisplay();
    void UpdateSourceLedStatus() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    bool findMenus();

    std::unique_ptr<HomeView> m_view;
    std::unique_ptr<PanelLock> m_lock;
    std::unique_ptr<HomeMessages> m_messages;
    std::unique_ptr<HomeKeys> m_keys;
    std::unique_ptr<TakeOver> m_takeOver;
    VASK::MenuDirectory *m_pMainMenu = nullptr;
    VASK::MenuDirectory *m_pUserHideMenu = nullptr;
    VASK::MenuDirectory *m_pProductHideMenu = nullptr;
    VASK::transport *tran = nullptr;
    QTimer *m_pTwinkledisplayTimer = nullptr;
    std::atomic<bool> m_deviceStartComplate{false};
};
