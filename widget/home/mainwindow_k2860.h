// The home screen, as the rest of the panel knows it: the live state of layers, screen, ports,
// synchronisation, address and connection. It shows state and never edits it; its keys open the menus, switch
// sources and layers, or lock the panel. What it does stands in the classes behind it: HomeView what it
// shows, HomeKeys what the keys do, PanelLock the lock, HomeMessages what comes up by itself, TakeOver what a
// PC does to it. It lives on the GUI thread. The setters may be called from the report thread too: a setter
// checks its arguments at once and hands the drawing over. The slots are reached by queued signals.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindowstates.h"

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

class MainWindow : public VASK::VaskUiObject
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

    /// Setters. False, with a log line and the screen as it was, for a bad argument.
    /// @{
    bool SetWindowName(ENUM_MainWindowWindowIndex window, QString name);
    /// Source name of a layer; a translation key.
    bool SetLayerName(ENUM_MainWindowLayerIndex layer, QString name);
    bool SetLayerRes(ENUM_MainWindowLayerIndex layer, QString resolution);
    /// A layer is open or shows "Inactive"; the LEDs of layers and sources follow.
    bool SetWindowState(ENUM_MainWindowWindowIndex window, ENUM_CommonState state);
    /// The source of a layer has a signal or not; the LEDs of the sources follow.
    bool SetLayerState(ENUM_MainWindowLayerIndex layer, ENUM_MainWindowLayerState state);
    bool SetSynMode(QString source);
    bool SetSynModeState(ENUM_MainWindowSynState state);
    bool SetConnectState(ENUM_MainWindowConnectState state);
    bool SetTestMode(ENUM_MainWindowTESTMode mode);
    bool SetNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state);
    bool SetOPTWorkMode(ENUM_MainWindowOPTWorkMode mode);
    /// The address, or the translation key of what is said while there is none.
    bool SetIp(QString ip);
    /// The user's name of the device, shown in turn with the address; empty for none.
    bool SetDeviceRename(QString name);
    bool SetDevNameState(ENUM_CommonState state);
    bool SetScreenRes(QString resolution);
    bool SetBrightNess(QString brightness);
    /// Locks or unlocks the panel and stores it; with showDialog the lock window tells so for two seconds.
    bool SetLockState(ENUM_MainWindowLockState state, bool showDialog);
    bool SetdeviceStartComplate();
    /// @}

    /// The chord of OK and ESC: locks an unlocked panel and unlocks a locked one.
    void keypadLockEvent(VASK::KeypadEvent *event);

    bool event(QEvent *event) override;

    /// The address that is shown and the user's name of the device. Any thread.
    /// @{
    QString ip() const;
    QString deviceName() const;
    /// @}
    bool isLocked() const;
    /// A PC had the panel or has it: the next unlock reads the device state again.
    bool isTakenOver() const;
    /// Both services of the device have told that they run. Any thread.
    bool deviceStarted() const { return m_deviceStartComplate; }
    void logMenus() const;

public slots:
    void slot_SetWinodwState(qint32 window, qint32 state);
    void slot_SetLayerState(qint32 layer, qint32 state);
    void slot_SetResState(qint32 layer, QString resolution);
    void slot_SetSynModeState(qint32 state);
    /// The text "4" tells of a synchronisation problem, with the signal state of the source beside it; any
    /// other text ends it.
    void slot_SetSynModeState(qint8 signalState, QString text);
    void slot_popup_window(quint32 index);
    void slot_CreateDialog();
    void slot_FactoryRest();
    void slot_softDeviceBackup(quint8 step);
    void slot_softDeviceRestore(quint8 step);
    /// 1: calibration from outside began, 0: it ended.
    void slot_soft_calibrate(quint8 state);
    /// Progress of a firmware update: mode 0 with hundredths of a per cent or an error code, mode 1 at the
    /// end.
    void slot_update(quint8 mode, quint16 count);
    /// A host takes over (false) or has let go (true).
    void slot_ReturnToMainSoft(bool mode);
    void slot_cancelLockDialog();
    void slot_Twinkledisplay();
    void UpdateSourceLedStatus();

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
