// The presets: the one in use, names, what a take over and a dialog that is not shown leave behind, and
// loading by number.

#include "framework/engine/presets.h"
#include "framework/input/keypadevent.h"
#include "framework/object/globaltimer.h"
#include "menu/keycodes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/enginerig.h"
#include "widget/dialog/dialog_scene.h"
#include "widget/page/openpage.h"

using namespace VASK;

namespace
{
ENUM_MenuIndex itemOf(int preset)
{
    return ENUM_MenuIndex(MENU_Preset1 + preset - 1);
}

/// A key that acts when it is let go, or a step of the knob.
void key(QWidget &dialog, unsigned char code)
{
    const bool isKnob = code == KEY_KNOB_LEFT || code == KEY_KNOB_RIGHT;
    KeypadEvent event(isKnob ? KEY_PRESSED : KEY_RELEASED, code, 1, false);
    QCoreApplication::sendEvent(&dialog, &event);
}
constexpr unsigned char toLeft = KEY_KNOB_LEFT, toRight = KEY_KNOB_RIGHT, ok = KEY_OK;
using Keys = QList<unsigned char>;
} // namespace
Q_DECLARE_METATYPE(Keys)

class TestApplyPresets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_rig = new EngineRig;
        m_rig->addRows({CONFIG_PresetCopyTo});
    }
    void cleanupTestCase() { delete m_rig; }

    void init()
    {
        m_rig->reset();
        OpenPage::hideAll();
        ParaProcess::m_CopySceneNum = -1;
        m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, UNSELECTED);
        m_rig->operate = [this](QDialog &dialog) {
            for (unsigned char code : qAsConst(m_keys))
                key(dialog, code);
        };
        fill();
    }

    void actions_data()
    {
        addColumns<int, Keys, QString, QStringList, QString>(
            {"preset", "keys", "sent", "messages", "states"});
        const Keys save{toLeft, ok}, load{ok}, clear{toRight, ok};
        const QStringList saved{"Waiting", "PresetSaveSucceed"}, loaded{"Waiting", "PresetLoadSucceed"};
        const QStringList cleared{"Waiting", "PresetDeleteSucceed"};
        const QString question = "DeletePresetConfirm";
        addRow("save over the one in use", 1, save, "PresetSave=0 Preset1=", saved, "SSBSBBBBBB 0");
        addRow("load the one in use", 1, load, "PresetLoad=0 Preset1=", loaded, "USBSBBBBBB 0");
        addRow("clear", 2, clear, "PresetDelete=1 Preset2=", QStringList{question + "News?"} + cleared,
               "UBBSBBBBBB 0");
        addRow("clear the one in use", 1, clear,
               "PresetDelete=0 Preset1=", QStringList{question + "Preset1?"} + cleared, "BSBSBBBBBB 255");
    }
    void actions()
    {
        const auto [preset, keys] = fetched<int, Keys>({"preset", "keys"});
        m_keys = keys;
        m_rig->fromUser(itemOf(preset), "");
        QTEST(m_rig->device->sent.take().join(' '), "sent");
        QTEST(m_rig->messages, "messages");
        QTEST(states(), "states");
        const bool used = m_rig->value(itemOf(preset)) == "Used";
        QCOMPARE(icon(preset), QString(used ? "sceneused.png" : "sceneunused.png"));
        QCOMPARE(m_rig->info(itemOf(preset)).tag, QString("Preset%1").arg(preset));
        const QStringList redrawn = m_rig->redrawn.take();
        for (int row : {ENUM_ROW_Preset1, ENUM_ROW_PresetCopy1})
            QVERIFY(redrawn.contains(itemnames::line(itemOf(preset), QString::number(row + preset - 1))));
    }

    void questionsNameThePreset()
    {
        m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, SELECTED);
        m_rig->answer = 0;
        m_keys = {toLeft, ok};
        m_rig->fromUser(itemOf(2), "");
        m_keys = {toRight, ok};
        m_rig->fromUser(itemOf(4), "");
        QCOMPARE(m_rig->messages, (QStringList{"IfCoverPreset News?", "DeletePresetConfirm Preset4?"}));
    }

    void reportsOpenNothing()
    {
        m_rig->operate = [](QDialog &) { QFAIL("a dialog"); };
        m_rig->fromDevice(itemOf(3), "Saved");
        QCOMPARE(m_rig->reported.take(), (QStringList{"Preset3=Saved", "Preset3=Saved"}));
        QCOMPARE(m_rig->device->sent.take() + m_rig->messages, QStringList());
    }

    /// A PC that takes over closes a question with the result of a message that is replaced.
    void aTakeOverIsNoAnswer()
    {
        m_keys = {toLeft, ok};
        m_rig->answer = 2;
        m_rig->fromUser(itemOf(2), "");
        QCOMPARE(m_rig->device->sent.take(), QStringList());
        QCOMPARE(states(), QString("USBSBBBBBB 0"));
    }

    void copies_data()
    {
        addColumns<int, int, QString, QString, QString>({"source", "target", "sent", "states", "name"});
        addRow("a name goes along", 2, 1, "PresetCopy=1_0", "SSBSBBBBBB 0", "News"); // onto the one in use
        addRow("no name stays behind", 4, 3, "PresetCopy=3_2", "USSSBBBBBB 0", "Preset3");
    }
    void copies()
    {
        const auto [source, target] = fetched<int, int>({"source", "target"});
        openCopyPage(source);
        m_rig->answer = 0;
        m_rig->fromUser(itemOf(target), "");
        QTEST(m_rig->device->sent.take().join(' '), "sent");
        QCOMPARE(m_rig->messages, (QStringList{"Waiting", "PresetCopySucceed"}));
        QTEST(states(), "states");
        QTEST(m_rig->info(itemOf(target)).tag, "name");
        QVERIFY(page(ENUM_PAGE_PresetSettings)->isVisible() && m_rig->enabled(itemOf(source)));
    }

    void quickLoad_data()
    {
        addColumns<int, QString, QStringList, QString>({"number", "sent", "messages", "states"});
        addRow("stored", 3, "PresetLoad=3", QStringList{"Waiting", "PresetLoadSucceed"}, "SSBUBBBBBB 3");
        addRow("blank", 4, "", QStringList{"PresetLoadNullFaild"}, "USBSBBBBBB 0");
        for (int number : {-1, 10, 255})
            addRow(QString::number(number), number, "", QStringList(), "USBSBBBBBB 0");
    }
    void quickLoad()
    {
        QFETCH(int, number);
        m_rig->engine->QuickLoadScene(number);
        QTEST(m_rig->device->sent.take().join(' '), "sent");
        QTEST(m_rig->messages, "messages");
        QTEST(states(), "states");
    }

    void noMessageNoStep()
    {
        g_dialogConfig[MSG_PresetLoadSucceed].enabled = false;
        m_keys = {ok};
        m_rig->fromUser(itemOf(4), "");
        g_dialogConfig[MSG_PresetLoadSucceed].enabled = true;
        QCOMPARE(m_rig->messages, QStringList{"Waiting"});
        QCOMPARE(m_rig->device->sent.take(), QStringList{"PresetLoad=3"});
        QCOMPARE(states(), QString("USBSBBBBBB 0"));
    }

    void presetKeyLeavesTheTargets()
    {
        openCopyPage(2);
        key(*page(ENUM_PAGE_PresetCopyTo), KEY_PRESET);
        QVERIFY(page(ENUM_PAGE_PresetSettings)->isVisible());
        QVERIFY(!page(ENUM_PAGE_PresetCopyTo)->isVisible());
        QVERIFY(m_rig->enabled(itemOf(2)));
    }

    /// The last one, as the time runs on. It holds still on the page of the presets only.
    void timeTakesThePanelHomeFromTheTargets()
    {
        m_rig->home->hide();
        m_rig->set(MENU_ReturntoHome, "1");
        GlobalTimer::getInstance()->Initialize(m_rig->home);
        openCopyPage(2);
        QTRY_VERIFY_WITH_TIMEOUT(m_rig->home->isVisible(), 5000);
        QVERIFY(!page(ENUM_PAGE_PresetCopyTo)->isVisible());
        QVERIFY(!page(ENUM_PAGE_PresetSettings)->isVisible());
        QVERIFY(m_rig->enabled(itemOf(2)));
    }

