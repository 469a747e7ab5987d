// What an item's change is as a request to the device service, to the byte, and what comes of the list of
// cabinet files.

#include "client/names/itemnames.h"
#include "framework/communication/http/protocol4rdmsg.h"
#include "framework/communication/http/requestbody.h"
#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/protocol/link/proto4rd.h"
#include "framework/resourcemanager/allurlresource.h"
#include "framework/store/menuanalysis.h"
#include "tests/testprogram.h"

#include <thread>

using namespace VASK;

namespace
{
QStringList logged;
void keepLog(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logged += text;
}

/// Notes requests as "VERB PATH BODY"; the test ends them.
class RestClient : public CommunicationClientInterface
{
public:
    RestClient() : CommunicationClientInterface(ENUM_COMMUNICATION_HTTP) {}
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }
    int SendMsg(void *given) override
    {
        const auto &message = *static_cast<ST_Protocol4rdMsg *>(given);
        static const QList<int> puts{METHOD_Put, METHOD_PutId}, posts{METHOD_Post, METHOD_PostId},
            putLists{METHOD_PutList, METHOD_PutIdList}, postLists{METHOD_PostList, METHOD_PostIdList};
        const bool isList = (putLists + postLists).contains(message.type);
        const QString verb = message.type == METHOD_GetTree               ? "GET"
                             : (puts + putLists).contains(message.type)   ? "PUT"
                             : (posts + postLists).contains(message.type) ? "POST"
                                                                          : "?";
        const std::string body =
            isList ? Action::bodyText(message.parameterList) : Action::bodyText(message.parameters);
        QString path =
            AllUrlResource::getInstance()->getMapAllUrl().value(QString::fromStdString(message.key));
        path.replace("{id}", QString::number(message.id)).remove("/api/v1/device/");
        requests += verb + ' ' + path + ' ' + QString::fromStdString(body);
        messages.append(message);
        return 1;
    }
    /// All requests since the last take, joined.
    QString take()
    {
        QString text = requests.join('|');
        requests.clear();
        return text;
    }
    QStringList requests;
    QList<ST_Protocol4rdMsg> messages;
};

/// The request of a pattern, "MODE:RGB:WIDTH", on a screen with that gray, a spacing of 40 and a speed of 5.
QString pattern(const QString &shown, int gray = 65)
{
    const QStringList words = shown.split(':');
    const auto part = [&words](int i) { return QString(words[1][i] == '1' ? "255" : "0"); };
    return QString(
               R"(PUT screens/255/txtestpattern {"blue":%4,"gray":%6,"green":%3,"lineWidth":%5,"modeType":%1,)"
               R"("moveDirection":0,"moveSpeed":5,"red":%2,"spaceValue":40})")
        .arg(words[0], part(0), part(1), part(2), words[2])
        .arg(gray);
}
} // namespace

