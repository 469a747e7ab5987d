#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "tables.h"

// All messages, one row a message. A row shares the number of the item whose question it asks.

namespace VASK
{
namespace
{
using Dialog = QPair<ENUM_MenuIndex, ST_DialogInfo>;

/// A message without a button; its owner closes it.
Dialog state(ENUM_MenuIndex index, const QString &text)
{
    return {index, {2, text, {}, MSGBOX_NONE, true, 0}};
}

/// A message that the user confirms.
Dialog notice(ENUM_MenuIndex index, const QString &text)
{
    return {index, {2, text, {}, MSGBOX_CHECK, true, 0}};
}

Dialog question(ENUM_MenuIndex index, const QString &text, bool enabled = true)
{
    return {index, {2, text, {}, MSGBOX_YES_NO, enabled, 0}};
}

/// A message that closes itself after the time in milliseconds.
Dialog timed(ENUM_MenuIndex index, const QString &text, int timeMs)
{
    return {index, {2, text, {}, MSGBOX_TIMED, true, timeMs}};
}

using Dialogs = QVector<Dialog>;

/// Asked before an item acts.
Dialogs questions()
{
    return {
        question(MENU_QuickConfiguration, "OPENQuickConfigurationWaring", false),
        question(MENU_SavetoRVCard, "IFSavetoRVCardTip"),
        question(MENU_SelfTest, "DeviceTestSelfCaseOutPutFailTip"),
        question(MENU_SaveIP, "IFSaveIPReset"),
        question(MENU_SaveUserData, "IFSaveUserDataReset"),
        question(MENU_ResetAll, "IFResetAll"),
        question(MENU_AdvancedCfg, "AdvancedScreenCfgWaring"),
        question(MENU_Net_Reset, "NetParameReset"),
        question(MENU_Advanced_Reset, "IfResetAdvancedScreenCfg"),
        question(MENU_Color_Reset, "IfResetToDefaultColor"),
        question(MENU_HDMI1_ColorReset, "IfResetToDefaultColor"),
        question(MENU_HDMI2_ColorReset, "IfResetToDefaultColor"),
        question(MENU_DVI_ColorReset, "IfResetToDefaultColor"),
        question(MENU_DVI2_ColorReset, "IfResetToDefaultColor"),
        question(MENU_SDI_ColorReset, "IfResetToDefaultColor"),
        question(MENU_ClearAllParameters, "ConformClearAllParam"),
    };
}

/// Of the screen, the cabinets, the presets and the picture.
Dialogs pictureMessages()
{
    return {
        timed(MSG_CheckReceiveCard, "CheckReceiveCard", 2000),
        timed(MSG_SavingHardwareInformation, "SaveingHardwareInfomation", 6000),
        timed(MSG_SaveHardwareInformationSucceed, "SaveHardWareInformationSucceed", 2000),
        timed(MSG_SaveHardwareInformationFail, "SaveHardWareInformationFail", 2000),
        timed(MSG_ScreenConfigFailWarning, "ScreenConfigFailWaring", 2000),
        question(MSG_IfLoadCabinetFile, "IFLoadCabFile"),
        timed(MSG_CabinetFileLoading, "CabFileLoding", 5000),
        timed(MSG_LoadSucceed, "LodeSucceed", 2000),
        timed(MSG_LoadFail, "LodeFail", 2000),
        timed(MSG_NoFiles, "NoFiles", 2000),
        timed(MSG_MosaicIsUsing, "MosaicIsUsing", 2000),
        timed(MSG_Waiting, "Waiting", 2000),
        timed(MSG_PresetSaveSucceed, "PresetSaveSucceed", 2000),
        timed(MSG_PresetSaveFailed, "PresetSaveFaild", 2000),
        question(MSG_IfCoverPreset, "IfCoverPreset"),
        timed(MSG_PresetLoadSucceed, "PresetLoadSucceed", 2000),
        timed(MSG_PresetLoadFailed, "PresetLoadFaild", 2000),
        timed(MSG_PresetLoadEmpty, "PresetLoadNullFaild", 2000),
        question(MSG_DeletePresetConfirm, "DeletePresetConfirm"),
        timed(MSG_PresetDeleteSucceed, "PresetDeleteSucceed", 2000),
        timed(MSG_PresetDeleteFailed, "PresetDeleteFaild", 2000),
        timed(MSG_PresetCopySucceed, "PresetCopySucceed", 2000),
        timed(MSG_PresetCopyFailed, "PresetCopyFaild", 2000),
        timed(MSG_SnapshotFailed, "SnapshotFaild", 2000),
        notice(MSG_SyncNoSignalTip, "SyncNoSignalTip"),
        notice(MSG_SyncMismatchTip, "SyncMismatchTip"),
        timed(MSG_OpenLowLatencyTip, "OpenLowLatencyTip", 2000),
        timed(MSG_CantOpenLowLatencyTip, "CantOpenLowLatencyTip", 2000),
        timed(MSG_FlowWayClosesLowLatency, "FlowWayCauseCloseLowLatency", 2000),
        timed(MSG_OpenLowLatencyNeedsSyncOff, "OpenLowLatencyNeedToCloseSyn", 2000),
        timed(MSG_Open3DOnlyMainLayer, "Open3DOnlyMainLayerEffectTip", 2000),
        timed(MSG_OverLoad, "OverLoad", 2000),
    };
}

/// Of the device: test, reset, update, network.
Dialogs deviceMessages()
{
    return {
        timed(MSG_SelfTesting, "SelfTesting", 5000),
        timed(MSG_NetParameterSetSucceed, "NetParameSetSucceed", 2000),
        timed(MSG_IsResetting, "IsResting", 5000),
        state(MSG_ResetSucceed, "ResetSucceed"),
        state(MSG_FPGADDRCheckError, "FPGADDRCheckError"),
        state(MSG_FPGACommunication, "FPGACommunication"),
        timed(MSG_InClearAllParameters, "InClearAllParam", 5000),
        state(MSG_ClearAllParametersSucceed, "ClearAllParamSucceed"),
        state(MSG_UpdateStart, "UpdateStart"),
        state(MSG_UpdateEnd, "UpdateEnd"),
        state(MSG_SoftCalibrating, "SoftCalibrating"),
        timed(MSG_SoftCalibrateExit, "SoftCalibrateExit", 3000),
        timed(MSG_InOutTestSaveResult, "InOutTestSaveResult", 2000),
        timed(MSG_SavingHardwareInformationShort, "SaveingHardwareInfomation", 2000),
        notice(MSG_UpdateError, "UpdateErr"),
        timed(MSG_IpMaskError, "IpMaskErr", 2000),
        timed(MSG_IpError, "IpErr", 2000),
        timed(MSG_MaskError, "MaskErr", 2000),
        timed(MSG_GatewayError, "GateWayErr", 2000),
        notice(MSG_UpdateErrorNotMatch, "UpdateErrNotMatch"),
        notice(MSG_UpdateErrorNotComplete, "UpdateErrNotComplete"),
        notice(MSG_UpdateErrorNotSupported, "UpdateErrNotSupport"),
    };
}
} // namespace

QVector<QPair<ENUM_MenuIndex, ST_DialogInfo>> menuDialogRows()
{
    return questions() + pictureMessages() + deviceMessages();
}

QMap<ENUM_MenuIndex, ST_DialogInfo> menuDialogs()
{
    QMap<ENUM_MenuIndex, ST_DialogInfo> dialogs;
    for (const Dialog &row : menuDialogRows())
        dialogs.insert(row.first, row.second);
    return dialogs;
}
} // namespace VASK
