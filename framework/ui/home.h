// The home screen as framework/ knows it; the widget that implements it stands in the pool as
// ENUM_MAIN_WINDOW. GUI thread, all of it: whoever may come from another one goes by toHome().
#pragma once

#include "framework/object/vaskobject.h"
#include "framework/thread/handover.h"
#include "framework/ui/homestates.h"

namespace VASK
{
class HomeScreen : public VaskUiObject
{
    Q_OBJECT
public:
    explicit HomeScreen(ENUM_ObjectIndex index) : VaskUiObject(index) {}

    /// Setters. False, with a log line and the screen as it was, for a bad argument.
    /// @{
    /// Source name of a layer; a translation key.
    virtual bool SetLayerName(ENUM_MainWindowLayerIndex layer, QString name) = 0;
    virtual bool SetLayerRes(ENUM_MainWindowLayerIndex layer, QString resolution) = 0;
    /// A layer is open or shows "Inactive"; the LEDs of layers and sources follow.
    virtual bool SetWindowState(ENUM_MainWindowWindowIndex window, ENUM_CommonState state) = 0;
    /// The source of a layer has a signal or not; the LEDs of the sources follow.
    virtual bool SetLayerState(ENUM_MainWindowLayerIndex layer, ENUM_MainWindowLayerState state) = 0;
    virtual bool SetSynMode(QString source) = 0;
    virtual bool SetSynModeState(ENUM_MainWindowSynState state) = 0;
    virtual bool SetConnectState(ENUM_MainWindowConnectState state) = 0;
    virtual bool SetTestMode(ENUM_MainWindowTESTMode mode) = 0;
    virtual bool SetNetState(ENUM_MainWindowNetIndex port, ENUM_MainWindowNetState state) = 0;
    /// The address, or the translation key of what is said while there is none.
    virtual bool SetIp(QString ip) = 0;
    /// The user's name of the device, shown in turn with the address; empty for none.
    virtual bool SetDeviceRename(QString name) = 0;
    virtual bool SetDevNameState(ENUM_CommonState state) = 0;
    virtual bool SetScreenRes(QString resolution) = 0;
    virtual bool SetBrightNess(QString brightness) = 0;
    /// Both services of the device run. Any thread.
    virtual bool SetdeviceStartComplate() = 0;
    /// @}

    /// The address that is shown. Any thread.
    virtual QString ip() const = 0;

public slots:
    virtual void slot_SetWinodwState(qint32 window, qint32 state) = 0;
    virtual void slot_SetLayerState(qint32 layer, qint32 state) = 0;
    virtual void slot_SetResState(qint32 layer, QString resolution) = 0;
    virtual void slot_SetSynModeState(qint32 state) = 0;
    /// The text "4" tells of a synchronisation problem, with the signal state of the source beside it; any
    /// other text ends it.
    virtual void slot_SetSynModeState(qint8 signalState, QString text) = 0;
    virtual void slot_popup_window(quint32 index) = 0;
    virtual void slot_CreateDialog() = 0;
    virtual void slot_FactoryRest() = 0;
    /// 1: calibration from outside began, 0: it ended.
    virtual void slot_soft_calibrate(quint8 state) = 0;
    /// Progress of a firmware update: mode 0 with hundredths of a per cent or an error code, mode 1 at the
    /// end.
    virtual void slot_update(quint8 mode, quint16 count) = 0;
    /// A host takes over (false) or has let go (true).
    virtual void slot_ReturnToMainSoft(bool mode) = 0;
    virtual void UpdateSourceLedStatus() = 0;
};

/// The one road to the home screen: the work is done at once on its own thread, and posted from every other.
/// Nothing happens while there is none.
template <class Work> void toHome(HomeScreen *home, Work work)
{
    if (home)
        runOnGui(home, [home, work] { work(*home); });
}
} // namespace VASK
