// Cables and host session: every state of the four values, when the panel may return home, and how long a
// silent host keeps the device.

#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "framework/protocol/link/hostsession.h"
#include "framework/protocol/link/linksupervision.h"
#include "platform/host/statefile.h"
#include "tests/testprogram.h"

#include <QSignalSpy>

using namespace VASK;

namespace
{
/// What the board answers from now on.
void setCables(int usb, int ethernet, int loop, int priority)
{
    const QString file = host::stateFile(hostlink::linkFile);
    hostlink::changeValue(file, hostlink::linkUsb, QByteArray::number(usb));
    hostlink::changeValue(file, hostlink::linkEthernet, QByteArray::number(ethernet));
    hostlink::changeValue(file, hostlink::linkLoop, QByteArray::number(loop));
    hostlink::changeValue(file, hostlink::linkPriority, QByteArray::number(priority));
}

struct Watched {
    Watched()
    {
        QObject::connect(&link, &LinkSupervision::connectState,
                         [this](ENUM_MainWindowConnectState state) { shown += state; });
    }
    void tick()
    {
        shown.clear();
        home.clear();
        lost.clear();
        link.slot_ComLinkState();
    }
    LinkSupervision link;
    QList<int> shown;
    QSignalSpy home{&link, &LinkSupervision::returnHome};
    QSignalSpy lost{&link, &LinkSupervision::linkLost};
};
} // namespace

class TestLinkSupervision : public QObject
{
    Q_OBJECT
private slots:
    void init() { setCables(0, 0, 0, 0); }

    /// All states of USB, network, loop and priority: what is shown (0 network, 1 USB loop, 2 nothing
    /// connected, 3 USB), whether the panel may go home, and whether it has no link.
    void everyState()
    {
        for (const QString row :
             {"0000 2 1 1", "0001 2 1 1", "0010 2 1 1", "0011 2 1 1", "0100 0 1 0", "0101 0 1 0",
              "0110 1 1 0", "0111 1 1 0", "1000 3 1 0", "1001 3 1 0", "1010 1 1 0", "1011 1 1 0",
              "1100 3 0 0", "1101 0 0 0", "1110 1 0 0", "1111 1 0 0"}) {
            const auto digit = [&row](int at) { return row[at].digitValue(); };
            const int usb = digit(0), ethernet = digit(1), loop = digit(2), priority = digit(3);
            // From the opposite of every value, so that the state is a change; any non-zero value counts.
            Watched w;
            setCables(1, 0, 0, 0);
            w.tick();
            setCables(!usb, !ethernet, !loop, !priority);
            w.tick();
            setCables(usb * 3, ethernet * 4, loop * 5, priority * 6);
            w.tick();
            QVERIFY2(w.shown == QList<int>{digit(5)}, qPrintable(row));
            QVERIFY2(w.home.count() == digit(7) && w.lost.count() == digit(9), qPrintable(row));
            // With both cables in, the flag stays what it was; here it was set while both were out.
            QVERIFY2(w.link.isUnlinked() == (digit(9) || (usb && ethernet)), qPrintable(row));
            setCables(0, 0, 0, 0);
        }
    }

    void nothingChanged()
    {
        Watched w;
        w.tick();
        QVERIFY(w.shown.isEmpty());
        QCOMPARE(w.home.count(), 0);
        setCables(1, 0, 0, 0);
        w.tick();
        w.tick();
        QVERIFY(w.shown.isEmpty());
        QCOMPARE(w.home.count(), 0);
    }

    void unlockRepeatsWithoutLink()
    {
        Watched w;
        w.link.slot_Unlock();
        QCOMPARE(w.home.count(), 0); // nothing has been lost yet
        setCables(0, 0, 1, 0);
        w.tick();
        w.home.clear();
        w.link.slot_Unlock();
        w.link.slot_Unlock();
        QCOMPARE(w.home.count(), 2);
        setCables(0, 1, 0, 0);
        w.tick();
        w.home.clear();
        w.link.slot_Unlock();
        QCOMPARE(w.home.count(), 0);
    }

    void secondCableLeavesTheTimerAlone()
    {
        Watched w;
        QVERIFY(!w.link.unlockTimer().isActive());
        setCables(1, 1, 0, 0);
        w.tick();
        QVERIFY(!w.link.unlockTimer().isActive());
        setCables(1, 0, 0, 0);
        w.tick();
        QVERIFY(w.link.unlockTimer().isActive());
        QCOMPARE(w.link.unlockTimer().interval(), 5000);
        // The preference alone, with one cable in, runs the row of that cable again.
        setCables(1, 0, 0, 1);
        w.tick();
        QCOMPARE(w.shown, QList<int>{3});
        QCOMPARE(w.home.count(), 1);
    }

    /// The production test counts a cable that was in before it looked.
    void everyPollTellsItsCables()
    {
        Watched w;
        QStringList told;
        connect(&w.link, &LinkSupervision::usbPolled,
                [&told](int state) { told << QString("usb %1").arg(state); });
        connect(&w.link, &LinkSupervision::ethernetPolled,
                [&told](int state) { told << QString("eth %1").arg(state); });
        setCables(7, 0, 0, 0);
        w.tick();
        w.tick();
        setCables(0, 2, 0, 0);
        w.tick();
        QCOMPARE(told, (QStringList{"usb 7", "eth 0", "usb 7", "eth 0", "usb 0", "eth 2"}));
    }

    /// The tick after a packet sees it; fifteen more are not enough, sixteen are. A packet in between starts
    /// anew.
    void silentHost()
    {
        HostSession session;
        QSignalSpy ended(&session, &HostSession::over);
        const auto tick = [&session](int times) {
            for (int i = 0; i < times; ++i)
                session.slot_Heartbeat();
        };
        tick(1);
        QVERIFY(!session.isActive()); // a tick starts nothing
        for (int round = 1; round <= 2; ++round) {
            session.heartbeat();
            QVERIFY(session.isActive());
            tick(10);
            session.heartbeat();
            tick(16);
            QVERIFY(session.isActive());
            QCOMPARE(ended.count(), round - 1);
            tick(1);
            QVERIFY(!session.isActive());
            QCOMPARE(ended.count(), round);
        }
    }

    void unplugged()
    {
        HostSession session;
        QSignalSpy ended(&session, &HostSession::over);
        session.DealNetorUsbLink(false); // without a session nothing is remembered
        session.heartbeat();
        session.slot_Heartbeat();
        QVERIFY(session.isActive());
        session.DealNetorUsbLink(true);
        session.slot_Heartbeat();
        QVERIFY(session.isActive());
        session.DealNetorUsbLink(false);
        QVERIFY(session.isActive());
        session.heartbeat(); // too late: the cable is out
        session.slot_Heartbeat();
        QVERIFY(!session.isActive());
        QCOMPARE(ended.count(), 1);
    }
};

FPD_TEST_GUILESS(TestLinkSupervision)
#include "tst_linksupervision.moc"
