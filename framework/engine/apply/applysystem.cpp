// Language, brand items, cabinet files, OSD picture slots, soft calibration and the start of the device's
// services.

#include "framework/engine/parachange.h"
#include "framework/engine/start/servicestart.h"

#include "boardio.h"
#include "framework/store/menuanalysis.h"
#include "framework/thread/handover.h"
#include "framework/ui/language.h"
#include "framework/ui/pages.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QThread>

namespace VASK
{
namespace
{
constexpr unsigned long cabinetLoadSeconds = 3;

struct Language {
    ENUM_MenuIndex item;
    ENUM_MenuIndex other;
    bool english;
    const char *already;
};
constexpr Language languages[] = {
    {MENU_LanguageEn, MENU_LanguageZh, true, "now is en!"},
    {MENU_LanguageZh, MENU_LanguageEn, false, "now is zh!"},
};

void translateEverything()
{
    for (int object = 0; object < ENUM_OBJECT_END; ++object)
        if (auto *ui =
                dynamic_cast<VaskUiObject *>(ObjectPool::getInstance()->GetObject(ENUM_ObjectIndex(object))))
            ui->SetParaEntry(MENU_OWN, QString(), SET_XML_DEVICE);
}

void applyLanguage(ParaChange &change)
{
    const Language &language = languages[change.index == MENU_LanguageZh];
    QString chosen;
    change.store.GetItemCurChoice(language.item, chosen);
    if (chosen == SELECTED) {
        qDebug() << language.already;
        return;
    }
    change.choice(language.item, true);
    change.choice(language.other, false);
    change.refresh(language.item);
    change.refresh(language.other);
    speakLanguage(change.engine, language.english);
    runOnGui(&change.engine, [] {
        // From elsewhere the page above, that it was opened from once, must not come up.
        auto *page = poolObject<Page>(ENUM_PAGE_Language);
        if (page && page->isVisible())
            page->keypadEScEvent(nullptr);
    });
}

void applyBootLogo(ParaChange &change)
{
    if (!change.changed())
        return;
    board::runCommand(change.turnsOff()
                          ? "cp -a /usr/vask/etc/logo/logo_hide.bmp /usr/vask/etc/logo/logo.bmp"
                          : "cp -a /usr/vask/etc/logo/logo_vask.bmp /usr/vask/etc/logo/logo.bmp");
    board::runCommand("sync");
}

void applyMakerSign(ParaChange &change)
{
    if (change.changed())
        change.home().showMakerSign(!change.turnsOff());
}

void loadCabinetFile(ParaChange &change)
{
    if (!change.engine.GetPortLinkStatus()) {
        change.dialog(MSG_CheckReceiveCard);
        return;
    }
    const ST_ItemInfo file = change.info(change.index);
    change.send(change.index, file.perBase + "+" + file.value);
    change.dialog(MSG_Waiting);
    QThread::sleep(cabinetLoadSeconds);
    change.dialog(MSG_LoadSucceed);
}

/// The device has brought a list of cabinet files: the open page shows it.
void showCabinetFiles(ParaChange &change)
{
    runOnGui(&change.engine, [] {
        auto *page = dynamic_cast<Page *>(frontWindow());
        if (page && page == ObjectPool::getInstance()->GetObject(ENUM_PAGE_LoadCabFiles))
            page->reloadFiles();
    });
}

void applyOsdPicture(ParaChange &change)
{
    change.enableRow(MENU_OSDChoice, change.member, change.turnsOn());
}

void applySoftCalibration(ParaChange &change)
{
    if (!change.fromDevice() || !ParaProcess::init_20m_flg)
        return;
    emit change.engine.signal_return_main(true);
    emit change.engine.signal_soft_calibrate(change.turnsOn() ? 1 : 0);
}

void applyServiceStarted(ParaChange &change)
{
    change.engine.services().started(change.index);
}

constexpr ApplyCase cases[] = {
    {range(MENU_LanguageEn, MENU_LanguageZh), applyLanguage},
    {MENU_BootLogo, applyBootLogo},
    {MENU_MakerSign, applyMakerSign},
    {range(MENU_CabinetFile1, MENU_CabinetFile8), loadCabinetFile},
    {each(FAMILY_OSDPicture, EVENT_OSDPictureFirst), applyOsdPicture},
    {EVENT_CabinetListLoaded, showCabinetFiles},
    {EVENT_SoftCalibrate, applySoftCalibration},
    {range(EVENT_VideoServiceStarted, EVENT_SenderServiceStarted), applyServiceStarted},
};
} // namespace

void speakLanguage(ParaProcess &engine, bool english)
{
    runOnGui(&engine, [&engine, english] {
        installLanguage(&engine, english);
        translateEverything();
    });
}

Table<ApplyCase> systemCases()
{
    return cases;
}
} // namespace VASK
