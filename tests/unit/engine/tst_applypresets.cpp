// The presets: what each action of their dialog and a choice of a copy target ask, send, tell and leave
// behind.

#include "enginerig.h"
#include "framework/globaltimer.h"
#include "framework/keypadevent.h"
#include "widget/dialog_scene.h"

using namespace VASK;

namespace
{
constexpr int none = 255;

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
constexpr unsigned char toLeft = KEY_KNOB_LEFT, toRight = KEY_KNOB_RIGHT, ok = KEY_OK, esc = KEY_ESC;
using Keys = QList<unsigned char>;
} // namespace
Q_DECLARE_METATYPE(Keys)

class TestApplyPresets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init();

    void actions_data();
    void actions();
    void dialogOffers();
    void questionsNameThePreset();
    void reportsOpenNothing();
    void aTakeOverIsNoAnswer();
    void copies_data();
    void copies();
    void copyPageIsLeft();
    void quickLoad_data();
    void quickLoad();
    void noMessageNoStep();
    void presetKeyLeavesTheTargets();
    void timeTakesThePanelHomeFromTheTargets();

private:
    /// Presets 1 used, 2 and 4 saved, 2 under a name that the device keeps; the others are blank.
    void fill();
    QString states() const;
    QString icon(int preset) const { return m_rig->info(itemOf(preset)).icon.section('/', -1); }
    MenuDirectory *page(ENUM_ObjectIndex object) const { return poolObject<MenuDirectory>(object); }
    void openCopyPage(int source);

    EngineRig *m_rig = nullptr;
    Keys m_keys;
};

void TestApplyPresets::init()
{
    m_rig->reset();
    MenuDirectory::hideAllPages();
    ParaProcess::m_CopySceneNum = -1;
    m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, UNSELECTED);
    m_rig->operate = [this](QDialog &dialog) {
        for (unsigned char code : qAsConst(m_keys))
            key(dialog, code);
    };
    fill();
}

void TestApplyPresets::fill()
{
    for (int preset : {2, 4})
        m_rig->set(itemOf(preset), "Saved");
    m_rig->set(itemOf(1), "Used");
    m_rig->process(PARA_PresetInUse, 0);
    m_rig->store->changeItem(itemOf(2), [](ST_ItemInfo &item) { item.tag = "News"; });
    m_rig->engine->setPresetNamed(1, true);
    m_rig->forget();
}

/// The first letters of the ten states and the preset in use.
QString TestApplyPresets::states() const
{
    QString text;
    for (int preset = 1; preset <= 10; ++preset)
        text += m_rig->value(itemOf(preset)).left(1);
    return text + " " + m_rig->value(PARA_PresetInUse);
}

void TestApplyPresets::actions_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("states");
    const QString before = "USBSBBBBBB 0";
    const Keys load{ok}, save{toLeft, ok}, clear{toRight, ok};
    QTest::newRow("left") << 2 << Keys{esc} << 1 << QStringList{"1027="} << QStringList() << before;
    QTest::newRow("save a blank one") << 3 << Keys{ok} << 0 << QStringList{"1036=2", "1028="}
                                      << QStringList{"Waiting", "PresetSaveSucceed"} << "USSSBBBBBB 0";
    QTest::newRow("save the last one")
        << 10 << Keys{toRight, toRight, ok} << 0 << QStringList{"1036=9", "1035="}
        << QStringList{"Waiting", "PresetSaveSucceed"} << "USBSBBBBBS 0";
    QTest::newRow("save over a saved one, no")
        << 4 << save << 0 << QStringList() << QStringList{"IfCoverPresetPreset4?"} << before;
    QTest::newRow("save over a saved one, yes")
        << 4 << save << 1 << QStringList{"1036=3", "1029="}
        << QStringList{"IfCoverPresetPreset4?", "Waiting", "PresetSaveSucceed"} << before;
    QTest::newRow("save over the one in use")
        << 1 << save << 0 << QStringList{"1036=0", "1026="} << QStringList{"Waiting", "PresetSaveSucceed"}
        << "SSBSBBBBBB 0";
    QTest::newRow("load another") << 4 << load << 0 << QStringList{"1037=3", "1029="}
                                  << QStringList{"Waiting", "PresetLoadSucceed"} << "SSBUBBBBBB 3";
    QTest::newRow("load the one in use") << 1 << load << 0 << QStringList{"1037=0", "1026="}
                                         << QStringList{"Waiting", "PresetLoadSucceed"} << before;
    QTest::newRow("clear, no") << 2 << clear << 0 << QStringList() << QStringList{"DeletePresetConfirmNews?"}
                               << before;
    QTest::newRow("clear") << 2 << clear << 1 << QStringList{"1038=1", "1027="}
                           << QStringList{"DeletePresetConfirmNews?", "Waiting", "PresetDeleteSucceed"}
                           << "UBBSBBBBBB 0";
    QTest::newRow("clear the one in use")
        << 1 << clear << 1 << QStringList{"1038=0", "1026="}
        << QStringList{"DeletePresetConfirmPreset1?", "Waiting", "PresetDeleteSucceed"} << "BSBSBBBBBB 255";
}

