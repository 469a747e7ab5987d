// The bus: the header of a message, what each pair of labels does, and the road of packets in both directions
// against a far end that this test plays.

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "frames.h"
#include "framework/protocol/apipcservice.h"
#include "framework/protocol/apipcsocket.h"
#include "framework/protocol/ipcheaderinfo.h"
#include "framework/protocol/protocolinterface.h"
#include "platform/host/statefile.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QtTest>

using namespace VASK;
using frames::number;

namespace
{
QByteArray packet(int n)
{
    return QByteArray(20, char(n));
}

QByteArray message(int large, int small, const QByteArray &payload)
{
    return number(0x01070300, 4) + number(1, 4) + number(quint32(payload.size() + 28), 4) + number(0, 4) +
           number(0, 4) + number(quint32(small), 2) + number(quint32(large), 2) +
           number(quint32(payload.size()), 4) + payload;
}

class RecordingProtocol : public ProtocolInterface
{
public:
    RecordingProtocol() : ProtocolInterface(ENUM_PROTOCOINTERFER_3RD) {}
    void slot_ReceivePackHandle(QByteArray datagram) override { arrived += datagram; }
    int waiting() const override { return busy ? 1000000 : 0; }
    QList<QByteArray> arrived;
    bool busy = false;
};

/// The device's end of the bus.
class FarEnd
{
public:
    FarEnd()
    {
        const QString file = host::stateFile(hostlink::busSocket);
        QDir().mkpath(QFileInfo(file).path());
        listening = hostlink::listenSocket(file.toStdString(), SOCK_SEQPACKET);
    }
    ~FarEnd()
    {
        hangUp();
        close(listening);
    }
    bool waitForPanel()
    {
        return QTest::qWaitFor([this] { return (connected = accept(listening, nullptr, nullptr)) >= 0; },
                               5000);
    }
    void hangUp()
    {
        if (connected >= 0)
            close(connected);
        connected = -1;
    }
    void push(const QByteArray &bytes) { send(connected, bytes.constData(), size_t(bytes.size()), 0); }
    /// The messages that have come by the time that as many are there as wanted.
    QList<QByteArray> messages(int wanted)
    {
        const bool enough = QTest::qWaitFor([&] { return take() >= wanted; }, 5000);
        if (!enough)
            qWarning() << "only" << received.size() << "of" << wanted << "messages";
        return received;
    }

private:
    int take()
    {
        char buffer[4096];
        ssize_t length;
        while ((length = recv(connected, buffer, sizeof buffer, MSG_DONTWAIT)) > 0)
            received += QByteArray(buffer, int(length));
        return received.size();
    }

public:
    int listening = -1;
    int connected = -1;
    QList<QByteArray> received;
};

void refuseNextSends(int count)
{
    const QString file = host::stateFile(hostlink::busFaultFile);
    QDir().mkpath(QFileInfo(file).path());
    QFile fault(file);
    fault.open(QIODevice::WriteOnly);
    fault.write(QByteArray::number(count));
}
} // namespace

class TestApipc : public QObject
{
    Q_OBJECT
private slots:
    void header();
    void unpack();
    void wholeMessage_data();
    void wholeMessage();
    void labels_data();
    void labels();
    void road();

private:
    void lostPacket(APiPCService &service, FarEnd &device);
    void arrivals(RecordingProtocol &protocol, FarEnd &device);
};

void TestApipc::header()
{
    const QByteArray payload(21, '\x33');
    IpcHeaderInfo info(&payload, 21, 0x010A3900, 1, 0, 0, 1, 28);
    QByteArray assembled;
    QVERIFY(info.AssembleMessage(assembled));
    QCOMPARE(assembled,
             QByteArray::fromHex("00390A01 01000000 31000000 00000000 00000000 0100 1C00 15000000") +
                 payload);

    const QByteArray tooShort(19, '\x33');
    assembled = "untouched";
    QVERIFY(!IpcHeaderInfo(&tooShort).AssembleMessage(assembled));
    QVERIFY(!IpcHeaderInfo().AssembleMessage(assembled));
    QCOMPARE(assembled, QByteArray("untouched"));
}

void TestApipc::unpack()
{
    const QByteArray whole = message(28, 1, packet(7));
    QByteArray payload = "behind";
    QVERIFY(!IpcHeaderInfo().UnpackMessage(whole.constData(), 47, payload));
    QCOMPARE(payload, QByteArray("behind"));
    QVERIFY(IpcHeaderInfo().UnpackMessage(whole.constData(), 48, payload));
    QCOMPARE(payload, packet(7) + "behind");
}

void TestApipc::wholeMessage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("whole");
    const QByteArray good = message(28, 1, packet(1));
    QTest::newRow("good") << good << true;
    QTest::newRow("without payload") << message(7, 5, {}) << true;
    QTest::newRow("bytes behind it") << good + "x" << true;
    QTest::newRow("payload cut") << good.left(good.size() - 1) << false;
    QTest::newRow("header cut") << good.left(27) << false;
    QTest::newRow("length out of range") << good.left(24) + number(0xFFFFFFFF, 4) + packet(1) << false;
}

void TestApipc::wholeMessage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, whole);
    QCOMPARE(isWholeIpcMessage(bytes.constData(), uint(bytes.size())), whole);
}

