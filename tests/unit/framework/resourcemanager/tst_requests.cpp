// Requests by verb and key: the body that goes out, what is called when the answer is in, requests that
// finish together or one after the other, and what is left of them.

#include "framework/communication/http/action.h"
#include "framework/communication/http/actionbase.h"
#include "framework/communication/http/httpadapter.h"
#include "framework/communication/http/httpservice.h"
#include "framework/communication/http/requestbody.h"
#include "framework/communication/http/tunnelmanager.h"
#include "framework/resourcemanager/ticket.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/communication/restserver.h"

#include <QTemporaryDir>
#include <malloc.h>

using namespace VASK;
using Action::ParameterList;
using ResourceManager::PTicket;

namespace
{
const std::string lcd = "test";

/// Without sanitizers, whose memory is another.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int failures = 0;
#else
const int failures =
    qEnvironmentVariableIntValue("FPD_FAILURES") ? qEnvironmentVariableIntValue("FPD_FAILURES") : 2000;
#endif

Parameters body(std::initializer_list<std::pair<const char *, int>> values)
{
    Parameters parameters;
    for (const auto &[key, value] : values)
        parameters.body.insert(key, value);
    return parameters;
}

PTicket request(const std::string &key, unsigned long long id)
{
    return Action::get(lcd, key, id);
}

/// Turns what it is invoked with into text.
class NotingAction : public Action::CommunicateAciton
{
public:
    static QStringList notes;
    Action::PAction invoke(const Parameters &parameters) override
    {
        notes += QString::fromStdString(Action::bodyText(parameters));
        return shared_from_this();
    }
    Parameters answered(bool, const PResultSet &, const Parameters &parameters) override
    {
        return parameters;
    }
};
QStringList NotingAction::notes;
} // namespace

class TestRequests;
using Send = std::function<PTicket(TestRequests &)>;
Q_DECLARE_METATYPE(Send)

