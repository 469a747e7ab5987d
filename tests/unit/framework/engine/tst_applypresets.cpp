// The presets: the one in use, names, what a take over and a dialog that is not shown leave behind, and
// loading by number.

#include "framework/engine/presets.h"
#include "framework/object/globaltimer.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"
#include "widget/page/openpage.h"

using namespace VASK;

namespace
{
/// The ten states by their first letters, and the preset in use.
QString states(const QString &letters, int inUse)
{
    static const QMap<QChar, QString> names{{'B', "Blank"}, {'S', "Saved"}, {'U', "Used"}};
    QString text = QString("PresetInUse=%1").arg(inUse);
    for (int preset = 0; preset < letters.size(); ++preset)
        text += QString(" Preset%1=%2").arg(preset + 1).arg(names[letters[preset]]);
    return text;
}

QString leaves(const QString &letters, int inUse)
{
    return "leaves " + states(letters, inUse) + ' ';
}
const QString unchanged = leaves("USBSBBBBBB", 0);
const QString isUsed = "/Icon=:/resource/image/sceneSetting/sceneused.png ",
              isUnused = "/Icon=:/resource/image/sceneSetting/sceneunused.png ";
const QString saved = "asks Waiting PresetSaveSucceed; ", loaded = "asks Waiting PresetLoadSucceed; ";
const QString copied = "answers 0; asks Waiting PresetCopySucceed; ", english = "LanguageEn!; ";

const CaseLines table{
    {"save over the one in use", "dialog left ok", "user Preset1=",
     saved + "sends PresetSave=0 Preset1=; redraws Preset1; " + leaves("SSBSBBBBBB", 0) + "Preset1" +
         isUnused},
    {"load the one in use", "dialog ok", "user Preset1=",
     loaded + "sends PresetLoad=0 Preset1=; redraws Preset1; " + unchanged + "Preset1" + isUsed},
    {"clear", "dialog right ok", "user Preset2=",
     "asks DeletePresetConfirmNews? Waiting PresetDeleteSucceed; sends PresetDelete=1 Preset2=; "
     "redraws Preset2; " +
         leaves("UBBSBBBBBB", 0) + "Preset2/Tag=Preset2 Preset2" + isUnused},
    {"clear the one in use", "dialog right ok", "user Preset1=",
     "asks DeletePresetConfirmPreset1? Waiting PresetDeleteSucceed; sends PresetDelete=0 Preset1=; " +
         leaves("BSBSBBBBBB", 255) + "Preset1" + isUnused},
    {"save over a named one, refused", english + "dialog left ok",
     "user Preset2=", "answers 0; asks IfCoverPreset News?; " + unchanged},
    {"clear, refused", english + "dialog right ok",
     "user Preset4=", "answers 0; asks DeletePresetConfirm Preset4?; " + unchanged},
    // It closes a question with the result of a message that is replaced.
    {"a PC takes over", "dialog left ok",
     "user Preset2=", "answers 2; asks IfCoverPresetNews?; " + unchanged},
    {"reported, which opens nothing", "", "device Preset3=Saved", "tells Preset3=Saved Preset3=Saved"},
    {"a name goes along, onto the one in use", "dialog right right ok; user Preset2=", "user Preset1=",
     copied + "sends PresetCopy=1_0; " + leaves("SSBSBBBBBB", 0) + "Preset1/Tag=News Preset2+"},
    {"no name stays behind", "dialog right right ok; user Preset4=; Preset3/Tag=old", "user Preset3=",
     copied + "sends PresetCopy=3_2; " + leaves("USSSBBBBBB", 0) + "Preset3/Tag=old Preset4+"},
    {"by number", "", "load 3", loaded + "sends PresetLoad=3; " + leaves("SSBUBBBBBB", 3)},
    {"by number, blank", "", "load 4", "asks PresetLoadNullFaild; " + unchanged},
    {"no such number", "", "load -1; load 10; load 255", unchanged},
};
} // namespace

class TestApplyPresets : public CaseTest
{
    Q_OBJECT
    EngineRig *makeRig() const override
    {
        auto *rig = new EngineRig;
        rig->addRows({CONFIG_PresetCopyTo});
        return rig;
    }
    CaseLines lines() const override { return table; }
    /// Presets 1 used, 2 and 4 saved, 2 under a name that the device keeps; the others are blank.
    void begin() override
    {
        m_rig->reset();
        OpenPage::hideAll();
        ParaProcess::m_CopySceneNum = -1;
        caseline::prepare(*m_rig, states("USBSBBBBBB", 0) + " Preset2/Tag=News LanguageEn?");
        m_rig->engine->presets().setNamed(1, true);
        page(ENUM_PAGE_PresetSettings)->show();
        m_rig->forget();
    }

private slots:
    void noMessageNoStep()
    {
        g_dialogConfig[MSG_PresetLoadSucceed].enabled = false;
        runCaseLine(*m_rig,
                    {"", "dialog ok", "user Preset4=", "asks Waiting; sends PresetLoad=3; " + unchanged});
        g_dialogConfig[MSG_PresetLoadSucceed].enabled = true;
    }
    void presetKeyLeavesTheTargets()
    {
        openTargets();
        caseline::pressKeys(*page(ENUM_PAGE_PresetCopyTo), "preset");
        QVERIFY(page(ENUM_PAGE_PresetSettings)->isVisible());
        QVERIFY(!page(ENUM_PAGE_PresetCopyTo)->isVisible());
        QVERIFY(m_rig->enabled(MENU_Preset2));
    }
    /// The last one, as the time runs on. It holds still on the page of the presets only.
    void timeTakesThePanelHomeFromTheTargets()
    {
        m_rig->home->hide();
        m_rig->set(MENU_ReturntoHome, "1");
        GlobalTimer::getInstance()->Initialize(m_rig->home);
        openTargets();
        QTRY_VERIFY_WITH_TIMEOUT(m_rig->home->isVisible(), 5000);
        QVERIFY(!page(ENUM_PAGE_PresetCopyTo)->isVisible() && !page(ENUM_PAGE_PresetSettings)->isVisible());
        QVERIFY(m_rig->enabled(MENU_Preset2));
    }

private:
    static MenuDirectory *page(ENUM_ObjectIndex object) { return poolObject<MenuDirectory>(object); }
    void openTargets()
    {
        runCaseLine(*m_rig,
                    {"", "dialog right right ok", "user Preset2=", "sends Preset2=; leaves Preset2-"});
        QVERIFY(page(ENUM_PAGE_PresetCopyTo)->isVisible() && !page(ENUM_PAGE_PresetSettings)->isVisible());
        QCOMPARE(page(ENUM_PAGE_PresetCopyTo)->currentRow(), 0);
        QApplication::setActiveWindow(page(ENUM_PAGE_PresetCopyTo));
    }
};

FPD_TEST(TestApplyPresets)

#include "tst_applypresets.moc"
