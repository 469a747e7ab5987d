// The bus: the header of a message, what each pair of labels does, and the road of packets in both directions
// against a far end that this test plays.

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "framework/protocol/bus/apipcservice.h"
#include "framework/protocol/bus/apipcsocket.h"
#include "framework/protocol/bus/ipcheaderinfo.h"
#include "framework/protocol/link/protocolinterface.h"
#include "menu/objectindex.h"
#include "platform/host/statefile.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

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
        close(connected);
        close(listening);
    }
    bool waitForPanel()
    {
        return QTest::qWaitFor([this] { return (connected = accept(listening, nullptr, nullptr)) >= 0; },
                               5000);
    }
    void push(const QByteArray &bytes) { send(connected, bytes.constData(), size_t(bytes.size()), 0); }
    QByteArray message(int longestMs = 5000)
    {
        char buffer[4096];
        ssize_t length = 0;
        const auto received = [&] {
            return (length = recv(connected, buffer, sizeof buffer, MSG_DONTWAIT)) > 0;
        };
        return QTest::qWaitFor(received, longestMs) ? QByteArray(buffer, int(length)) : QByteArray();
    }

private:
    int listening = -1;
    int connected = -1;
};
} // namespace

class TestApipc : public QObject
{
    Q_OBJECT
private slots:
    void header()
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

    void unpack()
    {
        const QByteArray whole = message(28, 1, packet(7));
        QByteArray payload = "behind";
        QVERIFY(!IpcHeaderInfo().UnpackMessage(whole.constData(), 47, payload));
        QCOMPARE(payload, QByteArray("behind"));
        QVERIFY(IpcHeaderInfo().UnpackMessage(whole.constData(), 48, payload));
        QCOMPARE(payload, packet(7) + "behind");
    }

    void wholeMessage()
    {
        const QByteArray good = message(28, 1, packet(1));
        const QByteArray whole[] = {good, good + "x", message(7, 5, {})};
        for (const QByteArray &bytes : whole)
            QVERIFY2(isWholeIpcMessage(bytes.constData(), uint(bytes.size())), bytes.toHex());
        // Payload cut, header cut, length out of range.
        const QByteArray cut[] = {good.chopped(1), good.left(27),
                                  good.left(24) + number(0xFFFFFFFF, 4) + packet(1)};
        for (const QByteArray &bytes : cut)
            QVERIFY2(!isWholeIpcMessage(bytes.constData(), uint(bytes.size())), bytes.toHex());
    }

    void labels_data()
    {
        addColumns<int, int, int, QString>({"large", "small", "packets", "update"});
        addRow("packet, answered", 28, 0, 1, "");
        addRow("packet, sent", 28, 1, 1, "");
        addRow("packet, other", 28, 2, 0, "");
        addRow("packet, minus one", 28, 0xFFFF, 0, "");
        addRow("progress", 7, 4, 0, "0 25442");
        addRow("progress done", 7, 5, 0, "1 0");
        addRow("progress, other", 7, 6, 0, "");
        addRow("USB disk", 29, 4, 0, "");
        addRow("USB disk, network", 29, 5, 0, "");
        addRow("unknown", 30, 1, 0, "");
    }
    void labels()
    {
        const auto [large, small, packets] = fetched<int, int, int>({"large", "small", "packets"});
        ApipcSocket socket;
        QSignalSpy received(&socket, &ApipcSocket::receivedInfos);
        QSignalSpy updated(&socket, &ApipcSocket::signal_update);
        const QByteArray payload("bc, and so on up to twenty bytes");
        socket.dispatch(message(large, small, payload));
        QCOMPARE(received.count(), packets);
        if (packets > 0)
            QCOMPARE(received.first().first().toByteArray(), payload);
        QStringList updates;
        for (const auto &call : updated)
            updates << QString("%1 %2").arg(call.at(0).toInt()).arg(call.at(1).toInt());
        QTEST(updates.join(", "), "update");
    }

    /// The threads at the bus run until the process ends, so this is one test from the start on.
    void road()
    {
        RecordingProtocol protocol;
        ObjectPool::getInstance()->InsertData(ENUM_PROTOCOINTERFER_3RD, &protocol);
        APiPCService service(ENUM_COMMUNICATION_APIPC);
        service.ApipcInit();
        QCOMPARE(service.Initalize(), 1);
        QCOMPARE(service.SendMsg(nullptr), 0);

        FarEnd device;
        QVERIFY(device.waitForPanel());
        QByteArray tooShort(19, 'x'), empty, whole = packet(1);
        for (QByteArray *bytes : {&tooShort, &empty, &whole})
            QCOMPARE(service.SendMsg(bytes), 1);
        QCOMPARE(device.message(),
                 QByteArray::fromHex("00390A01 01000000 30000000 00000000 00000000 0100 1C00 14000000") +
                     whole);
        arrivals(protocol, device);
        const auto arrived = protocol.arrived;
        service.Terminate();
        // Nobody works on either way any more.
        device.push(message(28, 1, packet(9)));
        QCOMPARE(service.SendMsg(&whole), 1);
        QCOMPARE(device.message(100), QByteArray());
        QCOMPARE(protocol.arrived, arrived);
        ObjectPool::getInstance()->RemoveByIndex(ENUM_PROTOCOINTERFER_3RD);
    }

private:
    void arrivals(RecordingProtocol &protocol, FarEnd &device)
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

        // Nobody keeps up: what comes now waits on its way, more of it than any one queue takes, and comes
        // later.
        protocol.busy = true;
        pushMany(3000);
        QTest::qWait(100);
        QCOMPARE(protocol.arrived.size(), 200);
        protocol.busy = false;
        QVERIFY(QTest::qWaitFor([&] { return protocol.arrived.size() >= 3200; }, 5000));
        QCOMPARE(protocol.arrived, expected);
    }
};

FPD_TEST(TestApipc)
#include "tst_apipc.moc"