void TestApplyPresets::actions()
{
    QFETCH(int, preset);
    QFETCH(QStringList, sent);
    m_keys = *static_cast<Keys *>(QTest::qData("keys", qMetaTypeId<Keys>()));
    m_rig->answer = *static_cast<int *>(QTest::qData("answer", qMetaTypeId<int>()));
    m_rig->fromUser(itemOf(preset), "");
    QCOMPARE(m_rig->device->sent.take(), sent);
    QTEST(m_rig->messages, "messages");
    QTEST(states(), "states");
    const QStringList redrawn = m_rig->redrawn.take();
    const bool acted = sent.size() > 1;
    for (int row : {ENUM_ROW_Preset1, ENUM_ROW_PresetCopy1})
        QCOMPARE(redrawn.contains(QString("%1=%2").arg(itemOf(preset)).arg(row + preset - 1)), acted);
    if (!acted)
        return;
    const QString state = m_rig->value(itemOf(preset));
    QCOMPARE(icon(preset), QString(state == "Used" ? "sceneused.png" : "sceneunused.png"));
    if (state == "Blank")
        QCOMPARE(m_rig->info(itemOf(preset)).tag, QString("Preset%1").arg(preset));
    if (state == "Used" && preset == 4)
        QCOMPARE(icon(1), QString("sceneunused.png")); // the one that it took over from
}

void TestApplyPresets::dialogOffers()
{
    for (int preset : {2, 3}) {
        QStringList seen;
        m_rig->operate = [&seen](QDialog &dialog) {
            seen << dialog.findChild<QLabel *>("lab_Title")->text() << dialog.focusWidget()->objectName();
            for (int action = 1; action <= 4; ++action)
                seen << dialog.findChild<QLabel *>(QString("lab%1_name").arg(action))->text();
            key(dialog, toRight);
            seen << dialog.focusWidget()->objectName();
            key(dialog, esc);
        };
        m_rig->fromUser(itemOf(preset), "");
        QStringList wanted{preset == 2 ? "News" : "Preset3", preset == 2 ? "lab2_bg" : "lab1_bg"};
        wanted << QStringList{"Save", "Load", "Clear", "CopyTo"} << (preset == 2 ? "lab3_bg" : "lab1_bg");
        QCOMPARE(seen, wanted);
    }
}

void TestApplyPresets::questionsNameThePreset()
{
    m_rig->store->UpdataItemCurChoice(MENU_LanguageEn, SELECTED);
    m_rig->answer = 0;
    m_keys = {toLeft, ok};
    m_rig->fromUser(itemOf(2), "");
    m_keys = {toRight, ok};
    m_rig->fromUser(itemOf(4), "");
    QCOMPARE(m_rig->messages, (QStringList{"IfCoverPreset News?", "DeletePresetConfirm Preset4?"}));
}

void TestApplyPresets::reportsOpenNothing()
{
    m_rig->operate = [](QDialog &) { QFAIL("a dialog"); };
    m_rig->fromDevice(itemOf(3), "Saved");
    QCOMPARE(m_rig->reported.take(), (QStringList{"1028=Saved", "1028=Saved"}));
    QCOMPARE(m_rig->device->sent.take() + m_rig->messages, QStringList());
}

/// A PC that takes over closes what is open with the result of a message that is replaced.
void TestApplyPresets::aTakeOverIsNoAnswer()
{
    m_rig->operate = [](QDialog &dialog) { dialog.done(2); };
    m_rig->fromUser(itemOf(2), "");
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1027="});
    m_rig->operate = [](QDialog &dialog) {
        key(dialog, toLeft);
        key(dialog, ok);
    };
    m_rig->answer = 2;
    m_rig->fromUser(itemOf(2), "");
    QCOMPARE(m_rig->device->sent.take(), QStringList());
    QCOMPARE(states(), QString("USBSBBBBBB 0"));
}

void TestApplyPresets::openCopyPage(int source)
{
    page(ENUM_PAGE_PresetSettings)->show();
    m_keys = {toRight, toRight, ok};
    if (source == 1)
        m_keys = {toLeft, toLeft, ok}; // round the left end
    m_rig->fromUser(itemOf(source), "");
    QVERIFY(page(ENUM_PAGE_PresetCopyTo)->isVisible());
    QVERIFY(!page(ENUM_PAGE_PresetSettings)->isVisible());
    QVERIFY(!m_rig->enabled(itemOf(source)));
    QCOMPARE(page(ENUM_PAGE_PresetCopyTo)->currentRow(), 0);
    QCOMPARE(m_rig->device->sent.take(), QStringList{QString("%1=").arg(itemOf(source))});
    m_rig->forget();
    QApplication::setActiveWindow(page(ENUM_PAGE_PresetCopyTo));
}

