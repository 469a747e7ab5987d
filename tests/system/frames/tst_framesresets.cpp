// What the resets send. One of them runs in a run of the panel, so each line has a run of its own.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

#include <QRegularExpression>

using namespace VASK;

class TestFramesResets : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override { QVERIFY(m_drive.start() && m_walk.speak("fpd_ZH")); }

private slots:
    void resetSends_data()
    {
        const DataRows<ENUM_ConfigIndex, QList<ENUM_MenuIndex>, QString> row{"root", "path", "frame"};
        using Path = QList<ENUM_MenuIndex>;
        row("address kept", CONFIG_MainMenu, Path{MENU_FactoryReset, MENU_SaveIP}, "01000002 00 00");
        row("user data kept", CONFIG_MainMenu, Path{MENU_FactoryReset, MENU_SaveUserData}, "01000002 00 02");
        row("everything", CONFIG_MainMenu, Path{MENU_FactoryReset, MENU_ResetAll}, "01000002 00 01");
        row("everything, by the maker", CONFIG_ProductHiddenMenu, Path{MENU_ClearAllParameters},
            "01000002 00 01");
    }
    void resetSends()
    {
        const auto [root, path, frame] =
            fetched<ENUM_ConfigIndex, QList<ENUM_MenuIndex>, QString>({"root", "path", "frame"});
        m_drive.setRoot(root);
        QCOMPARE(m_drive.drive({path, "no", {}}), QString());
        // What the device tells when it is back leads to nothing.
        QCOMPARE(m_drive.drive({path, "yes closed", {frame}}), QString());
        const QString firstLine = m_walk.text("ResetSucceed").section(QRegularExpression("\\\\r|\r"), 0, 0);
        QVERIFY(m_panel.waitFor(firstLine));

        // That message stays until the panel goes down.
        QVERIFY(m_drive.restartPanel());
    }

private:
    FrameDrive m_drive{m_panel, m_walk};
};

FPD_TEST(TestFramesResets)
#include "tst_framesresets.moc"