class TestRequests : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_server = std::make_unique<RestServer>();
        connectTo(m_server->port());
    }
    void init()
    {
        m_server->answer(RestServer::Answer());
        m_server->failPath.clear();
        m_server->take();
        m_notes.clear();
        NotingAction::notes.clear();
    }
    void cleanupTestCase() { m_server.reset(); }

    void bodies()
    {
        Parameters all = body({{"a.b", 1}, {"a.c", -2}});
        all.body.insert("u", 4294967295U);
        all.body.insert("c", static_cast<unsigned char>(200));
        all.body.insert("d", 2.3);
        all.body.insert("t", true);
        all.body.insert("s", "\xc3\xbc");
        all.body.insert("l", std::vector<std::string>{"x", "y"});
        all.body.insert("n", std::vector<unsigned char>{1, 255});
        all.body.insert("p..q", std::vector<Parameters>{body({{"x.y", 1}}), body({})});
        all.body.insert("odd", QSize());
        const char *expected =
            R"({"a":{"b":1,"c":-2},"c":200,"d":2.3,"l":["x","y"],"n":[1,255],"p":{"q":[{"x":{"y":1}},null]},)"
            R"("s":"ü","t":true,"u":4294967295})";
        QCOMPARE(Action::bodyText(all), std::string(expected));
        QCOMPARE(Action::bodyText(Parameters()), std::string("null"));
        const char *list = R"([{"x":1},{"x":2}])";
        QCOMPARE(Action::bodyText(ParameterList{body({{"x", 1}}), body({{"x", 2}})}), std::string(list));
        QCOMPARE(Action::bodyText(ParameterList()), std::string("[]"));
    }

    void verbs_data()
    {
        const DataRows<QString, QString, Send> row{"line", "note", "send"};
        static const Parameters one = body({{"v", 1}});
        static const ParameterList list{one, one};
        static Parameters texts = one;
        texts.body.insert("q", "a b");
        static Parameters placed = one;
        placed.placeholders.insert("type", "3");
        using T = TestRequests;
        row("get tree", "GET cabinets/cfgfile", "Device_cfgfile tree 0",
            [](T &t) { return Action::get(lcd, "Device_cfgfile", one, t.tree(), t.failure()); });
        row("get id", "GET screens/9/solid?q=a%20b", "ScreenSolid id 9",
            [](T &t) { return Action::get(lcd, "ScreenSolid", 9, texts, t.withId(), t.failure()); });
        row("put", R"(PUT hw/mapping {"v":1})", "Device_Mapping",
            [](T &t) { return Action::put(lcd, "Device_Mapping", one, t.plain(), t.failure()); });
        row("put list", R"(PUT hw/mapping [{"v":1},{"v":1}])", "Device_Mapping of 2",
            [](T &t) { return Action::put(lcd, "Device_Mapping", list, t.plainList(), t.failure()); });
        row("put id", R"(PUT screens/255/solid {"v":1})", "ScreenSolid id 255",
            [](T &t) { return Action::put(lcd, "ScreenSolid", 255, one, t.withId(), t.failure()); });
        row("put placeholders", R"(PUT cabinets/rvfirmware/2/3 {"v":1})", "Device_RvCardFirmware id 2",
            [](T &t) {
                return Action::put(lcd, "Device_RvCardFirmware", 2, placed, t.withId(), t.failure());
            });
        row("post list", R"(POST screens/autoconfiguration/senior [{"v":1},{"v":1}])",
            "ScreenAdvancedTouch of 2",
            [](T &t) { return Action::post(lcd, "ScreenAdvancedTouch", list, t.plainList(), t.failure()); });
        row("empty body", "POST hw/mapping null", "Device_Mapping",
            [](T &t) { return Action::post(lcd, "Device_Mapping", Parameters(), t.plain(), t.failure()); });
        row("no such key", R"(PUT / {"v":1})", "none",
            [](T &t) { return Action::put(lcd, "none", one, t.plain(), t.failure()); });
        row("another placeholder", R"(PUT outputs/%7Boutputid%7D {"v":1})", "Device_OutputInfo id 1",
            [](T &t) { return Action::put(lcd, "Device_OutputInfo", 1, one, t.withId(), t.failure()); });
        row("query", R"(PUT hw/mapping?a=1 {"v":1})", "Device_Mapping", [](T &t) {
            return Action::process(lcd, "Device_Mapping", "put", one, t.plain(), t.failure(), {{"a", "1"}},
                                   {});
        });
        row("raw, committed", "PUT hw/mapping ra", "done", [](T &t) {
            return Action::process(lcd, "Device_Mapping", "put", "raw", 2, Parameters())
                ->commit([&t](bool ok, PResultSet) { t.m_notes += ok ? "done" : "failed"; });
        });
        row("del, committed", "DELETE screens/1/solid", "done", [](T &t) {
            return Action::process(lcd, "ScreenSolid", "del", {}, {{"id", "1"}})
                ->commit([&t](bool ok, PResultSet) { t.m_notes += ok ? "done" : "failed"; });
        });
    }
    void verbs()
    {
        QFETCH(Send, send);
        QVERIFY(send(*this));
        QTRY_COMPARE(m_notes.size(), 1);
        QTEST(m_notes.first(), "note");
        QTEST(m_server->take().join('|').remove("/api/v1/device/"), "line");
        m_server->answer("{}", 500);
        send(*this);
        QTRY_COMPARE(m_notes.size(), 2);
        QCOMPARE(m_notes.last(), QString("failed"));
    }

    void formsWithoutFunctionsWait()
    {
        for (const PTicket &ticket : {Action::get(lcd, "Device_Mapping"), Action::get(lcd, "ScreenSolid", 1),
                                      Action::get(lcd, "ScreenSolid", 1, {{"id", "2"}}),
                                      Action::put(lcd, "ScreenSolid", Parameters())})
            QCOMPARE(ticket->state(), int(ResourceManager::Ticket::Created));
        Parameters wrong;
        wrong.placeholders.insert("id", 1);
        QVERIFY_EXCEPTION_THROWN(Action::put(lcd, "ScreenSolid", wrong), std::bad_cast);
        bool sent = false;
        Action::get(lcd, "ScreenGamma", 1)->commit([&](bool, PResultSet) { sent = true; });
        QTRY_VERIFY(sent);
        QCOMPARE(m_server->take(), QStringList{"GET /api/v1/device/screens/1/gamma"});
    }

    void theAnswerIsNamedAfterItsResource()
    {
        m_server->answer(R"({"data":{"v":4}})");
        PResultSet answer;
        const PTicket ticket =
            request("ScreenGamma", 7)->commit([&](bool, PResultSet tree) { answer = tree; });
        ticket->commit([&](bool, PResultSet) { m_notes += "twice"; }); // under way: nothing is sent again
        QTRY_VERIFY(answer);
        QCOMPARE(answer->findPath("ScreenGamma", "data.v")->getInt(), 4);
        QVERIFY(answer->matchValue("id", "7"));
        ticket->commit([&](bool, PResultSet) { m_notes += "again"; }); // delivered
        QCOMPARE(ticket->state(), int(ResourceManager::Ticket::Succeeded));
        QCOMPARE(m_server->take().size(), 1);
        QCOMPARE(m_notes, QStringList());
    }

    void aGroupFinishesOnce_data()
    {
        const DataRows<bool> row{"oneFails"};
        row("all good", false);
        row("one fails", true);
    }
    void aGroupFinishesOnce()
    {
        QFETCH(bool, oneFails);
        QVector<bool> ends;
        PResultSet sum;
        {
            const PTicket first = request("ScreenGamma", 1);
            const PTicket joined = request("ScreenSolid", 3);
            joined->parellel(request(oneFails ? "Device_Mapping" : "ScreenXbit", 4));
            m_server->failPath = oneFails ? "/api/v1/device/hw/mapping" : "";
            first->parellel(joined)->parellel(request("ScreenGamma", 2));
            first->commit([&](bool ok, PResultSet tree) {
                ends += ok;
                sum = tree;
            });
        }
        QTRY_COMPARE(ends.size(), 1);
        QCOMPARE(ends.first(), !oneFails);
        QCOMPARE(m_server->take().size(), 4);
        QCOMPARE(sum->key(), std::string("Root"));
        QCOMPARE(sum->getList().size(), size_t(4));
        QCOMPARE(sum->getList("ScreenGamma").size(), size_t(2));
        QCOMPARE(sum->findPath("ScreenGamma", 2, "id")->getString(), std::string("2"));
        QTest::qWait(20);
        QCOMPARE(ends.size(), 1);
    }

    void oneAfterTheOther_data()
    {
        const DataRows<QString, QStringList> row{"next", "lines"};
        const QString first = "GET /api/v1/device/screens/1/gamma";
        row("nothing", "nothing", QStringList{first});
        row("another", "another", QStringList{first, "GET /api/v1/device/screens/2/solid"});
        row("a group", "group",
            QStringList{first, "GET /api/v1/device/screens/2/solid", "GET /api/v1/device/screens/2/xbit"});
    }
    void oneAfterTheOther()
    {
        QFETCH(QString, next);
        QFETCH(QStringList, lines);
        int children = -1;
        std::weak_ptr<ResourceManager::Ticket> left;
        {
            const PTicket first = request("ScreenGamma", 1);
            left = first;
            first->then([next](PResultSet answer, const PTicket &following) {
                QVERIFY(answer->matchValue("id", "1"));
                if (next == "another")
                    *following = *request("ScreenSolid", 2);
                if (next == "group")
                    following->parellel(request("ScreenSolid", 2))->parellel(request("ScreenXbit", 2));
            });
            first->commit([&](bool ok, PResultSet tree) {
                QVERIFY(ok);
                children = tree->key() == "Root" ? int(tree->getList().size()) : 1;
            });
        }
        QTRY_VERIFY(children >= 0);
        QStringList asked = m_server->take();
        std::sort(asked.begin() + 1, asked.end()); // the members of a group in any order
        QCOMPARE(asked, lines);
        QCOMPARE(children, int(lines.size()));
        QTRY_VERIFY(left.expired());
    }

    void aThousandRequestsLeaveNothing()
    {
        std::vector<std::weak_ptr<ResourceManager::Ticket>> tickets;
        for (int i = 0; i < 1000; ++i) {
            if (i == 500)
                m_server->answer("{}", 404);
            tickets.push_back(Action::put(lcd, "ScreenSolid", 1, body({{"v", i}}), withId(), failure()));
        }
        QTRY_COMPARE_WITH_TIMEOUT(m_notes.size(), 1000, 20000);
        QTRY_VERIFY(
            std::all_of(tickets.begin(), tickets.end(), [](const auto &ticket) { return ticket.expired(); }));
        const QStringList lines = m_server->take();
        const QString line(R"(PUT /api/v1/device/screens/1/solid {"v":%1})");
        for (int i = 0; i < 1000; ++i)
            QCOMPARE(lines.at(i), line.arg(i));
    }

    void failuresCostNoMemory()
    {
        httpadapter adapter;
        adapter.SetAddress("127.0.0.1", 1, "nobody");
        constexpr int atOnce = 500;
        const auto fail = [&] {
            for (int i = 0; i < atOnce; ++i)
                adapter.put<Parameters>("ScreenSolid", 1, body({{"v", i}}), withId(), failure());
            const bool all = QTest::qWaitFor([&] { return m_notes.size() == atOnce; }, 60000);
            return all && std::exchange(m_notes, {}).count("failed") == atOnce;
        };
        // What is in use, whatever the heap has in reserve, once the connections that warm up have failed,
        // too.
        const auto kilobytes = [] {
            QTest::qWait(500);
            return qint64(mallinfo2().uordblks / 1024);
        };
        // By then the heap's own stocks are full: after two thousand they still take a megabyte.
        for (int i = 0; i < 8; ++i)
            QVERIFY(fail());
        const qint64 before = kilobytes();
        for (int i = 0; i < failures / atOnce; ++i)
            QVERIFY(fail());
        const qint64 grown = kilobytes() - before;
        QVERIFY2(grown < 1024, qPrintable(QString("%1 kB").arg(grown)));
    }

    void actionsFollow()
    {
        auto *manager = Action::ActionManager::instance();
        manager->regist("note", [] { return std::make_shared<NotingAction>(); });
        QVERIFY(!manager->find("none"));
        Action::put(lcd, "ScreenSolid", 3, body({{"v", 1}}), "note", failure());
        Action::post(lcd, "Device_Mapping", body({}), "note", failure());
        const QStringList invoked{R"({"deviceKey":"test","id":"3","v":1})", R"({"deviceKey":"test"})"};
        QTRY_COMPARE(NotingAction::notes, invoked);
        bool ended = false;
        const auto action = std::dynamic_pointer_cast<NotingAction>(manager->find("note"));
        const std::weak_ptr<NotingAction> left = action;
        QVERIFY(action->next("note", {}) && !action->next("none", {}));
        action->finished([&](bool ok, const Parameters &) { ended = ok; });
        action->resultCB(true, makeNull(), {});
        QVERIFY(ended && left.use_count() == 1);
        m_server->answer("{}", 500);
        Action::put(lcd, "ScreenSolid", body({}), "note", failure());
        QTRY_COMPARE(m_notes, QStringList{"failed"});
    }

    void theServiceOfTheBoard()
    {
        QTemporaryDir state;
        qputenv("FPD_STATE", state.path().toLocal8Bit());
        httpService service(ENUM_COMMUNICATION_HTTP);
        ST_Protocol4rdMsg message;
        message.key = "ScreenSolid";
        message.type = METHOD_PutId;
        message.id = 255;
        message.onIdSuccess = withId();
        message.onFailure = failure();
        QCOMPARE(service.SendMsg(&message), 1); // an emulator that has not said its port: nobody
        QTRY_COMPARE(m_notes, QStringList{"failed"});
        QFile ports(state.filePath("ports"));
        QVERIFY(ports.open(QIODevice::WriteOnly));
        ports.write("8001=" + QByteArray::number(m_server->port()) + '\n');
        ports.close();
        QCOMPARE(service.SendMsg(&message), 1);
        message.type = methontype(12);
        QCOMPARE(service.SendMsg(&message), 0);
        for (methontype silent : {METHOD_Get, METHOD_GetId, METHOD_GetIdPlaceHolders}) {
            message.type = silent;
            service.SendMsg(&message);
        }
        QTRY_COMPARE(m_notes.size(), 2);
        QCOMPARE(m_server->take(), QStringList{"PUT /api/v1/device/screens/255/solid null"});
    }