void TestApipc::labels_data()
{
    QTest::addColumn<int>("large");
    QTest::addColumn<int>("small");
    QTest::addColumn<int>("packets");
    QTest::addColumn<QVariantList>("update");
    const QVariantList none;
    QTest::newRow("packet, answered") << 28 << 0 << 1 << none;
    QTest::newRow("packet, sent") << 28 << 1 << 1 << none;
    QTest::newRow("packet, other") << 28 << 2 << 0 << none;
    QTest::newRow("packet, minus one") << 28 << 0xFFFF << 0 << none;
    QTest::newRow("progress") << 7 << 4 << 0 << QVariantList{0, 0x6362};
    QTest::newRow("progress done") << 7 << 5 << 0 << QVariantList{1, 0};
    QTest::newRow("progress, other") << 7 << 6 << 0 << none;
    QTest::newRow("USB disk") << 29 << 4 << 0 << none;
    QTest::newRow("USB disk, network") << 29 << 5 << 0 << none;
    QTest::newRow("unknown") << 30 << 1 << 0 << none;
}

void TestApipc::labels()
{
    QFETCH(int, large);
    QFETCH(int, small);
    QFETCH(int, packets);
    QFETCH(QVariantList, update);
    ApipcSocket socket;
    QSignalSpy received(&socket, &ApipcSocket::receivedInfos);
    QSignalSpy updated(&socket, &ApipcSocket::signal_update);
    const QByteArray payload("bc, and so on up to twenty bytes");
    socket.dispatch(message(large, small, payload));
    QCOMPARE(received.count(), packets);
    if (packets > 0)
        QCOMPARE(received.first().first().toByteArray(), payload);
    QCOMPARE(updated.count(), update.isEmpty() ? 0 : 1);
    if (!update.isEmpty()) {
        QCOMPARE(updated.first().at(0).toInt(), update.at(0).toInt());
        QCOMPARE(updated.first().at(1).toInt(), update.at(1).toInt());
    }
}

/// The threads at the bus run until the process ends, so this is one test from the start on.
void TestApipc::road()
{
    RecordingProtocol protocol;
    ObjectPool::getInstance()->InsertData(ENUM_PROTOCOINTERFER_3RD, &protocol);
    APiPCService service(ENUM_COMMUNICATION_APIPC);
    service.ApipcInit();
    QCOMPARE(service.Initalize(), 1);
    QCOMPARE(service.SendMsg(nullptr), 0);

    // The bus is not there: the packet is lost, nothing waits for it.
    QByteArray early = packet(99);
    QCOMPARE(service.SendMsg(&early), 1);
    QTest::qWait(100);

    FarEnd device;
    QVERIFY(device.waitForPanel());
    lostPacket(service, device);
    arrivals(protocol, device);

    // The bus goes down and comes back.
    device.hangUp();
    QVERIFY(device.waitForPanel());
    device.received.clear();
    QByteArray late = packet(50);
    service.SendMsg(&late);
    QCOMPARE(device.messages(1).value(0).mid(28), packet(50));
    service.Terminate();
    service.SendMsg(&late); // nobody works on it
    QTest::qWait(50);
    QCOMPARE(device.messages(0).size(), 1);
    ObjectPool::getInstance()->RemoveByIndex(ENUM_PROTOCOINTERFER_3RD);
}

/// The first try and five more fail: exactly that packet is lost, the others keep their order.
void TestApipc::lostPacket(APiPCService &service, FarEnd &device)
{
    refuseNextSends(6);
    for (int n = 1; n <= 12; ++n) {
        QByteArray bytes = packet(n);
        QCOMPARE(service.SendMsg(&bytes), 1);
    }
    QByteArray tooShort(19, 'x'), empty;
    service.SendMsg(&tooShort);
    service.SendMsg(&empty);
    QByteArray last = packet(13);
    service.SendMsg(&last);
    const QList<QByteArray> messages = device.messages(12);
    QCOMPARE(messages.size(), 12);
    for (int i = 0; i < messages.size(); ++i)
        QCOMPARE(messages[i].mid(28), packet(i + 2));
    QCOMPARE(messages[0].left(28),
             QByteArray::fromHex("00390A01 01000000 30000000 00000000 00000000 0100 1C00 14000000"));

    // Five failures are made good by the last try.
    device.received.clear();
    refuseNextSends(5);
    service.SendMsg(&last);
    QCOMPARE(device.messages(1).value(0).mid(28), packet(13));
}

void TestApipc::arrivals(RecordingProtocol &protocol, FarEnd &device)
{
    device.push("short");
    device.push(message(28, 1, packet(1)).left(40)); // cut
    device.push(message(30, 1, packet(2)));          // about something else
    QList<QByteArray> expected;
    const auto pushMany = [&](int count) {
        for (int n = 0; n < count; ++n) {
            expected += packet(n) + number(quint32(expected.size()), 4);
            device.push(message(28, n % 2, expected.last()));
        }
    };
    pushMany(200);
    QVERIFY(QTest::qWaitFor([&] { return protocol.arrived.size() >= 200; }, 5000));
    QCOMPARE(protocol.arrived, expected);

    // Nobody keeps up: what comes now waits on its way, more of it than any one queue takes, and comes later.
    protocol.busy = true;
    pushMany(3000);
    QTest::qWait(100);
    QCOMPARE(protocol.arrived.size(), 200);
    protocol.busy = false;
    QVERIFY(QTest::qWaitFor([&] { return protocol.arrived.size() >= 3200; }, 5000));
    QCOMPARE(protocol.arrived, expected);
}

QTEST_MAIN(TestApipc)
#include "tst_apipc.moc"
