// Display mode, Fn key and test pattern, with the LEDs that they light.

#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
// Who is marked, and who can be chosen.
const QString isFrozen = "leaves DisplayMode=1 Freeze! Normal? FTB? Freeze+ FTB+ TestPattern-";
const QString isBlack = "leaves DisplayMode=2 FTB! Normal? Freeze? Freeze+ FTB+ TestPattern-";
const QString isTested = "leaves DisplayMode=3 Normal? Freeze? FTB? Normal+ Freeze- FTB- TestPattern+";
const CaseLines modeLines{
    {"freeze", "FnMode=3", "user Freeze=1", "sends Freeze=1; lit FREEZE FN; dark TEST; " + isFrozen},
    {"freeze, Fn is black", "FnMode=2", "device Freeze=1",
     "tells Freeze=1; lit FREEZE; dark TEST FN; " + isFrozen},
    {"freeze again", "user Freeze=1", "user Freeze=1", "reloads ; lit FREEZE"},
    {"black", "FnMode=2", "user FTB=1", "sends FTB=1; lit FN; dark FREEZE TEST; " + isBlack},
    {"black", "FnMode=3", "device FTB=1", "tells FTB=1; dark FREEZE TEST FN; " + isBlack},
    {"black out of a frozen picture", "user Freeze=1", "user FTB=1", "sends FTB=1; dark FREEZE; " + isBlack},
    {"test pattern", "FnMode=4", "user TestPattern=1",
     "sends Test_PureColor=5; lit TEST FN; dark FREEZE; " + isTested},
    {"test pattern, Fn is sync", "FnMode=0", "device TestPattern=1", "lit TEST; dark FREEZE FN; " + isTested},
    {"the last pattern was a picture", "TestPatternFamily=3", "user TestPattern=1", isTested},
    {"normal", "user TestPattern=1", "user Normal=1",
     "sends Normal=1; dark TEST FREEZE FN; leaves DisplayMode=0 Normal! Freeze? FTB? Freeze+ FTB+ "
     "TestPattern+"},
    {"normal, known", "", "mode 3", "reloads "},
    {"unknown", "", "mode 7", "reloads "},
    {"unknown", "", "mode 2", "reloads "},
    {"freeze, reported", "", "mode 4", "tells Freeze=; lit FREEZE; " + isFrozen},
};

QString only(int function)
{
    QString text = QString("leaves FnMode=%1").arg(function);
    const QStringList names{"Synchronization", "HDMIOutput", "FTB", "Freeze", "TestPattern"};
    for (int other = 0; other < names.size(); ++other)
        text += " Fn_" + names[other] + (other == function ? '!' : '?');
    return text;
}
const CaseLines fnLines{
    {"sync", "DisplayMode=1", "user Fn_Synchronization=1", "sends Fn_Synchronization=1; dark FN; " + only(0)},
    {"HDMI output", "DisplayMode=1", "device Fn_HDMIOutput=1", "tells Fn_HDMIOutput=1; dark FN; " + only(1)},
    {"black, is black", "DisplayMode=2", "user Fn_FTB=1", "sends Fn_FTB=1; lit FN; " + only(2)},
    {"black, is frozen", "DisplayMode=1", "device Fn_FTB=1", "tells Fn_FTB=1; dark FN; " + only(2)},
    {"freeze, is frozen", "DisplayMode=1", "device Fn_Freeze=1", "tells Fn_Freeze=1; lit FN; " + only(3)},
    {"test pattern, is one", "DisplayMode=3", "user Fn_TestPattern=1",
     "sends Fn_TestPattern=1; lit FN; " + only(4)},
    {"test pattern, is normal", "DisplayMode=0", "device Fn_TestPattern=1",
     "tells Fn_TestPattern=1; dark FN"},
};

const CaseLines patternLines{
    {"pure colour", "TestPatternFamily=9", "user Test_Type=0",
     "sends Test_PureColor=5 Test_Type=0; leaves TestPatternFamily=0"},
    {"gradient", "", "user Test_Type=1", "sends Test_Gradient=0 Test_Type=1; leaves TestPatternFamily=1"},
    {"grid", "", "user Test_Type=2", "sends Test_Grid=0 Test_Type=2; leaves TestPatternFamily=2"},
    {"maker's picture", "", "user Test_Type=3", "sends Test_Type=3; leaves TestPatternFamily=3"},
    {"custom", "", "user Test_Type=4", "sends Test_Type=4; leaves TestPatternFamily=4"},
    {"none", "TestPatternFamily=1", "user Test_Type=5", "leaves TestPatternFamily=1"},
    {"grid", "", "device Test_Type=2", "tells Test_Type=2; leaves TestPatternFamily=2"},
    {"colour", "TestPatternFamily=4", "user Test_PureColor=1",
     "sends Test_PureColor=1; leaves TestPatternFamily=0"},
    {"colour run", "", "device Test_Gradient=1", "tells Test_Gradient=1; leaves TestPatternFamily=1"},
    {"lines", "", "user Test_Grid=1", "sends Test_Grid=1; leaves TestPatternFamily=2"},
};
} // namespace

class TestApplyDisplay : public CaseTest
{
    Q_OBJECT
    /// With the page of the patterns' kinds.
    EngineRig *makeRig() const override
    {
        auto *rig = new EngineRig;
        rig->addRows({CONFIG_TestType});
        return rig;
    }
    CaseLines lines() const override
    {
        static const CaseLines all = modeLines + fnLines + patternLines;
        return all;
    }

private slots:
    /// No row of this model opens them.
    void patternPageTakesThePlace()
    {
        const auto page = [](ENUM_ObjectIndex number) { return poolObject<MenuDirectory>(number); };
        m_rig->fromUser(MENU_Test_Type, "2");
        MenuDirectory *grid = page(ENUM_PAGE_TestGrid);
        QVERIFY(grid && page(ENUM_PAGE_TestPattern) == grid && grid->isVisible());
        m_rig->fromUser(MENU_Test_Type, "1");
        MenuDirectory *gradient = page(ENUM_PAGE_TestGradient);
        QVERIFY(!grid->isVisible() && page(ENUM_PAGE_TestPattern) == gradient);
        QVERIFY(gradient->parentScreen() == page(ENUM_PAGE_DisplayControl));
        gradient->hide();
    }
};

FPD_TEST(TestApplyDisplay)
#include "tst_applydisplay.moc"
