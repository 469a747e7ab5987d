// What the commands to the device send that take it some seconds: cabinet files, saving, self test.
#include "tests/system/framedrive.h"

#include <QTest>

using namespace VASK;

class TestFramesSystem : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override;
};

namespace
{
using Path = QList<ENUM_MenuIndex>;

Path screen(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, row};
}
Path file(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles, row};
}
} // namespace

QVector<NamedFrames> TestFramesSystem::table() const
{
    return {
        // The device has four files, and a register for each.
        {"file 1", {file(MENU_CabinetFile1), "closed2", {"0ff00100 00 01"}}},
        {"file 2", {file(MENU_CabinetFile2), "closed2", {"0ff00101 00 01"}}},
        {"file 3", {file(MENU_CabinetFile3), "closed2", {"0ff00102 00 01"}}},
        {"file 4", {file(MENU_CabinetFile4), "closed2", {"0ff00103 00 01"}}},
        {"save, refused", {screen(MENU_SavetoRVCard), "no", {}}},
        {"save", {screen(MENU_SavetoRVCard), "yes closed2", {"01000011 01 00"}}},
        {"self test, refused", {{MENU_SystemSetting, MENU_SelfTest}, "no", {}}},
        {"self test", {{MENU_SystemSetting, MENU_SelfTest}, "yes closed", {"13800000 00 00"}}},
    };
}

QTEST_MAIN(TestFramesSystem)
#include "tst_framessystem.moc"
