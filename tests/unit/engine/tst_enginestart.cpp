// What the engine does at its start before the flash is read: what the last run left is put back, what it
// kept is taken over; and the parts of the home screen that no other test looks at.

#include "enginerig.h"

#include <QSignalSpy>

using namespace VASK;

class TestEngineStart : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new EngineRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->reset(); }

    void displayItemsStartAnew();
    void processDataStartEmpty();
    void hdcpThatIsNotKeptIsOff_data();
    void hdcpThatIsNotKeptIsOff();
    void fnFunctionIsMarked_data();
    void fnFunctionIsMarked();
    void otherConfigurationIsAskedFor_data();
    void otherConfigurationIsAskedFor();
    void versionOfTheEnvironment_data();
    void versionOfTheEnvironment();
    void syncStateOfTheHomeScreen_data();
    void syncStateOfTheHomeScreen();
    void sendingCardLeavesPipsAlone();
    void lowestLayerIsFound();

private:
    bool shows(const char *label, const QString &picture) const
    {
        const auto *found = m_rig->home->findChild<QLabel *>(label);
        const QPixmap wanted(":/resource/image/mainWindow/" + picture);
        return found && !wanted.isNull() && found->pixmap(Qt::ReturnByValue).toImage() == wanted.toImage();
    }
    EngineRig *m_rig = nullptr;
};

void TestEngineStart::displayItemsStartAnew()
{
    const QMap<int, QString> values{
        {3018, "0"},           {3030, "0"},         {3042, "0"},         {3054, "0"},
        {2304, "RGB 4:4:4"},   {2309, "RGB 4:4:4"}, {2314, "RGB 4:4:4"}, {2319, "RGB 4:4:4"},
        {2322, "YCbCr 4:2:2"}, {2325, "0"},         {2326, "5"},         {2327, "0"},
        {2328, "0"},           {2331, "3"},         {2332, "5"},         {2333, "3"},
    };
    const QMap<int, bool> enables{{2108, false}, {2118, false}, {2128, false},
                                  {1022, true},  {1023, true},  {1025, true}};
    const QMap<int, QString> choices{{1021, SELECTED}, {1022, UNSELECTED}, {1023, UNSELECTED}};
    for (auto item = values.cbegin(); item != values.cend(); ++item)
        m_rig->set(ENUM_MenuIndex(item.key()), "1");
    for (auto item = enables.cbegin(); item != enables.cend(); ++item)
        m_rig->store->UpdataItemEnable(ENUM_MenuIndex(item.key()), !item.value());
    for (auto item = choices.cbegin(); item != choices.cend(); ++item)
        m_rig->store->UpdataItemCurChoice(ENUM_MenuIndex(item.key()),
                                          item.value() == SELECTED ? UNSELECTED : SELECTED);
    m_rig->set(MENU_Audio_Volume, "7");
    m_rig->engine->Initialize();
    for (auto item = values.cbegin(); item != values.cend(); ++item)
        QVERIFY2(m_rig->value(ENUM_MenuIndex(item.key())) == item.value(), QByteArray::number(item.key()));
    for (auto item = enables.cbegin(); item != enables.cend(); ++item)
        QVERIFY2(m_rig->enabled(ENUM_MenuIndex(item.key())) == item.value(), QByteArray::number(item.key()));
    for (auto item = choices.cbegin(); item != choices.cend(); ++item)
        QVERIFY2(m_rig->choice(ENUM_MenuIndex(item.key())) == item.value(), QByteArray::number(item.key()));
    QCOMPARE(m_rig->value(MENU_Audio_Volume), QString("7"));
}

void TestEngineStart::processDataStartEmpty()
{
    for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
        m_rig->process(ENUM_MenuIndex(index), 1);
    QCOMPARE(m_rig->value(PARA_GenlockState), QString("1"));
    m_rig->engine->Initialize();
    for (int index = PARA_CabinetWidth; index < PARA_END; ++index)
        QVERIFY2(m_rig->value(ENUM_MenuIndex(index)) == "0", QByteArray::number(index));
}

void TestEngineStart::hdcpThatIsNotKeptIsOff_data()
{
    QTest::addColumn<QString>("memory");
    QTest::addColumn<QString>("hdcp");
    QTest::newRow("not kept over a power cut") << "0"
                                               << "0";
    QTest::newRow("kept") << "1"
                          << "1";
}

void TestEngineStart::hdcpThatIsNotKeptIsOff()
{
    QFETCH(QString, memory);
    m_rig->set(MENU_HDCPMemory, memory);
    m_rig->set(MENU_HDCP, "1");
    m_rig->engine->Initialize();
    QTEST(m_rig->value(MENU_HDCP), "hdcp");
}

