// Requests on their way over a tunnel: what goes on the wire, in which order, and what comes of it when the
// service is slow, wrong or not there.

#include "framework/communication/http/httptunnel.h"
#include "framework/communication/http/taskpool.h"
#include "framework/communication/http/tunnelmanager.h"
#include "tests/rudeserver.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/communication/restserver.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

using namespace VASK;
using Communicator_New::Vask4th_New::HttpPackage;
using Texts = QMap<QString, QString>;

namespace
{
HttpPackage package(const char *method, const QString &url, const QByteArray &body = {})
{
    HttpPackage made;
    made.setMethod(method);
    made.setUrl(url);
    if (!body.isEmpty())
        made.setRequestData(body);
    return made;
}

/// How often a thread of this process has gone to sleep so far.
QByteArray wakeUpsOf(const QByteArray &thread)
{
    for (const QString &task : QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status("/proc/self/task/" + task + "/status");
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> lines = status.readAll().split('\n');
        if (lines.value(0) == "Name:\t" + thread)
            for (const QByteArray &line : lines)
                if (line.startsWith("voluntary_ctxt_switches:"))
                    return line;
    }
    return {};
}

/// What answers came to, as text: "ok" or "failed" and the error. One that comes after the test goes nowhere.
struct Answers : QObject {
    Communicator_New::Ticket::Callback take()
    {
        return [here = QPointer<Answers>(this)](bool ok, const PResultSet &tree) {
            if (!here)
                return;
            here->texts +=
                (ok ? "ok " : "failed ") + QString::fromStdString(tree->findPath("error")->getString());
            here->trees.append(tree);
        };
    }
    bool wait(int count)
    {
        constexpr int longMs = 60000; // ten megabytes under a sanitizer
        return QTest::qWaitFor([&] { return texts.size() >= count; }, longMs);
    }
    QStringList texts;
    QList<PResultSet> trees;
};
} // namespace

