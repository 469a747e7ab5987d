// What the resets send. One of them runs in a run of the panel, so each line has a run of its own.
#include "tests/system/framedrive.h"

#include <QRegularExpression>
#include <QTest>

using namespace VASK;

class TestFramesResets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void resetSends_data();
    void resetSends();
    void cleanup();
    void cleanupTestCase();

private:
    Panel m_panel;
    MenuWalk m_walk{m_panel};
    FrameDrive m_drive{m_panel, m_walk};
};

void TestFramesResets::initTestCase()
{
    QVERIFY(m_drive.start());
    QVERIFY(m_walk.speak("fpd_ZH"));
}

void TestFramesResets::resetSends_data()
{
    QTest::addColumn<ENUM_ConfigIndex>("root");
    QTest::addColumn<QList<ENUM_MenuIndex>>("path");
    QTest::addColumn<QString>("frame");
    using Path = QList<ENUM_MenuIndex>;
    QTest::newRow("address kept") << CONFIG_MainMenu << Path{MENU_FactoryReset, MENU_SaveIP}
                                  << "01000002 00 00";
    QTest::newRow("user data kept") << CONFIG_MainMenu << Path{MENU_FactoryReset, MENU_SaveUserData}
                                    << "01000002 00 02";
    QTest::newRow("everything") << CONFIG_MainMenu << Path{MENU_FactoryReset, MENU_ResetAll}
                                << "01000002 00 01";
    QTest::newRow("everything, by the maker")
        << CONFIG_ProductHiddenMenu << Path{MENU_ClearAllParameters} << "01000002 00 01";
}

void TestFramesResets::resetSends()
{
    QFETCH(ENUM_ConfigIndex, root);
    QFETCH(QList<ENUM_MenuIndex>, path);
    QFETCH(QString, frame);
    m_drive.setRoot(root);
    QCOMPARE(m_drive.drive({path, "no", {}}), QString());
    // What the device tells when it is back leads to nothing.
    QCOMPARE(m_drive.drive({path, "yes closed", {frame}}), QString());
    const QString firstLine = m_walk.text("ResetSucceed").section(QRegularExpression("\\\\r|\r"), 0, 0);
    QVERIFY(m_panel.waitFor(firstLine));

    // That message stays until the panel goes down.
    QVERIFY(m_drive.restartPanel());
}

void TestFramesResets::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QString("frames-%1").arg(QTest::currentDataTag()));
}

void TestFramesResets::cleanupTestCase()
{
    QCOMPARE(m_panel.damage(), QString());
}

QTEST_MAIN(TestFramesResets)
#include "tst_framesresets.moc"