void TestEngineStart::fnFunctionIsMarked_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("item");
    for (int function = 0; function < 5; ++function)
        QTest::addRow("%d", function) << QString::number(function) << MENU_Fn_Synchronization + function;
}

void TestEngineStart::fnFunctionIsMarked()
{
    QFETCH(QString, function);
    QFETCH(int, item);
    m_rig->store->UpdataItemCurChoice(ENUM_MenuIndex(item), UNSELECTED);
    m_rig->set(MENU_FnMode, function);
    m_rig->engine->Initialize();
    QCOMPARE(m_rig->choice(ENUM_MenuIndex(item)), SELECTED);
}

void TestEngineStart::otherConfigurationIsAskedFor_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("quickAsks");
    QTest::newRow("advanced") << "0" << false;
    QTest::newRow("quick") << "1" << true;
}

void TestEngineStart::otherConfigurationIsAskedFor()
{
    QFETCH(QString, kind);
    QFETCH(bool, quickAsks);
    m_rig->set(MENU_ScreenConfigKind, kind);
    m_rig->engine->Initialize();
    QCOMPARE(bool(g_dialogConfig[MENU_QuickConfiguration].enabled), quickAsks);
    QCOMPARE(bool(g_dialogConfig[MENU_AdvancedCfg].enabled), !quickAsks);
}

void TestEngineStart::versionOfTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<QString>("version");
    QTest::newRow("there") << QByteArray("ver_rootfs=V3.2.1\n") << "V3.2.1";
    QTest::newRow("empty") << QByteArray("ver_rootfs=\n") << "V0";
    QTest::newRow("not there") << QByteArray("other=V3.2.1\n") << "V0";
}

void TestEngineStart::versionOfTheEnvironment()
{
    QFETCH(QByteArray, environment);
    QFile file(m_rig->statePath(hostlink::environmentFile));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(environment);
    file.close();
    m_rig->set(MENU_About_VersionValue, "V0");
    m_rig->engine->Initialize();
    QTEST(m_rig->value(MENU_About_VersionValue), "version");
    file.remove();
}

void TestEngineStart::syncStateOfTheHomeScreen_data()
{
    QTest::addColumn<QString>("sync");
    QTest::addColumn<int>("periodUs");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("picture");
    QTest::newRow("runs free") << "0" << 20000 << int(SYN_OFF) << "syn_off.png";
    QTest::newRow("agrees") << "1" << 16667 << int(SYN_OFF) << "syn_off.png";
    QTest::newRow("another rate") << "1" << 20000 << int(SYN_FAILED) << "syn_fail.png";
    QTest::newRow("no rate") << "1" << 0 << int(SYN_FAILED) << "syn_fail.png";
}

void TestEngineStart::syncStateOfTheHomeScreen()
{
    QFETCH(QString, sync);
    QFETCH(int, periodUs);
    m_rig->set(MENU_Sync_Status, sync);
    m_rig->set(MENU_Sync_Source, "1");
    m_rig->set(MENU_OutputFrameRate, "9");
    m_rig->input(1, 98, 3, 1920, 1080, periodUs);
    QSignalSpy states(m_rig->engine, SIGNAL(signal_sync_state(qint32)));
    m_rig->engine->InitializeMainWindow();
    QCOMPARE(states.count(), 0); // the home screen itself, at the first time
    QFETCH(QString, picture);
    QVERIFY(shows("SyncState", picture));
    QVERIFY(ParaProcess::init_20m_flg);
    m_rig->engine->InitializeMainWindow();
    QCOMPARE(states.count(), 1);
    QTEST(states.first().first().toInt(), "state");
}

void TestEngineStart::sendingCardLeavesPipsAlone()
{
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_PIP1_InputSource, "2");
    m_rig->home->SetLayerName(LAYER_PIP1, "as it was");
    m_rig->set(MENU_WorkMode, "2");
    m_rig->engine->InitializeMainWindow();
    QCOMPARE(m_rig->shown("labLayerSrc2_Name"), QString("as it was"));
    m_rig->set(MENU_WorkMode, "0");
    m_rig->engine->InitializeMainWindow();
    QCOMPARE(m_rig->shown("labLayerSrc2_Name"), QString("DVI"));
}

void TestEngineStart::lowestLayerIsFound()
{
    m_rig->set(MENU_PIP1_Status, "1");
    m_rig->set(MENU_PIP1_Priority, "0");
    m_rig->set(MENU_MainLayer_Priority, "1");
    m_rig->engine->InitializeMainWindow();
    QCOMPARE(m_rig->value(PARA_LowestLayer), QString("1"));
}

QTEST_MAIN(TestEngineStart)
#include "tst_enginestart.moc"
