// Names and texts that the panel has not made itself, from the device, from files and from the store:
// whatever signs they hold, the LCD shows them as they stand.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QFontMetrics>

using namespace VASK;

namespace
{
const QRect address(184, 4, 136, 20), rows(0, 24, 320, 216), message(34, 17, 250, 206);
const QRect presetTitle(25, 39, 270, 30);

struct StoredText {
    ENUM_MenuIndex item;
    const char *field;
    const char *text;
};
const StoredText storedTexts[] = {
    {MENU_DisplayControl, "Tag", "<b>Show"},
    {MENU_Normal, "Tag", "<s>No</s>"},
    {MENU_AdvancedSetting, "Tag", "<i>More"},
    {MENU_DeviceBackup, "Params/0", "<b>A&B</b>"},
    {MENU_DeviceBackup, "Params/1", "<img src=x>"},
    {MENU_ReturntoHome, "Unit", "<u>s"},
    {MENU_SelfTest, "Tag", "<u>R&D</u>"},
    {MENU_TipReset, "Tag", "<h1>T&T</h1>"},
    {MENU_Net_Apply, "Tag", "A&B<p>"},
    {MENU_Color_Reset, "Tag", "<p>C&D"},
};

struct Sight {
    const char *what;
    QList<ENUM_MenuIndex> path;
    const char *text;
    QRect place = rows;
    int pixels = 22;
};
const Sight sights[] = {
    {"row of the main menu", {}, "<b>Show"},
    {"check mark", {MENU_DisplayControl}, "<s>No</s>"},
    {"choice of a list", {MENU_AdvancedSetting}, "<b>A&B</b>"},
    {"open list", {MENU_AdvancedSetting, MENU_DeviceBackup}, "<img src=x>"},
    {"unit", {MENU_SystemSetting}, "<u>s"},
    {"row that acts", {MENU_SystemSetting}, "<u>R&D</u>"},
    {"version", {MENU_SystemSetting, MENU_AboutUs}, "<s>V1</s>"},
    {"tip", {MENU_FactoryReset}, "<h1>T&T</h1>", rows, 18},
    {"two buttons", {MENU_CommunicationSettings, MENU_NetworkSettings}, "A&B<p>"},
    {"button", {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, MENU_LEDScreenColor}, "<p>C&D"},
    {"cabinet file", {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles}, "<u>P2&5</u>"},
    {"preset", {MENU_PresetSettings}, "<b>&1</b>"},
    {"preset's dialog", {MENU_PresetSettings, MENU_Preset1}, "<b>&1</b>", presetTitle, 20},
};
} // namespace

class TestStoryNames : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        QVERIFY(m_panel.startReady());
        QVERIFY(m_panel.ask({"rename", "<i>Wall</i>"}).ok);
        QVERIFY(m_panel.ask({"panel", "stop"}).ok);
        for (const StoredText &stored : storedTexts)
            QVERIFY2(m_panel.setStored(stored.item, stored.text, stored.field), stored.text);
        QVERIFY(m_panel.ask({"env", "set", "ver_rootfs", "<s>V1</s>"}).ok);
        constexpr quint32 firstPresetName = 0x3200;
        QVERIFY(m_panel
                    .ask({"flash", "write", QString::number(firstPresetName, 16),
                          QByteArray("<b>&1</b>").leftJustified(19, '\0').toHex()})
                    .ok);
        const QString cabinet = "<u>P2&5</u>";
        QFile index(m_panel.file("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName"));
        QVERIFY(index.open(QIODevice::ReadWrite));
        QVERIFY(index.write(QByteArray(reinterpret_cast<const char *>(cabinet.utf16()), 2 * cabinet.size())
                                .leftJustified(64, '\0')) > 0);
        index.close();
        QVERIFY(startAgain());
        QVERIFY(m_walk.speak("fpd_ZH"));
    }

    void leave() override { QVERIFY(m_walk.home()); }

private slots:
    void aNameIsShownAsItStands_data()
    {
        QTest::addColumn<int>("sight");
        for (int i = 0; i < int(std::size(sights)); ++i)
            QTest::newRow(sights[i].what) << i;
    }
    void aNameIsShownAsItStands()
    {
        QFETCH(int, sight);
        QVERIFY(m_walk.go(sights[sight].path));
        QVERIFY(m_panel.waitToDraw(sights[sight].text, sights[sight].pixels, sights[sight].place));
    }

    void aQuestionNamesThePreset()
    {
        QVERIFY(m_walk.go({MENU_PresetSettings, MENU_Preset1}));
        QVERIFY(m_panel.turn(Right) && m_panel.settle() && m_walk.press(keys::Ok));
        QVERIFY(m_panel.waitToDraw("<b>&1</b>?", 18, message));
        QVERIFY(m_walk.answer(false));
    }

    void theDevicesName()
    {
        QVERIFY(m_panel.waitToDraw("<i>Wall</i>", 13, address, "Arial"));
        // One that is too wide ends in dots, not inside a letter.
        constexpr int addressWidth = 126;
        const QString wide = "Wall of the town hall, <b>east</b>";
        QVERIFY(m_panel.ask({"rename", wide}).ok);
        QFont font("Arial");
        font.setPixelSize(13);
        const QString shown = QFontMetrics(font).elidedText(wide, Qt::ElideRight, addressWidth);
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(m_panel.waitToDraw(shown, 13, address, "Arial"));
    }
};

FPD_TEST(TestStoryNames)
#include "tst_storynames.moc"
