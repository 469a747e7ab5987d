// What the service sends of its own accord: over a WebSocket that is kept alive, and in datagrams.

#include "fpd_hostvalues.h"
#include "framework/communication/http/package.h"
#include "framework/communication/http/tunnelmanager.h"
#include "framework/communication/http/udptunnel.h"
#include "tests/emulator/emulatorrig.h"
#include "tests/testprogram.h"

#include <QNetworkDatagram>
#include <QUrlQuery>
#include <QWebSocket>
#include <QWebSocketServer>

using namespace VASK;
using Communicator_New::Tunnel;
using Communicator_New::UDPTunnel;

namespace
{
/// What arrived, as "address: member v, or the text that was no JSON".
struct Received {
    Tunnel::Received take()
    {
        return [this](const QHostAddress &address, unsigned short port, const PResultSet &tree) {
            ports.append(port);
            texts += address.toString() + ": " + QString::number(tree->findPath("v")->getInt()) +
                     QString::fromStdString(tree->findPath("error")->getString());
        };
    }
    QStringList texts;
    QList<int> ports;
};

quint16 freePort()
{
    QUdpSocket socket;
    socket.bind(QHostAddress::LocalHost);
    return socket.localPort();
}
} // namespace

class TestPushTunnels : public QObject
{
    Q_OBJECT

private slots:
    void aWebSocketIsKeptAlive()
    {
        QWebSocketServer server("service", QWebSocketServer::NonSecureMode);
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const std::shared_ptr<Tunnel> tunnel = TunnelFactory(TUNNEL_Websocket);
        QVERIFY(!tunnel->bind(1) && !tunnel->bind(QHostAddress::Any, 1) && !tunnel->isActived());
        Communicator_New::Package package;
        QVERIFY(!tunnel->send(package, {}));

        QStringList events;
        const auto connectAgain = [&] {
            return tunnel->connectTo(
                "127.0.0.1", server.serverPort(), [&](bool valid) { events += valid ? "open" : "invalid"; },
                [&](int error) { events += QString::number(error); });
        };
        Received received;
        QSet<QString> ids;
        for (int round = 0; round < 2; ++round) {
            QVERIFY(connectAgain());
            QTRY_COMPARE(events, QStringList{"open"});
            QVERIFY(tunnel->isActived());
            const std::unique_ptr<QWebSocket> client(server.nextPendingConnection());
            const QUrl url = client->requestUrl();
            QCOMPARE(url.path(), QString("/api/v1/websocketchannel"));
            ids += QUrlQuery(url).queryItemValue("id");
            if (round == 0) {
                client->sendTextMessage("lost");
                QVERIFY(tunnel->recieve(received.take()));
                events.clear();
                continue; // the caller connects again, and is told of the new connection alone
            }
            client->sendTextMessage(R"({"v":7})");
            client->sendBinaryMessage("x");
            client->sendTextMessage("no json");
            QTRY_COMPARE(received.texts, (QStringList{"127.0.0.1: 7", "127.0.0.1: 0no json"}));
            QCOMPARE(received.ports.first(), int(server.serverPort()));
            // The service answers a ping, and the socket tells of it.
            int pongs = 0;
            auto *socket = dynamic_cast<QObject &>(*tunnel).findChild<QWebSocket *>();
            connect(socket, &QWebSocket::pong, this, [&pongs] { ++pongs; });
            QTRY_VERIFY(pongs >= 2);
            client->close();
            QTRY_COMPARE(events.last(), QString("0"));
            const int last = pongs;
            QVERIFY(!QTest::qWaitFor([&] { return pongs > last; }, 1500));
            events.clear();
        }
        QCOMPARE(ids.size(), 2);
        for (const QString &id : ids)
            QVERIFY2(QRegularExpression("^[0-9a-f]{32}$").match(id).hasMatch(), qPrintable(id));
        server.close();
        connectAgain();
        QTRY_VERIFY(events.contains(QString::number(QAbstractSocket::ConnectionRefusedError)));
        QVERIFY(!events.contains("open"));
    }

