// The cables of the panel: the picture of the connection for every state of the links, the way home, and the
// session of a PC with its heartbeat.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;

class TestStoryLink : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        SystemTest::begin();
        // What each picture looks like, from the plainest state that shows it.
        const QPair<const char *, const char *> states[] = {
            {"network", "0100"}, {"none", "0000"}, {"loop", "1110"}, {"usb", "1000"}};
        for (const auto &state : states) {
            const QImage before = connection();
            QVERIFY(setLinks(state.second));
            QVERIFY(m_panel.waitUntil([&] { return connection() != before; }));
            m_pictures[state.first] = connection();
        }
        for (const QImage &one : qAsConst(m_pictures))
            QCOMPARE(m_pictures.values().count(one), 1);
    }

private slots:
    void init() { m_panel.mark(); }

    void newLinkTakesALockedSessionHome()
    {
        // Someone works in a menu; a PC takes over: home, and locked. Its cables go: unlocked again.
        QVERIFY(plugIn());
        QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio}));
        QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
        QVERIFY(m_panel.waitForLog(loglines::goesHome));
        QVERIFY(m_panel.waitUntil([this] { return locked(); }));
        // What the PC changes meanwhile goes past the menu into the flash: an address and the volume.
        QVERIFY(m_panel.ask({"flash", "write", "2006", "0A00010002004D00"}).ok);
        QVERIFY(m_panel.ask({"flash", "write", "209F", "57"}).ok);
        QVERIFY(m_panel.ask({"heartbeat", "off"}).ok);
        QVERIFY(setLinks("0000"));
        QVERIFY(m_panel.waitUntil([this] { return !locked(); }));
        QVERIFY(m_walk.isHome());
        m_walk.assume({});
        QVERIFY(m_panel.waitFor("10.1.2.77", QRect(160, 0, 160, 26)));
        QVERIFY(m_walk.go({MENU_AdvancedSetting, MENU_Audio}));
        QVERIFY(m_panel.waitFor("87", QRect(160, 60, 160, 36)));
        QVERIFY(m_walk.home());
    }

    void heartbeatLocksAndItsEndUnlocks()
    {
        QVERIFY(plugIn());
        QVERIFY(m_panel.ask({"heartbeat", "on"}).ok);
        QVERIFY(m_panel.waitUntil([this] { return locked(); }));
        QVERIFY(m_panel.ask({"heartbeat", "off"}).ok);
        QElapsedTimer silent;
        silent.start();
        m_panel.mark();
        QVERIFY(m_panel.waitForLog(loglines::unlocked));
        // The sixteenth second without a heartbeat ends the session, not the fifteenth.
        QVERIFY2(silent.elapsed() > 15000 && silent.elapsed() < 20000,
                 qPrintable(QString("%1 ms").arg(silent.elapsed())));
        QVERIFY(m_panel.waitUntil([this] { return !locked(); }));
    }

private:
    /// The network's cable, and the panel has seen it: a new link ends a session.
    bool plugIn()
    {
        return setLinks("0100") &&
               m_panel.waitUntil([this] { return connection() == m_pictures["network"]; });
    }

    bool setLinks(const QString &states)
    {
        static const char *const links[] = {"usb", "eth", "loop", "priority"};
        QList<QStringList> requests;
        for (int link = 0; link < states.size(); ++link)
            requests << QStringList{"link", links[link], states.mid(link, 1)};
        return m_panel.askAll(requests);
    }

    QImage connection() const { return m_panel.screen().copy(QRect(268, 208, 46, 30)); }

    bool locked() const { return m_panel.stored(MENU_ScreenLock) == "1"; }

    QMap<QString, QImage> m_pictures; ///< by what they stand for
};

FPD_TEST(TestStoryLink)
#include "tst_storylink.moc"
