// The three work modes: what the menu, the home screen, the LEDs and the device get when one gives way to
// another.

#include "framework/input/keyevent.h"
#include "menu/ledindex.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
constexpr int fallback = 2;

/// Each of the items with a sign behind it.
QString each(const QString &items, const char *sign)
{
    return ' ' + QString(items).replace(' ', QString(sign) + ' ') + sign;
}
const QString mainMenu = "ScreenBrightness ScreenSetting LayerSettings InputSettings DisplayControl "
                         "AdvancedSetting FactoryReset",
              presetsAndSplicing = "PresetSettings ImageMosaic";
/// What a sending card takes from the user, apart from the main menu.
const QString videoPath =
    "OutputFrameRate MainLayer_Status MainLayer_ScalingMode MainLayer_HorWidth MainLayer_VerHeight "
    "MainLayer_Priority MainLayer_Opacity PIP1 PIP2 Layout MainLayerTransition TransitionDuration "
    "Fn_HDMIOutput HDMIOutput Mode3D InputBackup_Mosaic";

const QString modes = "of VideoController FiberConverter SendingCard SendingCardMode:";
const QString toController = modes +
                             " FiberConverter=0 SendingCard=0 SendingCardMode=0 VideoController=1; leaves "
                             "WorkMode=0 VideoController! FiberConverter? SendingCard?" +
                             each(mainMenu, "+") + each(presetsAndSplicing, "+");
const QString toFiber = modes +
                        " FiberConverter=1 SendingCardMode=0; leaves WorkMode=1 VideoController? "
                        "FiberConverter! SendingCard? OSDSettings+ SystemSetting+" +
                        each(mainMenu, "-") + each(presetsAndSplicing, "-");
const QString toCard = modes +
                       " SendingCard=1 SendingCardMode=1 FiberConverter=0 SendingCard=1; leaves WorkMode=2 "
                       "VideoController? FiberConverter? SendingCard!" +
                       each(mainMenu, "+") + each(presetsAndSplicing, "-");
const QString fiber = "user FiberConverter=1; ", card = "user SendingCard=1; ";
const CaseLines modeLines{
    {"from controller", "", "user FiberConverter=1", toFiber},
    {"from controller", "", "user SendingCard=1", toCard},
    {"from controller", "", "user VideoController=1",
     "sends VideoController=1; reloads ; leaves WorkMode=0 VideoController! FiberConverter? SendingCard?"},
    {"from fiber", fiber, "user VideoController=1", toController},
    {"from fiber", fiber, "user SendingCard=1", toCard},
    {"from fiber", fiber, "user FiberConverter=1",
     "reloads ; leaves WorkMode=1 VideoController? FiberConverter! SendingCard?"},
    {"from card", card, "user VideoController=1", toController},
    {"from card", card, "user FiberConverter=1", toFiber},
    {"from card", card, "user SendingCard=1",
     "sends SendingCard=1; reloads ; leaves WorkMode=2 VideoController? FiberConverter? SendingCard!"},
};

// The fallback input's state is 3263, its period 3266; those of the first are 3249 and 3252.
const QString nowCard = "of SendingCard: SendingCard=1 SendingCard=1; ",
              nowController = "of VideoController: VideoController=1; ";
const QString shows = nowCard + "name DVI; visible labWindowOffDisplay_2; ";
const CaseLines cardLines{
    {"input", "MainLayer_InputSource=0", "user SendingCard=1",
     shows + "picture 1280x1024@59.94; screen 1920x1200@59.94; dark SCALE; leaves OutputRate=5994"},
    {"input, no rate", "MainLayer_InputSource=0 InputRecordFirst+19=0", "user SendingCard=1",
     shows + "picture 1280x1024@60; screen 1920x1200@60; leaves OutputRate=6000"},
    {"input, no signal", "MainLayer_InputSource=0 InputRecordFirst+16=0 InputRecordFirst+19=20000",
     "user SendingCard=1", shows + "picture No Signal; screen 1920x1200@50; leaves OutputRate=5000"},
    {"main layer on top", "MainLayer_Priority=2 PIP1_Priority=0 PIP2_Priority=1", "user SendingCard=1",
     "of MainLayer_Priority PIP1_Priority PIP2_Priority: PIP1_Priority=1 PIP2_Priority=2 "
     "MainLayer_Priority=1; leaves MainLayer_Priority=0 PIP1_Priority=1 PIP2_Priority=2 LowestLayer=0"},
    {"main layer between", "MainLayer_Priority=1 PIP1_Priority=2 PIP2_Priority=0", "user SendingCard=1",
     "of MainLayer_Priority PIP1_Priority PIP2_Priority: PIP1_Priority=2 PIP2_Priority=1 "
     "MainLayer_Priority=1; leaves MainLayer_Priority=0 PIP1_Priority=2 PIP2_Priority=1 LowestLayer=0"},
    {"main layer at the bottom", "MainLayer_Priority=0 PIP1_Priority=1 PIP2_Priority=2", "user SendingCard=1",
     "of MainLayer_Priority PIP1_Priority PIP2_Priority:; leaves MainLayer_Priority=0 PIP1_Priority=1 "
     "PIP2_Priority=2 LowestLayer=0"},
    {"Fn, HDMI output", "user Fn_HDMIOutput=1", "user SendingCard=1",
     nowCard + "leaves FnMode=0 Fn_{Synchronization! HDMIOutput? FTB? Freeze? TestPattern?}"},
    {"Fn, freeze", "user Fn_Freeze=1", "user SendingCard=1",
     nowCard + "leaves FnMode=3 Fn_{Synchronization? HDMIOutput? FTB? Freeze! TestPattern?}"},
    // The rate is not doubled any more.
    {"3D and software", "Mode3D_Status=1 OutputMode=1 OutputFrameRate=8", "user SendingCard=1",
     "of OutputFrameRate Mode3D_Status: OutputFrameRate=59.94 Mode3D_Status=0; leaves Mode3D_Status=0 "
     "OutputMode=0; screen 1920x1200@59.94"},
    {"lists", "MainLayer_InputSource/4+", "user SendingCard=1",
     nowCard + "leaves MainLayer_{InputSource/4- InputSource/0+} Sync_{Source/0+ Source/1- Source/2- "
               "Source/3-} Audio_{AudioOutput/1+ AudioOutput/2- AudioOutput/3- AudioOutput/4+}"},
};