private:
    static void connectTo(unsigned short port)
    {
        TunnelManager::instance()->create(lcd, TUNNEL_Http)->connectTo("127.0.0.1", port, {}, {});
    }
    Action::OnSuccess<Parameters> plain()
    {
        return [this](const Parameters &, const std::string &key) { m_notes += QString::fromStdString(key); };
    }
    Action::OnSuccess<ParameterList> plainList()
    {
        return [this](const ParameterList &list, const std::string &key) {
            m_notes += QString("%1 of %2").arg(QString::fromStdString(key)).arg(list.size());
        };
    }
    Action::OnSuccessId<Parameters> withId()
    {
        return [this](const Parameters &, unsigned long long id, const std::string &key) {
            m_notes += QString("%1 id %2").arg(QString::fromStdString(key)).arg(id);
        };
    }
    Action::OnSuccessTree<Parameters> tree()
    {
        return [this](const Parameters &, const std::string &key, const PResultSet &tree) {
            m_notes +=
                QString("%1 tree %2").arg(QString::fromStdString(key)).arg(tree->findPath("code")->getInt());
        };
    }
    Action::OnFailure failure()
    {
        return [this] { m_notes += "failed"; };
    }

    std::unique_ptr<RestServer> m_server;
    QStringList m_notes;
};

FPD_TEST(TestRequests)
#include "tst_requests.moc"
