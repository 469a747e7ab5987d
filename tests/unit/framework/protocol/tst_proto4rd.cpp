// What an item's change is as a request to the device service, to the byte, and what comes of the list of
// cabinet files.

#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/proto4rd.h"
#include "framework/store/menuanalysis.h"
#include "tests/testprogram.h"
#include "tests/unit/framework/protocol/restclient.h"

#include <thread>

using namespace VASK;

namespace
{
QStringList logged;
void keepLog(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logged += text;
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
        for (const auto &[item, value] :
             std::initializer_list<std::pair<int, const char *>>{{MENU_Quick_CabinetRow, "2"},
                                                                 {MENU_Quick_CabinetCol, "3"},
                                                                 {MENU_Quick_PortOneCab, "6"},
                                                                 {MENU_Quick_FlowWay, "x"},
                                                                 {MENU_Color_R, "10"},
                                                                 {MENU_Color_G, "20"},
                                                                 {MENU_Color_B, "30"},
                                                                 {MENU_Test_PureColor, "1"},
                                                                 {MENU_Test_Gradient, "4"},
                                                                 {MENU_Test_Grid, "5"},
                                                                 {MENU_Test_Brightness, "2"},
                                                                 {MENU_Test_Spacing, "40"},
                                                                 {MENU_Test_Speed, "5"}})
            set(item, value);
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
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("request");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("failure");
        const auto row = [](int item, const QString &value, const QString &request, const char *failure = "",
                            int result = 1) {
            QTest::addRow("%d=%s", item, qPrintable(value))
                << item << value << request << result << QString(failure);
        };
        const char *bright = "http return : brightness set faild error";
        const char *solid = "http return : ScreenSolid set faild error";
        const char *mode = "http return : SCREEN Mode faild error";
        const char *quick = "http return : quick screen set faild error";
        row(MENU_ScreenBrightness, "100", R"(PUT cabinets/16777215/brightness {"value":255})", bright);
        row(MENU_ScreenBrightness, "50", R"(PUT cabinets/16777215/brightness {"value":127})", bright);
        row(MENU_ScreenBrightness, "0", R"(PUT cabinets/16777215/brightness {"value":0})", bright);
        row(MENU_ScreenBrightness, "x", R"(PUT cabinets/16777215/brightness {"value":0})", bright);
        row(MENU_SavetoRVCard, "", R"(PUT cabinets/16777215/solid {"type":0})", solid);
        row(MENU_Normal, "1", R"(PUT screens/255/displaymode {"value":0})", mode);
        row(MENU_Freeze, "1", R"(PUT screens/255/displaymode {"value":2})", mode);
        row(MENU_FTB, "1", R"(PUT screens/255/displaymode {"value":1})", mode);
        row(MENU_LowLatency, "1", R"(PUT screens/255/lowlatency {"enable":true})",
            "http return : low delay set faild error");
        row(MENU_LowLatency, "0", R"(PUT screens/255/lowlatency {"enable":false})",
            "http return : low delay set faild error");
        for (int item = MENU_Quick_CabinetRow; item <= MENU_Quick_FlowWay; ++item)
            row(item, "9",
                R"(PUT screens/autoconfiguration/base {"LayoutType":0,"colCount":3,"port1CabinetCount":6,"rowCount":2})",
                quick);
        row(MENU_CabinetFile1, "1+file+x", R"(PUT cabinets/16777215/sendcfgfile {"fileName":"1+file+x"})",
            bright);
        row(MENU_CabinetFile8, "file", R"(PUT cabinets/16777215/sendcfgfile {"fileName":"file"})", bright);
        row(MENU_Mapping, "1", R"(PUT cabinets/16777215/mapping {"enable":true})",
            "http return : Mapping set faild error");
        for (const char *sent : {"2.25 2.3", "2.86 2.9", "2.85 2.8", "1.0 1.0"}) {
            const QStringList values = QString(sent).split(' ');
            row(MENU_Color_Gamma, values[0],
                R"(PUT cabinets/16777215/gamma {"type":3,"value":)" + values[1] + '}', solid);
        }
        for (int item = MENU_Color_R; item <= MENU_Color_B; ++item)
            row(item, "99", R"(PUT cabinets/16777215/rgbbrightness {"b":30,"g":20,"r":10})",
                "http return : SCREEN color faild error");
        for (int item :
             {MENU_ScreenSetting, MENU_LoadCabFiles, MENU_FTBDuration, MENU_AdvancedCfg, MENU_LEDScreenColor,
              MENU_Test_VaskImage, MENU_Advanced_Reset, MENU_Color_ColorTemp, MENU_Color_Reset})
            row(item, "1", "");

        const char *pure = "http return : Test pure faild error";
        const char *grad = "http return : Test grad faild error";
        const char *grid = "http return : Test grid faild error";
        const QString colours[] = {pattern(1, 0, 0, 0, 0),        pattern(1, 255, 0, 0, 0),
                                   pattern(1, 0, 255, 0, 0),      pattern(1, 0, 0, 255, 0),
                                   pattern(1, 255, 255, 255, 0),  pattern(11, 255, 255, 255, 1),
                                   pattern(12, 255, 255, 255, 1), pattern(10, 255, 255, 255, 1)};
        const QString gradients[] = {pattern(3, 255, 0, 0, 0), pattern(3, 0, 255, 0, 0),
                                     pattern(3, 0, 0, 255, 0), pattern(3, 255, 255, 255, 0),
                                     pattern(2, 255, 0, 0, 0), pattern(2, 0, 255, 0, 0),
                                     pattern(2, 0, 0, 255, 0), pattern(2, 255, 255, 255, 0)};
        for (int i = 0; i < 8; ++i) {
            row(MENU_Test_PureColor, QString::number(i), colours[i], pure);
            row(MENU_Test_Gradient, QString::number(i), gradients[i], grad);
        }
        const int gridModes[] = {5, 4, 7, 8, 6, 9};
        for (int i = 0; i < 6; ++i)
            row(MENU_Test_Grid, QString::number(i), pattern(gridModes[i], 255, 255, 255, 1), grid);
        for (const char *beyond : {"2326 8", "2327 8", "2328 6", "2326 -1"})
            row(QString(beyond).section(' ', 0, 0).toInt(), QString(beyond).section(' ', 1), "", "", 0);
    }
    void items()
    {
        QFETCH(int, item);
        QFETCH(QString, value);
        QFETCH(QString, request);
        QTEST(m_protocol->HandleMenuValueChanged(ENUM_MenuIndex(item), value), "result");
        QCOMPARE(m_client->take(), request);
        if (request.isEmpty()) {
            const bool isPattern = item >= MENU_Test_PureColor && item <= MENU_Test_Grid;
            QVERIFY(logged.filter(isPattern ? "No this color" : "Protocol4rd no handle!").size() == 1);
            return;
        }
        logged.clear();
        const ST_Protocol4rdMsg &message = m_client->messages.last();
        message.onFailure();
        QFETCH(QString, failure);
        QCOMPARE(logged, QStringList{failure});
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
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("request");
        QTest::newRow("colour") << "0" << pattern(1, 255, 0, 0, 0);
        QTest::newRow("gradient") << "1" << pattern(2, 255, 0, 0, 0);
        QTest::newRow("grid") << "2" << pattern(9, 255, 255, 255, 1);
        QTest::newRow("picture") << "3"
                                 << "";
        QTest::newRow("none") << "255"
                              << "";
    }
    void thePatternOnShowGoesOutAgain()
    {
        QFETCH(QString, family);
        QFETCH(QString, request);
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
            QCOMPARE(m_client->take(), pattern(1, 255, 0, 0, 0, grays[level - 1]));
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
