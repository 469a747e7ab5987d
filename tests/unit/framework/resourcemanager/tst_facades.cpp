// The typed operations of the resources: each of them once over the wire, and what they do with the answer,
// with a service that is slow or silent, and with keys that are pressed meanwhile.

#include "framework/communication/http/jsonutil.h"
#include "framework/input/keydispatcher.h"
#include "framework/resourcemanager/allurlresource.h"
#include "framework/resourcemanager/facades.h"
#include "framework/resourcemanager/facadetable.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/communication/restserver.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace VASK;

namespace
{
constexpr int timeoutS = 1;

class KeyWindow : public QWidget
{
public:
    bool event(QEvent *event) override
    {
        if (auto *key = dynamic_cast<KeypadEvent *>(event))
            keys.append(int(key->key()));
        return QWidget::event(event);
    }
    QList<int> keys;
};
} // namespace

class TestFacades : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_server = std::make_unique<RestServer>();
        FacadeCall::setService("127.0.0.1", m_server->port(), timeoutS);
    }
    void init()
    {
        m_server->answer(R"({"code":0,"data":{"v":1}})");
        m_server->take();
    }
    void cleanupTestCase() { m_server.reset(); }

    void everyOperationOnce()
    {
        QCOMPARE(facadeRows().size(), size_t(137));
        const auto catalogue = AllUrlResource::getInstance()->getMapAllUrl();
        const QVariantMap map{{"a.b", 1}};
        for (const FacadeRow &row : facadeRows()) {
            const QString shape = row.shape;
            const QByteArray what = QByteArray(row.facade) + "::" + row.name + ' ' + row.shape;
            const bool isGet = QString(row.name).startsWith("get");
            const bool isList = shape == "ListBodyMap";
            const bool hasBody = !isGet && shape != "Map";
            FacadeArguments arguments{"dev", {"7"}, {{"q", "x y"}}, map};
            if (isList)
                arguments.body = QVariantList{1, "t"};
            const QVariant answer = row.call(arguments);
            QString path = catalogue.value(row.key, "/");
            if (shape != "WriterAll")
                path.replace(shape == "OutputMap" ? "{outputid}" : "{id}", "7");
            path.replace('{', "%7B").replace('}', "%7D");
            if (shape == "QueryMap")
                path += "?q=x%20y";
            else if (isGet && shape == "BodyList")
                path += "?a.b=1";
            const QString body = isList ? " [1,'t']" : " {'a':{'b':1}}";
            QString line = (isGet ? "GET " : "PUT ") + path + (hasBody ? body : "");
            QCOMPARE(m_server->take(1), QStringList{line.replace("'", "\"")});
            const bool isAnswered = shape != "Reader";
            QVERIFY2(answer.isValid() == isAnswered, what);
        }
    }

    void answers_data()
    {
        const DataRows<QByteArray, QByteArray, QByteArray> row{"json", "asMap", "asList"};
        row("object", R"({"data":{"a":{"b":[1,2.5]},"n":null}})", R"({"a":{"b":[1,2.5]},"n":null})",
            R"([{"a":{"b":[1,2.5]},"n":null}])");
        row("array", R"({"data":[1,"t",true]})", R"({"data":[1,"t",true]})", R"([1,"t",true])");
        row("empty array", R"({"data":[]})", "{}", "[]");
        row("no data", R"({"code":5})", R"({"code":5})", R"([{"code":5}])");
    }
    void answers()
    {
        QFETCH(QByteArray, json);
        m_server->answer(json.toStdString());
        VariantMap map{{"old", 1}};
        VariantList list{9};
        QCOMPARE(DebugInfo::getInstance()->clearKeyParameters("dev", map), 0);
        QCOMPARE(Capability::getInstance()->getAllChipType("dev", list), 0);
        QTEST(QByteArray::fromStdString(JsonUtil::toJson(map)), "asMap");
        QTEST(QByteArray::fromStdString(JsonUtil::toJson(QVariant(list))), "asList");
    }

    void aFailureLeavesTheAnswer()
    {
        m_server->answer(RestServer::Answer{500, "{}", 0});
        QSignalSpy read(Algorithm::getInstance(), &Algorithm::needGetAlgorithmInfo);
        VariantMap map{{"old", 1}};
        QCOMPARE(Algorithm::getInstance()->getRGBLight("dev", {}, map), 0);
        QCOMPARE(map, (VariantMap{{"old", 1}}));
        QCOMPARE(read.size(), 0);
        m_server->answer(R"({"data":{"x":1}})");
        Algorithm::getInstance()->getRGBLight("dev", {}, map);
        QCOMPARE(map, (VariantMap{{"x", 1}}));
        QCOMPARE(read.size(), 1);
        VariantList list;
        QCOMPARE(ScreenUrl::setFineGray("dev", "1", map, list), 0);
        QCOMPARE(Monitor::getMonitorData("dev", map), 0);
        QCOMPARE(map, (VariantMap{{"x", 1}}));
    }

    void pipelinesAreHeld()
    {
        PipeInfo *pipes = PipeInfo::getInstance();
        QSignalSpy changed(pipes, &PipeInfo::signal_sendDataChanged);
        VariantMap map{{"old", 1}};
        VariantList list{9};
        m_server->answer(R"({"data":[{"id":1},{"id":3,"n":"x"},{"n":"no id"}]})");
        QCOMPARE(pipes->getDeviceOnePipe("held", "3", map), 0); // nothing held: it is asked for
        QVERIFY(changed.wait());
        QCOMPARE(pipes->getDevicePipes("held", list, true), 0); // asked anew, though held
        QVERIFY(changed.wait());
        QCOMPARE(list, VariantList{9});
        QCOMPARE(pipes->getDevicePipes("held", list, false), 1);
        QCOMPARE(list.size(), 3);
        QCOMPARE(pipes->getDeviceOnePipe("held", "3", map), 1);
        QCOMPARE(map.value("n").toString(), QString("x"));
        QCOMPARE(pipes->getDeviceOnePipe("held", "4", map), 0);
        QCOMPARE(map.value("n").toString(), QString("x"));
        QCOMPARE(m_server->take().size(), 2);
        VariantMap answer;
        HwScreenInfo::getInstance()->setEdgeDrawLine("dev", {1, 2}, answer);
        QCOMPARE(HwScreenInfo::getInstance()->drawn("dev"), (VariantList{1, 2}));
    }

    void aGroupWaitsForItsLastAnswer_data()
    {
        const DataRows<int, int> row{"delayMs", "count"};
        row("quick", 0, 3);
        row("slow", 100, 3);
        row("too slow for all", 400, 2);
        row("silent", 3000, 0);
    }
    void aGroupWaitsForItsLastAnswer()
    {
        QFETCH(int, delayMs);
        FacadeCall::setService("127.0.0.1", m_server->port(), timeoutS);
        m_server->answer(RestServer::Answer{200, R"({"data":{"v":1}})", delayMs});
        VariantList answers;
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(ScreenUrl::putDeviceScreenHdrparamHdrSwitch("dev", QStringList{"1", "2", "3"},
                                                             {{"on", true}}, answers),
                 1);
        QVERIFY2(clock.elapsed() < 1000 * timeoutS + 900, qPrintable(QString::number(clock.elapsed())));
        QTEST(int(answers.size()), "count");
        QTest::qWait(delayMs >= 400 ? 1000 * timeoutS
                                    : 0); // what came too late is taken by nobody, and crashes nothing
    }

    void keysWaitForTheAnswer()
    {
        KeyDispatcher dispatcher;
        KeyWindow window;
        window.show();
        QApplication::setActiveWindow(&window);
        QTest::qWait(20); // the dispatcher's event loop runs
        m_server->answer(RestServer::Answer{200, "{}", 300});
        int whileWaiting = -1;
        QTimer::singleShot(50, this, [&] {
            for (unsigned char key : {1, 2, 3})
                dispatcher.post(KEY_PRESSED, key, 1, false);
        });
        QTimer::singleShot(200, this, [&] { whileWaiting = window.keys.size(); });
        VariantList answers;
        ScreenUrl::putDeviceScreenHdrparamHdrSwitch("dev", QStringList{"1"}, {}, answers);
        QCOMPARE(whileWaiting, 0);
        QCOMPARE(window.keys.size(), 0);
        QTRY_COMPARE(window.keys, (QList<int>{1, 2, 3}));
    }

private:
    std::unique_ptr<RestServer> m_server;
};

FPD_TEST(TestFacades)
#include "tst_facades.moc"