private:
    /// Presets 1 used, 2 and 4 saved, 2 under a name that the device keeps; the others are blank.
    void fill()
    {
        for (int preset : {2, 4})
            m_rig->set(itemOf(preset), "Saved");
        m_rig->set(itemOf(1), "Used");
        m_rig->process(PARA_PresetInUse, 0);
        m_rig->store->changeItem(itemOf(2), [](ST_ItemInfo &item) { item.tag = "News"; });
        m_rig->engine->presets().setNamed(1, true);
        m_rig->forget();
    }

    /// The first letters of the ten states and the preset in use.
    QString states() const
    {
        QString text;
        for (int preset = 1; preset <= 10; ++preset)
            text += m_rig->value(itemOf(preset)).left(1);
        return text + " " + m_rig->value(PARA_PresetInUse);
    }

    QString icon(int preset) const { return m_rig->info(itemOf(preset)).icon.section('/', -1); }
    MenuDirectory *page(ENUM_ObjectIndex object) const { return poolObject<MenuDirectory>(object); }

    void openCopyPage(int source)
    {
        page(ENUM_PAGE_PresetSettings)->show();
        m_keys = {toRight, toRight, ok};
        m_rig->fromUser(itemOf(source), "");
        QVERIFY(page(ENUM_PAGE_PresetCopyTo)->isVisible());
        QVERIFY(!page(ENUM_PAGE_PresetSettings)->isVisible());
        QVERIFY(!m_rig->enabled(itemOf(source)));
        QCOMPARE(page(ENUM_PAGE_PresetCopyTo)->currentRow(), 0);
        QCOMPARE(m_rig->device->sent.take(), QStringList{itemnames::line(itemOf(source), "")});
        m_rig->forget();
        QApplication::setActiveWindow(page(ENUM_PAGE_PresetCopyTo));
    }

    EngineRig *m_rig = nullptr;
    Keys m_keys;
};

FPD_TEST(TestApplyPresets)
#include "tst_applypresets.moc"
