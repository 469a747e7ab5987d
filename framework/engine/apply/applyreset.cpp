// The four resets. What survives is read first, the factory copy is loaded, what survives goes back; then the
// FPGA is probed and one of three messages tells the outcome.

#include "framework/engine/parachange.h"

#include "boardio.h"
#include "framework/productiontest/boardcheck.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "netstatus.h"

namespace VASK
{
namespace
{
const char *const factoryFile = "/usr/vask/etc/fpd/config/config_factory.xml";
const char *const removePictures = "rm /usr/vask/etc/osd/*";
/// Items of which only the value survives a reset.
using Kept = QMap<ENUM_MenuIndex, QString>;

Kept keepValues(const ParaChange &change)
{
    QVector<ENUM_MenuIndex> items{MENU_BootLogo, MENU_MakerSign};
    if (change.index != MENU_ResetAll)
        items << MENU_CommunicationMode << MENU_Net_NetMode << MENU_Net_IPAddress << MENU_Net_SubnetMask
              << MENU_Net_Gateway << MENU_HDCPMemory;
    if (change.index == MENU_SaveUserData)
        items << MENU_FnMode;
    Kept kept;
    for (ENUM_MenuIndex item : items)
        kept[item] = change.item(item);
    return kept;
}

/// What a sending card cannot do stays switched off after a reset.
void restoreSendingCard(ParaChange &change, ST_ItemInfo source)
{
    change.store.updataMenuItem(MENU_MainLayer_InputSource, source);
    for (ENUM_MenuIndex item : {MENU_OutputFrameRate,
                                MENU_MainLayer_Status,
                                MENU_MainLayer_ScalingMode,
                                MENU_MainLayer_HorWidth,
                                MENU_MainLayer_VerHeight,
                                MENU_MainLayer_Priority,
                                MENU_MainLayer_InputCrop,
                                MENU_MainLayer_Opacity,
                                MENU_PIP1,
                                MENU_PIP2,
                                MENU_Layout,
                                MENU_MosaicInput,
                                MENU_PresetSettings,
                                MENU_ImageMosaic,
                                MENU_MainLayerTransition,
                                MENU_TransitionDuration,
                                MENU_Fn_HDMIOutput,
                                MENU_Sync_Source,
                                MENU_HDMIOutput,
                                MENU_Mode3D,
                                MENU_InputBackup_Mosaic})
        change.enable(item, false);
    for (ENUM_MenuIndex item : {MENU_MainLayer_Status, MENU_MainLayer_ScalingMode, MENU_MainLayerTransition})
        change.set(item, "1");
    change.choice(MENU_VideoController, false);
    change.choice(MENU_FiberConverter, false);
    change.choice(MENU_SendingCard, true);
}

void restoreMosaicSource(ParaChange &change)
{
    change.enableRowsWithText(MENU_MainLayer_InputSource, mosaicOption, true);
    change.set(MENU_MainLayer_InputSource, "2");
}

void tellOutcome(ParaChange &change)
{
    using boardcheck::Answer;
    const Answer version = boardcheck::fpgaVersion();
    if (version == Answer::NotStarted) {
        qWarning() << "cannot ask for the version of the FPGA";
        return;
    }
    if (version == Answer::None) {
        change.dialog(MSG_FPGACommunication);
        return;
    }
    change.dialog(boardcheck::fpgaMemory() == Answer::Zero ? MSG_FPGADDRCheckError : MSG_ResetSucceed);
}

/// One reset a run of the program: true if this is the first.
bool claimReset()
{
    return !ParaProcess::m_ResetFlg.exchange(true);
}

/// The language is among what the copy brings back.
void loadFactoryCopy(ParaChange &change)
{
    const bool english = englishChosen();
    change.store.LoadXmlFile(factoryFile);
    if (englishChosen() != english)
        speakLanguage(change.engine, !english);
}

void applyReset(ParaChange &change)
{
    if (!claimReset())
        return;
    const Kept kept = keepValues(change);
    const bool sendingCard = DeviceView(change.engine).workMode() == WORK_SENDER;
    const ST_ItemInfo source = change.info(MENU_MainLayer_InputSource);
    const QString workMode = change.item(MENU_WorkMode);
    if (change.index != MENU_SaveUserData)
        board::runCommand(removePictures);
    loadFactoryCopy(change);
    restoreMosaicSource(change);
    if (sendingCard && change.index != MENU_ResetAll) {
        change.set(MENU_WorkMode, workMode);
        restoreSendingCard(change, source);
    }
    for (auto item = kept.cbegin(); item != kept.cend(); ++item)
        change.set(item.key(), item.value());
    if (change.index == MENU_SaveUserData) {
        const int function = change.number(MENU_FnMode);
        for (int i = MENU_Fn_Synchronization; i <= MENU_Fn_TestPattern; ++i)
            change.choice(ENUM_MenuIndex(i), i - MENU_Fn_Synchronization == function);
    }
    change.set(MENU_RestoreDone, "1");
    if (change.index == MENU_ResetAll)
        set_pc_connect_priority(1);
    change.store.updateActivittyItem();
    if (!change.fromUser()) {
        emit change.engine.signal_factory_reset();
        return;
    }
    change.send(change.index, QString());
    change.dialog(MSG_IsResetting);
    tellOutcome(change);
}

void clearAllParameters(ParaChange &change)
{
    if (!claimReset())
        return;
    board::runCommand("cp -a /usr/vask/etc/logo/logo_vask.bmp /usr/vask/etc/logo/logo.bmp");
    // The file is what counts from now on: what memory still holds must not be written over it.
    change.store.replaceFiles([&change] {
        board::runCommand(
            "cp /usr/vask/etc/fpd/config/config_factory.xml /usr/vask/etc/fpd/config/config.xml");
        board::runCommand(removePictures);
        board::runCommand("sync");
        loadFactoryCopy(change);
    });
    set_pc_connect_priority(1);
    if (!change.fromUser()) {
        emit change.engine.signal_factory_reset();
        return;
    }
    change.send(MENU_ResetAll, QString());
    change.dialog(MSG_IsResetting);
    change.dialog(MSG_ResetSucceed);
}

constexpr ApplyCase cases[] = {
    {range(MENU_SaveIP, MENU_ResetAll), applyReset},
    {MENU_ClearAllParameters, clearAllParameters},
};
} // namespace

Table<ApplyCase> resetCases()
{
    return cases;
}
} // namespace VASK