class TestProto4rd : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        auto *pool = ObjectPool::getInstance();
        pool->InsertData(ENUM_MENUANALYSIS, new MenuAnalysis(ENUM_MENUANALYSIS));
        pool->InsertData(ENUM_PARAPROCESS, new ParaProcess(ENUM_PARAPROCESS));
        m_client = new RestClient;
        pool->InsertData(ENUM_COMMUNICATION_HTTP, m_client);
        m_protocol = new Proto4rd(ENUM_PROTOCOINTERFER_4RD);
        pool->InsertData(ENUM_PROTOCOINTERFER_4RD, m_protocol);
        QCOMPARE(m_protocol->initialize(), 1);
        const QString values =
            "Quick_{CabinetRow=2 CabinetCol=3 PortOneCab=6 FlowWay=x} Color_{R=10 G=20 B=30} "
            "Test_{PureColor=1 Gradient=4 Grid=5 Brightness=2 Spacing=40 Speed=5}";
        for (const QString &line : itemnames::expanded(values).split(' '))
            set(itemnames::item(line.section('=', 0, 0)), line.section('=', 1));
        for (int port = 0; port < 10; ++port)
            for (int field = 0; field < 5; ++field)
                set(MENU_AdvancedPort1_Rows + 5 * port + field, QString::number(100 * port + field));
        logged.clear();
        m_logBefore = qInstallMessageHandler(keepLog);
    }
    void cleanup()
    {
        qInstallMessageHandler(m_logBefore);
        ObjectPool::getInstance()->ClearAllObject();
    }

    void items_data()
    {
        addColumns<QString, QString, QString, int>({"change", "request", "failure", "result"});
        const auto row = [](const QString &change, const QString &request, const QString &failure = {},
                            int result = 1) { addRow(change, change, request, failure, result); };
        const QString cabinets = "PUT cabinets/16777215/", screens = "PUT screens/255/";
        const QString solid = "ScreenSolid set", mode = "SCREEN Mode", bright = "brightness set";
        row("ScreenBrightness=50", cabinets + R"(brightness {"value":127})", bright);
        row("ScreenBrightness=x", cabinets + R"(brightness {"value":0})", bright);
        row("SavetoRVCard=", cabinets + R"(solid {"type":0})", solid);
        row("Normal=1", screens + R"(displaymode {"value":0})", mode);
        row("Freeze=1", screens + R"(displaymode {"value":2})", mode);
        row("FTB=1", screens + R"(displaymode {"value":1})", mode);
        row("LowLatency=1", screens + R"(lowlatency {"enable":true})", "low delay set");
        for (const char *item : {"CabinetRow", "CabinetCol", "PortOneCab", "FlowWay"})
            row(QString("Quick_%1=9").arg(item),
                R"(PUT screens/autoconfiguration/base {"LayoutType":0,"colCount":3,"port1CabinetCount":6,"rowCount":2})",
                "quick screen set");
        row("CabinetFile1=1+file+x", cabinets + R"(sendcfgfile {"fileName":"1+file+x"})", bright);
        row("CabinetFile8=file", cabinets + R"(sendcfgfile {"fileName":"file"})", bright);
        row("Mapping=1", cabinets + R"(mapping {"enable":true})", "Mapping set");
        for (const QString sent : {"2.25 2.3", "2.86 2.9", "2.85 2.8", "1.0 1.0"})
            row("Color_Gamma=" + sent.section(' ', 0, 0),
                cabinets + R"(gamma {"type":3,"value":)" + sent.section(' ', 1) + '}', solid);
        for (const char *channel : {"R", "G", "B"})
            row(QString("Color_%1=99").arg(channel), cabinets + R"(rgbbrightness {"b":30,"g":20,"r":10})",
                "SCREEN color");
        for (const char *silent :
             {"ScreenSetting", "LoadCabFiles", "FTBDuration", "AdvancedCfg", "LEDScreenColor",
              "Test_VaskImage", "Advanced_Reset", "Color_ColorTemp", "Color_Reset"})
            row(silent + QString("=1"), "");
        // Mode, colour and the width of the lines, by the values of the item.
        const QString patterns[] = {
            "PureColor pure 1:000:0 1:100:0 1:010:0 1:001:0 1:111:0 11:111:1 12:111:1 10:111:1",
            "Gradient grad 3:100:0 3:010:0 3:001:0 3:111:0 2:100:0 2:010:0 2:001:0 2:111:0",
            "Grid grid 5:111:1 4:111:1 7:111:1 8:111:1 6:111:1 9:111:1"};
        for (const QString &family : patterns) {
            const QStringList words = family.split(' ');
            for (int value = 0; value < words.size() - 2; ++value)
                row(QString("Test_%1=%2").arg(words[0]).arg(value), pattern(words[value + 2]),
                    "Test " + words[1]);
        }
        for (const char *beyond : {"Test_PureColor=8", "Test_Gradient=8", "Test_Grid=6", "Test_PureColor=-1"})
            row(beyond, "", "", 0);
    }
    void items()
    {
        const auto [change, request, failure] =
            fetched<QString, QString, QString>({"change", "request", "failure"});
        const ENUM_MenuIndex item = itemnames::item(change.section('=', 0, 0));
        QTEST(m_protocol->HandleMenuValueChanged(item, change.section('=', 1)), "result");
        QCOMPARE(m_client->take(), request);
        if (request.isEmpty()) {
            const bool isPattern = item >= MENU_Test_PureColor && item <= MENU_Test_Grid;
            QVERIFY(logged.filter(isPattern ? "No this color" : "Protocol4rd no handle!").size() == 1);
            return;
        }
        logged.clear();
        const ST_Protocol4rdMsg &message = m_client->messages.last();
        message.onFailure();
        QCOMPARE(logged, QStringList{"http return : " + failure + " faild error"});
        if (message.type == METHOD_PutId)
            message.onIdSuccess({}, message.id, message.key);
        else
            message.onSuccess({}, message.key);
        QVERIFY(logged.last().startsWith("succeed, index:"));
    }
    void allPortsAtOnce()
    {
        QCOMPARE(m_protocol->HandleMenuValueChanged(MENU_Advanced_Apply, "1"), 1);
        const QString one =
            R"({"colCount":%2,"layoutType":%5,"offsetX":%3,"offsetY":%4,"portID":%6,"rowCount":%1})";
        QStringList ports;
        for (int i = 0; i < 10; ++i)
            ports +=
                one.arg(100 * i).arg(100 * i + 1).arg(100 * i + 2).arg(100 * i + 3).arg(100 * i + 4).arg(i);
        QCOMPARE(m_client->take(), "POST screens/autoconfiguration/senior [" + ports.join(',') + ']');
        logged.clear();
        m_client->messages.last().onFailure();
        m_client->messages.last().onListSuccess({}, "k");
        QCOMPARE(logged.first(), QString("http return : quick screen set faild error"));
    }

    void thePatternOnShowGoesOutAgain_data()
    {
        const DataRows<QString, QString> row{"family", "request"};
        row("colour", "0", pattern("1:100:0"));
        row("gradient", "1", pattern("2:100:0"));
        row("grid", "2", pattern("9:111:1"));
        row("picture", "3", "");
        row("none", "255", "");
    }
    void thePatternOnShowGoesOutAgain()
    {
        const auto [family, request] = fetched<QString, QString>({"family", "request"});
        engine()->SaveProcessData(family, PARA_TestPatternFamily);
        for (int item = MENU_Test_Brightness; item <= MENU_Test_Speed; ++item) {
            QCOMPARE(m_protocol->HandleMenuValueChanged(ENUM_MenuIndex(item), "9"),
                     request.isEmpty() ? 0 : 1);
            QCOMPARE(m_client->take(), request);
        }
        if (request.isEmpty())
            QCOMPARE(logged.filter("type is fail! \"" + family + '"').size(), 3);
    }

    void levelsOfGray()
    {
        const int grays[] = {1, 65, 130, 195};
        for (int level = 1; level <= 4; ++level) {
            set(MENU_Test_Brightness, QString::number(level));
            m_protocol->HandleMenuValueChanged(MENU_Test_PureColor, "1");
            QCOMPARE(m_client->take(), pattern("1:100:0", grays[level - 1]));
        }
    }

    void theListOfFiles()
    {
        QString text = "old";
        QCOMPARE(m_protocol->GetValueByIndexSYN(MENU_ScreenBrightness, &text), 0);
        QCOMPARE(m_protocol->GetValueByIndexSYN(MENU_LoadCabFiles, &text), 1);
        QCOMPARE(m_client->take(), QString("GET cabinets/cfgfile null"));
        QCOMPARE(text, QString("old"));
        const auto answer = [&](const char *json) {
            const PResultSet tree = ResultSet::fromJson(json);
            tree->setKey("Device_cfgfile");
            m_client->messages.last().onSuccessTree({}, "Device_cfgfile", tree);
        };
        answer(R"({"data":[]})");
        answer("no json");
        QCOMPARE(text, QString("old"));
        answer(R"({"data":["a","b","c"]})");
        QCOMPARE(text, QString("olda+b+c"));
        QString later;
        m_protocol->GetValueByIndexSYN(MENU_LoadCabFiles, &later);
        answer(R"({"data":["d"]})");
        QCOMPARE(later, QString("d"));
        m_client->messages.last().onFailure();
        QCOMPARE(logged.last(), QString("http return : LOAD_CABFILE get faild error"));
    }

    void changesOfAnotherThreadAreBroughtHere()
    {
        std::thread([this] { m_protocol->slot_ValueChanged("1", MENU_Mapping); }).join();
        QCOMPARE(m_client->requests.size(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(m_client->requests.size(), 1);
        m_protocol->slot_ValueChanged("1", MENU_Mapping);
        QCOMPARE(m_client->requests.size(), 2);
        QVERIFY(logged.contains("4rd Send \"1\" ,index: 2013"));
    }

    void withoutPeers()
    {
        ObjectPool::getInstance()->RemoveByIndex(ENUM_PARAPROCESS);
        QCOMPARE(m_protocol->initialize(), 1);
        QCOMPARE(logged.last(), QString("4rd get ENUM_PARAPROCESS faild!"));
        ObjectPool::getInstance()->RemoveByIndex(ENUM_COMMUNICATION_HTTP);
        Proto4rd alone(ENUM_PROTOCOINTERFER_4RD);
        QCOMPARE(alone.initialize(), 0);
        QCOMPARE(logged.last(), QString("get http socket fail!"));
        QCOMPARE(alone.HandleMenuValueChanged(MENU_Mapping, "1"), 0);
        QCOMPARE(alone.HandleMenuValueChanged(MENU_Test_Speed, "1"), 0);
    }

private:
    static ParaProcess *engine() { return poolObject<ParaProcess>(ENUM_PARAPROCESS); }
    static void set(int index, const QString &value)
    {
        ST_ItemInfo item;
        item.index = ENUM_MenuIndex(index);
        item.value = value;
        auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
        store->DeleteMenuItem(item.index);
        store->AddMenuItem(item.index, item);
    }

    RestClient *m_client = nullptr;
    Proto4rd *m_protocol = nullptr;
    QtMessageHandler m_logBefore = nullptr;
};

FPD_TEST(TestProto4rd)
#include "tst_proto4rd.moc"