    /// Both tunnels at the emulated device, whose channel goes and comes again.
    void theDeviceTells()
    {
        EmulatorRig device;
        QVERIFY(device.open());
        const auto push = [&](QByteArray json, const QByteArray &options = {}) {
            return device.lines("service push \"" + json.replace('"', "\\\"") + '"' + options).value(0);
        };
        const std::shared_ptr<Tunnel> tunnel = TunnelFactory(TUNNEL_Websocket);
        QStringList events;
        Received received;
        tunnel->recieve(received.take());
        const auto connectAgain = [&] {
            const auto ports = hostlink::readValues(device.statePath() + hostlink::portFile);
            const quint16 port = ports.value(QByteArray::number(hostlink::pushPort)).toUShort();
            tunnel->connectTo(
                "127.0.0.1", port, [&](bool valid) { events += valid ? "open" : "invalid"; },
                [&](int error) { events += QString::number(error); });
        };
        connectAgain();
        QTRY_COMPARE(events, QStringList{"open"});
        QCOMPARE(push(R"({"v":7})"), QByteArray("1 clients"));
        QTRY_COMPARE(received.texts, QStringList{"127.0.0.1: 7"});
        QCOMPARE(device.ask("service off"), QByteArray("ok"));
        QTRY_COMPARE(events.last(), QString("0"));
        QVERIFY(!tunnel->isActived());
        QCOMPARE(device.ask("service on"), QByteArray("ok"));
        QCOMPARE(push("1"), QByteArray("0 clients")); // nothing comes back by itself
        connectAgain();
        QTRY_COMPARE(events.last(), QString("open"));
        QCOMPARE(push(R"({"v":8})"), QByteArray("1 clients"));
        QTRY_COMPARE(received.texts.mid(1), QStringList{"127.0.0.1: 8"});

        const quint16 port = freePort();
        UDPTunnel udp;
        Received datagrams;
        QVERIFY(udp.bind(QHostAddress::LocalHost, port) && udp.recieve(datagrams.take()));
        udp.connectTo("127.0.0.1", port, {}, {});
        push(R"({"v":2})", " --udp " + QByteArray::number(port));
        QTRY_COMPARE(datagrams.texts, QStringList{"127.0.0.1: 2"});
    }

    void onlyThePeerIsHeard()
    {
        const quint16 port = freePort();
        UDPTunnel tunnel;
        QVERIFY(tunnel.isActived());
        QVERIFY(tunnel.bind(QHostAddress::LocalHost, port));
        Received received;
        QVERIFY(tunnel.recieve(received.take()));
        QUdpSocket peer;
        QUdpSocket stranger;
        QVERIFY(peer.bind(QHostAddress("127.0.0.1")) && stranger.bind(QHostAddress("127.0.0.2")));
        const auto say = [&](QUdpSocket &from, const QByteArray &text) {
            return from.writeDatagram(text, QHostAddress::LocalHost, port) == text.size();
        };
        QVERIFY(say(peer, R"({"v":1})")); // nobody is heard yet
        QTest::qWait(50);
        QVERIFY(!tunnel.connectTo("127.0.0.1", 1, {}, {}));
        QVERIFY(say(stranger, R"({"v":2})") && say(peer, R"({"v":3})") && say(stranger, "") &&
                say(peer, "no json"));
        QTRY_COMPARE(received.texts, (QStringList{"127.0.0.1: 3", "127.0.0.1: 0no json"}));
        QCOMPARE(received.ports.first(), int(peer.localPort()));
        tunnel.connectTo("::1", 1, {}, {}); // no IPv4 host: nobody
        QVERIFY(say(peer, R"({"v":4})"));
        QVERIFY(tunnel.sendTo("back", QHostAddress::LocalHost, peer.localPort()));
        QTRY_VERIFY(peer.hasPendingDatagrams());
        QCOMPARE(peer.receiveDatagram().data(), QByteArray("back"));
        QCOMPARE(received.texts.size(), 2);
        QVERIFY(!tunnel.sendTo(QByteArray(70000, 'x'), QHostAddress::LocalHost, port));
        tunnel.broadcast("{}", peer.localPort());
    }

    void anotherBindAfterAFailure()
    {
        UDPTunnel tunnel;
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^bind to port "));
        QVERIFY(!tunnel.bind(QHostAddress("192.0.2.1"), freePort()));
        const quint16 port = freePort();
        QVERIFY(tunnel.bind(QHostAddress::LocalHost, port));
        QVERIFY(tunnel.bind(freePort()));
        const auto udp = TunnelFactory(TUNNEL_Udp);
        udp->connectTo("127.0.0.1", port, {}, {});
        QVERIFY(udp->bind(port)); // and the other way round
    }
};

FPD_TEST(TestPushTunnels)
#include "tst_pushtunnels.moc"
