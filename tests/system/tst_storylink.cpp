// The cables of the panel: the picture of the connection for every state of the links, the way home, and the
// session of a PC with its heartbeat.
#include "tests/system/menuwalk.h"

#include <QElapsedTimer>
#include <QTest>

using namespace VASK;

class TestStoryLink : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void pictureShowsTheLinks_data();
    void pictureShowsTheLinks();
    void newLinkTakesALockedSessionHome();
    void heartbeatLocksAndItsEndUnlocks();

private:
    /// The network's cable, and the panel has seen it: a new link ends a session.
    bool plugIn();
    bool setLinks(const QString &usb, const QString &ethernet, const QString &loop, const QString &priority);
    QImage connection() const { return m_panel.screen().copy(QRect(268, 208, 46, 30)); }
    bool locked() const { return m_panel.stored(MENU_ScreenLock) == "1"; }

    Panel m_panel;
    MenuWalk m_walk{m_panel};
    QMap<QString, QImage> m_pictures; ///< by what they stand for
};

void TestStoryLink::initTestCase()
{
    QVERIFY(m_panel.startReady());
    // What each picture looks like, from the plainest state that shows it.
    for (const QStringList &state :
         {QStringList{"network", "0", "1", "0"}, QStringList{"none", "0", "0", "0"},
          QStringList{"loop", "1", "1", "1"}, QStringList{"usb", "1", "0", "0"}}) {
        const QImage before = connection();
        QVERIFY(setLinks(state[1], state[2], state[3], "0"));
        QVERIFY(m_panel.waitUntil([&] { return connection() != before; }));
        m_pictures[state[0]] = connection();
    }
    for (const QImage &one : qAsConst(m_pictures))
        QCOMPARE(m_pictures.values().count(one), 1);
}

void TestStoryLink::init()
{
    m_panel.mark();
}

void TestStoryLink::cleanup()
{
    if (QTest::currentTestFailed())
        m_panel.keepEvidence(QString("link-%1").arg(QTest::currentTestFunction()));
}

void TestStoryLink::cleanupTestCase()
{
    QCOMPARE(m_panel.damage(), QString());
}

bool TestStoryLink::setLinks(const QString &usb, const QString &ethernet, const QString &loop,
                             const QString &priority)
{
    return m_panel.ask({"link", "usb", usb}).ok && m_panel.ask({"link", "eth", ethernet}).ok &&
           m_panel.ask({"link", "loop", loop}).ok && m_panel.ask({"link", "priority", priority}).ok;
}

bool TestStoryLink::plugIn()
{
    return setLinks("0", "1", "0", "0") &&
           m_panel.waitUntil([this] { return connection() == m_pictures["network"]; });
}

void TestStoryLink::pictureShowsTheLinks_data()
{
    QTest::addColumn<QString>("usb");
    QTest::addColumn<QString>("ethernet");
    QTest::addColumn<QString>("loop");
    QTest::addColumn<QString>("priority");
    QTest::addColumn<QString>("picture");
    const auto row = [](const char *usb, const char *eth, const char *loop, const char *priority,
                        const char *picture) {
        QTest::newRow(
            qPrintable(QString("usb %1, eth %2, loop %3, priority %4").arg(usb, eth, loop, priority)))
            << QString(usb) << QString(eth) << QString(loop) << QString(priority) << QString(picture);
    };
    row("0", "0", "1", "1", "none");
    row("0", "1", "0", "1", "network");
    row("0", "1", "1", "0", "loop");
    row("1", "0", "0", "1", "usb");
    row("1", "0", "1", "0", "loop");
    row("1", "1", "0", "0", "usb");
    row("1", "1", "0", "1", "network");
    row("1", "1", "1", "1", "loop");
}

void TestStoryLink::pictureShowsTheLinks()
{
    QFETCH(QString, usb);
    QFETCH(QString, ethernet);
    QFETCH(QString, loop);
    QFETCH(QString, priority);
    QFETCH(QString, picture);
    QVERIFY(setLinks(usb, ethernet, loop, priority));
    QVERIFY(m_panel.waitUntil([&] { return connection() == m_pictures[picture]; }));
}

void TestStoryLink::newLinkTakesALockedSessionHome()
{
    // Someone works in a menu; a PC takes over: home, and locked. Its cables go: unlocked again.
    QVERIFY(plugIn());
    QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio}));
    QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
    QVERIFY(m_panel.waitForLog("slot_ReturnToMain start!!!!!!"));
    QVERIFY(m_panel.waitUntil([this] { return locked(); }));
    // What the PC changes meanwhile goes past the menu into the flash: an address and the volume.
    QVERIFY(m_panel.ask({"flash", "write", "2006", "0A00010002004D00"}).ok);
    QVERIFY(m_panel.ask({"flash", "write", "209F", "57"}).ok);
    QVERIFY(m_panel.ask({"heartbeat", "off"}).ok);
    QVERIFY(setLinks("0", "0", "0", "0"));
    QVERIFY(m_panel.waitUntil([this] { return !locked(); }));
    QVERIFY(m_walk.isHome());
    m_walk.assume({});
    QVERIFY(m_panel.waitFor("10.1.2.77", QRect(160, 0, 160, 26)));
    QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio}));
    QVERIFY(m_panel.waitFor("87", QRect(160, 60, 160, 36)));
    QVERIFY(m_walk.home());
}

void TestStoryLink::heartbeatLocksAndItsEndUnlocks()
{
    QVERIFY(plugIn());
    QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
    QVERIFY(m_panel.waitUntil([this] { return locked(); }));
    QVERIFY(m_panel.ask({"heartbeat", "off"}).ok);
    QElapsedTimer silent;
    silent.start();
    m_panel.mark();
    QVERIFY(m_panel.waitForLog("SetLockState End!!!"));
    // The sixteenth second without a heartbeat ends the session, not the fifteenth.
    QVERIFY2(silent.elapsed() > 15000 && silent.elapsed() < 20000,
             qPrintable(QString("%1 ms").arg(silent.elapsed())));
    QVERIFY(m_panel.waitUntil([this] { return !locked(); }));
}

QTEST_MAIN(TestStoryLink)
#include "tst_storylink.moc"