class TestExchange : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_server = std::make_unique<RestServer>(); }
    void init()
    {
        m_server->answer(RestServer::Answer());
        m_server->take();
    }
    void cleanupTestCase() { m_server.reset(); }

    void urls_data()
    {
        const DataRows<QString, Texts, Texts, QString> row{"url", "parameters", "holders", "composed"};
        using Map = Texts;
        row("id", "/c/{id}/g/{id}", Map{}, Map{{"id", "5"}}, "/c/5/g/5");
        row("no value", "/c/{id}", Map{}, Map{{"ID", "5"}}, "/c/{id}");
        row("query", "/a", Map{{"y", "3"}, {"x", "1 2"}}, Map{}, "/a?x=1%202&y=3");
        row("coded", "/a", Map{{"k&", "ü="}}, Map{}, "/a?k%26=%C3%BC%3D");
    }
    void urls()
    {
        const auto [url, parameters, holders] =
            fetched<QString, Texts, Texts>({"url", "parameters", "holders"});
        QTEST(HTTPTunnel::composeUrl(url, parameters, holders), "composed");
    }

    void theWire_data()
    {
        const DataRows<QString, QByteArray, QString> row{"method", "body", "line"};
        row("get", "get", "ignored", "GET /p/7");
        row("put", "put", "{\"v\":1}", "PUT /p/7 {\"v\":1}");
        row("post", "post", "[]", "POST /p/7 []");
        row("del", "del", {}, "DELETE /p/7");
    }
    void theWire()
    {
        m_server->answer(R"({"code":5,"data":[1]})");
        const auto [method, body] = fetched<QString, QByteArray>({"method", "body"});
        HttpPackage sent = package(method.toLatin1(), "/p/{id}", body);
        sent.addPlaceHolders("id", "7");
        sent.addRequestHeader("X-Token", "{token}");
        sent.addRequestHeader("X-Kind", "k");
        Answers answers;
        QVERIFY(tunnelTo(m_server->address()).send(sent, answers.take()));
        QVERIFY(answers.wait(1));
        QTEST(m_server->take().join('|'), "line");
        QCOMPARE(m_server->header("Content-Type"), QString("application/json;charset=utf-8"));
        QCOMPARE(m_server->header("User-Agent"), QString("Vask Orbexa"));
        QCOMPARE(m_server->header("X-Kind"), QString("k"));
        QCOMPARE(m_server->header("X-Token"), QString());
        // The code of the envelope is the caller's business.
        QCOMPARE(answers.texts, QStringList{"ok "});
        QCOMPARE(answers.trees.first()->findPath("code")->getInt(), 5);
    }

    void requestsLeaveInOrder()
    {
        HTTPTunnel &tunnel = tunnelTo(m_server->address());
        Answers answers;
        QStringList lines;
        m_server->answer({200, "[]", 20});
        for (int i = 0; i < 10; ++i) {
            HttpPackage sent = package(i % 2 ? "put" : "get", QString("/%1").arg(i), "x");
            tunnel.send(sent, answers.take());
            lines += QString(i % 2 ? "PUT /%1 x" : "GET /%1").arg(i);
        }
        QVERIFY(answers.wait(10));
        QCOMPARE(m_server->take(), lines);
    }

    void whatGoesWrong_data()
    {
        const DataRows<QString, QString> row{"service", "answer"};
        row("absent", "absent", "failed Connection refused");
        row("no port", "no port", "failed Connection refused");
        row("silent", "silent", "failed Operation canceled");
        row("cut", "cut", "failed Connection closed");
        row("half an answer", "half", "failed Connection closed");
        row("no HTTP", "garbage", "failed Connection closed");
        row("status", "500", "failed Error transferring");
        row("no JSON", "no JSON", "ok <html>");
        row("large", "large", "ok ");
        row("too large", "too large", "failed Operation canceled");
    }
    void whatGoesWrong()
    {
        QFETCH(QString, service);
        RudeServer silent;
        RudeServer cut("H");
        RudeServer half("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{\"a\":");
        RudeServer garbage("\x01\x02\x03 no service\r\n\r\n");
        m_server->answer(service == "no JSON" ? "<html>" : R"({"code":9})", service == "500" ? 500 : 200);
        if (service.contains("large"))
            m_server->answer('"' + std::string((service == "large" ? 10 : 40) * 1024 * 1024, 'x') + '"');
        const QMap<QString, QString> addresses{
            {"absent", "http://127.0.0.1:1"}, {"no port", "http://127.0.0.1:0"},
            {"silent", silent.address()},     {"cut", cut.address()},
            {"half", half.address()},         {"garbage", garbage.address()}};
        HttpPackage sent = package("put", "/p", "1");
        Answers answers;
        QElapsedTimer clock;
        clock.start();
        tunnelTo(addresses.value(service, m_server->address())).send(sent, answers.take());
        QVERIFY2(clock.elapsed() < 500, "sending waits for nothing");
        QVERIFY(answers.wait(1));
        QFETCH(QString, answer);
        QVERIFY2(answers.texts.first().startsWith(answer), qPrintable(answers.texts.first().left(200)));
        if (service == "silent") // three seconds, without an option
            QVERIFY2(clock.elapsed() > 2700 && clock.elapsed() < 6000,
                     qPrintable(QString::number(clock.elapsed())));
    }

    void options()
    {
        m_server->answer({200, R"({"v":1})", 1500});
        QTemporaryDir folder;
        const QString file = folder.filePath("answer");
        HTTPTunnel &tunnel = tunnelTo(m_server->address());
        Answers answers;
        HttpPackage patient = package("get", "/slow");
        HttpPackage hasty = patient;
        patient.options.insert("saveTo", file.toStdString());
        patient.options.insert("timeout", 30);
        hasty.options.insert("timeout", 1);
        HttpPackage wrong = patient;
        wrong.options = {};
        wrong.options.insert("timeout", "3");
        for (HttpPackage *sent : {&hasty, &patient, &wrong})
            tunnel.send(*sent, answers.take());
        QVERIFY(answers.wait(3));
        QCOMPARE(answers.texts, (QStringList{"failed Operation canceled", "ok ", "failed std::bad_cast"}));
        QCOMPARE(answers.trees.at(1)->findPath("file")->getString(), file.toStdString());
        QFile saved(file);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray(R"({"v":1})"));
        // A failure leaves a file as it was, and one that cannot be written is a failure.
        m_server->answer("gone", 404);
        tunnel.send(patient, answers.take());
        QVERIFY(answers.wait(4));
        QVERIFY(saved.seek(0) && saved.readAll() == R"({"v":1})");
        m_server->answer("1");
        patient.options = {};
        patient.options.insert("saveTo", folder.filePath("no/such").toStdString());
        tunnel.send(patient, answers.take());
        QVERIFY(answers.wait(5));
        QVERIFY(answers.texts.last().startsWith("failed cannot write"));
    }

    void forms()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("picture"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("bytes") == 5);
        file.close();
        using List = std::vector<std::string>;
        const auto form = [&](const QString &name, const List &ids) {
            Parameters parts;
            parts.body.insert("file", List{name.toStdString()});
            parts.body.insert("text", "t");
            if (!ids.empty())
                parts.body.insert("idList", ids);
            HttpPackage made = package("post", "/form");
            made.setMultiPartParameters(parts);
            return made;
        };
        Answers answers;
        HttpPackage sent[] = {form(file.fileName(), {"3", "4"}), form("/no/such", {"1"}),
                              form(file.fileName(), {}), form("", {"1"})};
        for (HttpPackage &each : sent)
            tunnelTo(m_server->address()).send(each, answers.take());
        QVERIFY(answers.wait(4));
        QVERIFY(answers.texts.at(1).startsWith("failed cannot read /no/such"));
        QCOMPARE(answers.texts.at(2), QString("failed No item found by the input KEY."));
        QCOMPARE(answers.texts.at(3), QString("ok ")); // no file, no form
        QStringList parts = m_server->take().first().split("\r\n");
        for (const char *line : {"Content-Disposition: form-data; name=\"text\"", "t", "3", "4", "bytes"})
            QVERIFY2(parts.contains(line), line);
        QCOMPARE(
            parts.count("Content-Disposition: form-data; name=\"file\"; filename=\"" + file.fileName() + '"'),
            2);
    }

    void downloads()
    {
        m_server->answer('"' + std::string(100000, 'x') + '"');
        HTTPTunnel &tunnel = tunnelTo(m_server->address());
        HttpPackage wrong = package("GET", "/file");
        QVERIFY(!tunnel.downloadFile(wrong, {}, {}));
        Answers answers;
        long last = 0;
        HttpPackage sent = package("get", "/file/{id}");
        sent.addPlaceHolders("id", "1");
        const std::weak_ptr<Communicator_New::Ticket> ticket =
            tunnel.downloadFile(sent, answers.take(), [&](long received, long) { last = received; });
        QVERIFY(answers.wait(1));
        QCOMPARE(last, 100002L);
        QCOMPARE(answers.trees.first()->getList().front()->getString().size(), size_t(100000));
        QCOMPARE(m_server->take(), QStringList{"GET /file/1"});
        QTRY_VERIFY(ticket.expired()); // and the reply with it
        RudeServer silent;
        sent.options.insert("timeout", 1);
        tunnelTo(silent.address()).downloadFile(sent, answers.take(), {});
        QVERIFY(answers.wait(2));
        QVERIFY(answers.texts.last().startsWith("failed"));
    }

    void nobodyWaits()
    {
        HTTPTunnel &tunnel = tunnelTo(m_server->address());
        HttpPackage odd = package("patch", "/odd");
        HttpPackage sent = package("get", "/p");
        Answers answers;
        const auto odd_ = tunnel.send(odd, answers.take()); // told nobody
        const auto given = tunnel.send(sent, answers.take());
        given->active = false;
        tunnel.send(sent, {});
        tunnel.send(sent, answers.take());
        QVERIFY(answers.wait(1));
        QCOMPARE(answers.texts.size(), 1);
        QCOMPARE(m_server->take().size(), 3);
        Communicator_New::Package plain;
        QVERIFY_EXCEPTION_THROWN(tunnel.send(plain, {}), std::bad_cast);
    }

    void theWorkerSleepsBetweenRequests()
    {
        Answers answers;
        HttpPackage sent = package("get", "/p");
        tunnelTo(m_server->address()).send(sent, answers.take());
        QVERIFY(answers.wait(1));
        QTest::qWait(200); // it has let go of the last exchange
        const QByteArray wakeUps = wakeUpsOf("http");
        QVERIFY(!wakeUps.isEmpty());
        QTest::qWait(1000);
        QCOMPARE(wakeUpsOf("http"), wakeUps);
    }

    void tunnelsByNameAndKind()
    {
        auto *manager = TunnelManager::instance();
        const auto http = manager->create("a", TUNNEL_Http);
        QCOMPARE(manager->create("a", TUNNEL_Http), http);
        QVERIFY(manager->create("a", 1, TUNNEL_Http) != http);
        QVERIFY(manager->find("a", 1, TUNNEL_Http) && !manager->find("a1", TUNNEL_Http));
        QVERIFY(!manager->create("a", TUNNEL_Unsupported) && !manager->create("a", Type(4)));
        QVERIFY(!manager->find("b", TUNNEL_Http) && !manager->find("a", TUNNEL_Udp));
        QVERIFY(http->isActived() && !http->bind(1) && !http->bind(QHostAddress::Any, 1));
        manager->removeOne("a", TUNNEL_Http);
        manager->removeOne("a", 1, TUNNEL_Http);
        QVERIFY(!manager->find("a", TUNNEL_Http) && !manager->find("a", 1, TUNNEL_Http));
    }

private:
    std::unique_ptr<RestServer> m_server;

    static HTTPTunnel &tunnelTo(const QString &address)
    {
        auto &tunnel = dynamic_cast<HTTPTunnel &>(*TunnelManager::instance()->create("test", TUNNEL_Http));
        tunnel.setAddress(address);
        return tunnel;
    }
};

FPD_TEST_GUILESS(TestExchange)
#include "tst_exchange.moc"