const QString path =
    "of MainLayer_InputSource MainLayer_HorWidth MainLayer_VerHeight: MainLayer_{InputSource=2 HorWidth=800 "
    "VerHeight=600}; leaves MainLayer_{ScalingMode=2 HorWidth=800 VerHeight=600 InitialX=0 InitialY=0 "
    "CustomWidth=800 CustomHeight=600 CustomX=0 CustomY=0}" +
    each(videoPath, "+");
const QString rated =
    "OutputFrameRate=9 InputRecordFirst+19=33333; " + card +
    "InputRecordFirst=97 InputRecordFirst+2=3 InputRecordFirst+3=1920 InputRecordFirst+4=1080 ";
const CaseLines backLines{
    {"video path", card, "user VideoController=1",
     path + " MainLayer_InputCrop+ AudioInput_Mosaic+; picture 1280x1024@59.94"},
    {"video path", card, "user FiberConverter=1",
     path + " MainLayer_InputCrop+ AudioInput_Mosaic-; picture 1280x1024@59.94"},
    {"video path, no signal", card + "InputRecordFirst+16=0", "user VideoController=1",
     path + " MainLayer_InputCrop- AudioInput_Mosaic+; picture No Signal"},
    {"video path, no signal", card + "InputRecordFirst+16=0", "user FiberConverter=1",
     path + " MainLayer_InputCrop+ AudioInput_Mosaic-; picture No Signal"},
    {"rate, free", rated + "InputRecordFirst+5=16683 Sync_Status=0", "user VideoController=1",
     nowController + "leaves OutputRate=6000; screen 1920x1200@60"},
    {"rate, source in reach", rated + "InputRecordFirst+5=16683 Sync_Status=1", "user VideoController=1",
     nowController + "leaves OutputRate=5994; screen 1920x1200@59.94"},
    {"rate, source out of reach", rated + "InputRecordFirst+5=20000 Sync_Status=1", "user VideoController=1",
     nowController + "leaves OutputRate=6000; screen 1920x1200@60"},
    {"PIP 2 is on", "MainLayer_InputSource/4+; " + card + "PIP2_Status=1", "user VideoController=1",
     nowController + "leaves MainLayerTransition- TransitionDuration- MainLayer_InputSource/4-; hidden "
                     "labWindowOffDisplay_3"},
    {"maker's sign", fiber + "user MakerSign=0; MakerSign=1", "user VideoController=1",
     nowController + "visible labDeviceName"},
    {"no maker's sign", fiber + "user MakerSign=1; MakerSign=0", "user VideoController=1",
     nowController + "hidden labDeviceName"},
    {"lists", "MainLayer_InputSource/4+; " + card, "user VideoController=1",
     nowController + "leaves MainLayer_InputSource/4+ Sync_{Source/1+ Source/2+ Source/3+} "
                     "Audio_{AudioOutput/2+ AudioOutput/3+}"},
};
} // namespace

class TestApplyWorkMode : public CaseTest
{
    Q_OBJECT
    /// On a model with the pages of the work mode and of 3D.
    EngineRig *makeRig() const override
    {
        auto *rig = new EngineRig;
        rig->addRows({CONFIG_WorkingMode, CONFIG_Mode3D});
        return rig;
    }
    void begin() override
    {
        m_rig->reset();
        caseline::prepare(*m_rig, "OutputWidth=1920 OutputHeight=1200 OutputRate=6000");
        m_rig->input(fallback, 105, 3, 1280, 1024, 16683);
        ParaProcess::bHaveSDI = true;
    }
    CaseLines lines() const override
    {
        static const CaseLines all = modeLines + cardLines + backLines;
        return all;
    }

private slots:
    void cleanup()
    {
        KeyEvent::LightFiber(false);
        m_rig->home->hide();
    }

    void syncSourcesWithoutSdi()
    {
        ParaProcess::bHaveSDI = false;
        runCaseLine(*m_rig, {"", card, "user VideoController=1",
                             nowController + "leaves Sync_{Source/1+ Source/2+ Source/3-}"});
    }

    void fiberGivesTheHomeScreenBack()
    {
        MenuDirectory *menu = poolObject<MenuDirectory>(ENUM_MAIN_MENU);
        for (ENUM_MenuIndex to : {MENU_VideoController, MENU_SendingCard})
            for (bool pageOpen : {true, false}) {
                begin();
                m_rig->fromUser(MENU_FiberConverter, "1");
                menu->setParentScreen(nullptr);
                if (pageOpen) {
                    m_rig->home->show();
                    menu->show();
                    QApplication::setActiveWindow(menu);
                }
                m_rig->fromUser(to, "1");
                QCOMPARE(m_rig->home->isVisible(), !pageOpen);
                QVERIFY(menu->parentScreen() == m_rig->home);
                menu->hide();
                m_rig->home->hide();
            }
    }
};

FPD_TEST(TestApplyWorkMode)
#include "tst_applyworkmode.moc"