void TestApplyPresets::copies_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("states");
    QTest::addColumn<QString>("name");
    const QStringList told{"Waiting", "PresetCopySucceed"};
    QTest::newRow("a name goes along") << 2 << 10 << 0 << QStringList{"1039=1_9"} << told << "USBSBBBBBS 0"
                                       << "News";
    QTest::newRow("no name stays behind") << 4 << 3 << 0 << QStringList{"1039=3_2"} << told << "USSSBBBBBB 0"
                                          << "Preset3";
    QTest::newRow("onto a saved one, no")
        << 2 << 4 << 0 << QStringList() << QStringList{"IfCoverPresetPreset4?"} << "USBSBBBBBB 0"
        << "Preset4";
    QTest::newRow("onto a saved one, yes") << 1 << 4 << 1 << QStringList{"1039=0_3"}
                                           << QStringList{"IfCoverPresetPreset4?"} + told << "USBSBBBBBB 0"
                                           << "Preset4";
    QTest::newRow("onto the one in use") << 2 << 1 << 0 << QStringList{"1039=1_0"} << told << "SSBSBBBBBB 0"
                                         << "News";
}

void TestApplyPresets::copies()
{
    QFETCH(int, source);
    QFETCH(int, target);
    QFETCH(int, answer);
    openCopyPage(source);
    m_rig->answer = answer;
    m_rig->fromUser(itemOf(target), "");
    const QStringList sent = m_rig->device->sent.take();
    QTEST(sent, "sent");
    QTEST(m_rig->messages, "messages");
    QTEST(states(), "states");
    QTEST(m_rig->info(itemOf(target)).tag, "name");
    // Back on the page of the presets; after a no the user may choose another target.
    const bool copied = !sent.isEmpty();
    QCOMPARE(page(ENUM_PAGE_PresetCopyTo)->isVisible(), !copied);
    QCOMPARE(page(ENUM_PAGE_PresetSettings)->isVisible(), copied);
    QCOMPARE(m_rig->enabled(itemOf(source)), copied);
    QCOMPARE(m_rig->redrawn.take().contains(QString("%1=%2").arg(itemOf(source)).arg(71 + source)), copied);
}

void TestApplyPresets::copyPageIsLeft()
{
    openCopyPage(4);
    key(*page(ENUM_PAGE_PresetCopyTo), esc);
    QVERIFY(page(ENUM_PAGE_PresetSettings)->isVisible());
    QVERIFY(m_rig->enabled(itemOf(4)));
    QVERIFY(m_rig->redrawn.take().contains("1029=75")); // the row that is shown now
    QCOMPARE(m_rig->device->sent.take(), QStringList());
}

void TestApplyPresets::quickLoad_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("states");
    QTest::newRow("stored") << 3 << QStringList{"1037=3"} << QStringList{"Waiting", "PresetLoadSucceed"}
                            << "SSBUBBBBBB 3";
    QTest::newRow("blank") << 4 << QStringList() << QStringList{"PresetLoadNullFaild"} << "USBSBBBBBB 0";
    for (int number : {-1, 10, none})
        QTest::addRow("%d", number) << number << QStringList() << QStringList() << "USBSBBBBBB 0";
}

void TestApplyPresets::quickLoad()
{
    QFETCH(int, number);
    m_rig->engine->QuickLoadScene(number);
    QTEST(m_rig->device->sent.take(), "sent");
    QTEST(m_rig->messages, "messages");
    QTEST(states(), "states");
}

void TestApplyPresets::noMessageNoStep()
{
    g_dialogConfig[MSG_PresetLoadSucceed].enabled = false;
    m_keys = {ok};
    m_rig->fromUser(itemOf(4), "");
    g_dialogConfig[MSG_PresetLoadSucceed].enabled = true;
    QCOMPARE(m_rig->messages, QStringList{"Waiting"});
    QCOMPARE(m_rig->device->sent.take(), QStringList{"1037=3"});
    QCOMPARE(states(), QString("USBSBBBBBB 0"));
}

void TestApplyPresets::presetKeyLeavesTheTargets()
{
    openCopyPage(2);
    key(*page(ENUM_PAGE_PresetCopyTo), KEY_PRESET);
    QVERIFY(page(ENUM_PAGE_PresetSettings)->isVisible());
    QVERIFY(!page(ENUM_PAGE_PresetCopyTo)->isVisible());
    QVERIFY(m_rig->enabled(itemOf(2)));
}

/// The last one, as the time runs on. It holds still on the page of the presets only.
void TestApplyPresets::timeTakesThePanelHomeFromTheTargets()
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

QTEST_MAIN(TestApplyPresets)
#include "tst_applypresets.moc"
