// The panel that speaks to the REST service, and fpd-resource: what they ask for, to the byte, and what
// becomes of the panel when the service is not well.
#include "client/names/itemnames.h"
#include "tests/rudeserver.h"
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <deque>
#include <utility>

using namespace VASK;
using frames::path;

namespace
{
using Path = QList<ENUM_MenuIndex>;

struct KeyRequests {
    const char *name;
    Path path;
    const char *keys;
    QStringList requests; ///< behind "/api/v1/device/"
    QStringList frames{}; ///< what goes over the bus all the same
};

Path control(ENUM_MenuIndex row)
{
    return {MENU_DisplayControl, row};
}
Path pattern(ENUM_MenuIndex row)
{
    return {MENU_DisplayControl, MENU_TestPattern, row};
}
Path screen(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, row};
}
Path more(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, row};
}
Path quick(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration, row};
}
Path advanced(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, MENU_AdvancedCfg, row};
}
Path colour(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings, MENU_LEDScreenColor, row};
}

QString cabinets(const char *what, const char *body)
{
    return QString("PUT cabinets/16777215/%1 %2").arg(what, body);
}
QString screens(const char *what, const char *body)
{
    return QString("PUT screens/255/%1 %2").arg(what, body);
}
QString shown(int mode, const char *rgb, int lineWidth, int gray = 130, int spacing = 5, int speed = 3)
{
    const auto part = [rgb](int i) { return rgb[i] == '1' ? 255 : 0; };
    return QString(R"(PUT screens/255/txtestpattern {"blue":%1,"gray":%2,"green":%3,"lineWidth":%4,)"
                   R"("modeType":%5,"moveDirection":0,"moveSpeed":%6,"red":%7,"spaceValue":%8})")
        .arg(part(2))
        .arg(gray)
        .arg(part(1))
        .arg(lineWidth)
        .arg(mode)
        .arg(speed)
        .arg(part(0))
        .arg(spacing);
}
/// A knob's steps over patterns of one family: the one that is there, and each that follows.
QStringList stepped(const QVector<int> &modes, const QStringList &colours, int lineWidth)
{
    QStringList requests;
    for (int i = 0; i < modes.size(); ++i)
        requests += shown(modes[i], qPrintable(colours[i]), lineWidth);
    return requests;
}
QString quickForm(int rows, int columns, int cabinets, int flowWay)
{
    return QString(R"(PUT screens/autoconfiguration/base {"LayoutType":%4,"colCount":%2,)"
                   R"("port1CabinetCount":%3,"rowCount":%1})")
        .arg(rows)
        .arg(columns)
        .arg(cabinets)
        .arg(flowWay);
}
/// All ports, of which the second is described and the others are as they were delivered.
QString advancedForm(const QString &second)
{
    constexpr int ports = 10;
    const QString delivered =
        R"({"colCount":1,"layoutType":0,"offsetX":0,"offsetY":0,"portID":%1,"rowCount":1})";
    QStringList list;
    for (int port = 0; port < ports; ++port)
        list += port == 1 ? second : delivered.arg(port);
    return "POST screens/autoconfiguration/senior [" + list.join(',') + ']';
}
QStringList twice(const QString &request)
{
    return {request, request};
}
const QString solid = cabinets("solid", R"({"type":0})");
QStringList brightness(const char *body)
{
    return twice(cabinets("brightness", body)) << solid;
}

QVector<KeyRequests> table()
{
    return {
        {"brightness 63", path(MENU_ScreenBrightness), "R3 ok closed", brightness(R"({"value":160})")},
        {"brightness 100", path(MENU_ScreenBrightness), "R37 ok closed", brightness(R"({"value":255})")},
        {"brightness 50", path(MENU_ScreenBrightness), "L50 ok closed", brightness(R"({"value":127})")},
        {"brightness 0", path(MENU_ScreenBrightness), "L50 ok closed", brightness(R"({"value":0})")},
        {"freeze", control(MENU_Freeze), "", {screens("displaymode", R"({"value":2})")}},
        {"black", control(MENU_FTB), "", {screens("displaymode", R"({"value":1})")}},
        {"normal", control(MENU_Normal), "", {screens("displaymode", R"({"value":0})")}},
        {"low latency on",
         path(MENU_AdvancedSetting, MENU_LowLatency),
         "r1 ok",
         {screens("lowlatency", R"({"enable":true})")}},
        {"low latency off",
         path(MENU_AdvancedSetting, MENU_LowLatency),
         "r1 ok",
         {screens("lowlatency", R"({"enable":false})")}},
        {"mapping on", more(MENU_Mapping), "r1 ok", {cabinets("mapping", R"({"enable":true})")}},
        {"mapping off", more(MENU_Mapping), "r1 ok", {cabinets("mapping", R"({"enable":false})")}},
        {"gamma", colour(MENU_Color_Gamma), "R1 ok", twice(cabinets("gamma", R"({"type":3,"value":2.9})"))},
        {"colours of one's own", colour(MENU_Color_ColorTemp), "r3 ok", {}},
        {"red", colour(MENU_Color_R), "L5 ok",
         twice(cabinets("rgbbrightness", R"({"b":253,"g":249,"r":250})"))},
        {"green", colour(MENU_Color_G), "L9 ok",
         twice(cabinets("rgbbrightness", R"({"b":253,"g":240,"r":250})"))},
        {"blue", colour(MENU_Color_B), "L3 ok",
         twice(cabinets("rgbbrightness", R"({"b":250,"g":240,"r":250})"))},
        {"quick page",
         {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_QuickConfiguration},
         "",
         {quickForm(1, 1, 1, 0)}},
        {"quick rows", quick(MENU_Quick_CabinetRow), "R3 ok", twice(quickForm(4, 1, 1, 0))},
        // Sixteen cabinets on six ports are three on the first at least, which is told, too.
        {"quick columns", quick(MENU_Quick_CabinetCol), "R3 ok",
         QStringList{quickForm(4, 4, 3, 0)} + twice(quickForm(4, 4, 3, 0))},
        {"quick first port", quick(MENU_Quick_PortOneCab), "R1 ok", twice(quickForm(4, 4, 4, 0))},
        {"quick flow way", quick(MENU_Quick_FlowWay), "r1 ok", {quickForm(4, 4, 4, 1)}},
        {"advanced on", advanced(MENU_Advanced_Status), "r1 ok", {}, {"02810000 00 a8"}},
        {"port", advanced(MENU_Advanced_EthernetPort), "R1 ok", {}},
        {"port rows", advanced(MENU_Advanced_CabinetRow), "R1 ok", {}},
        {"port x", advanced(MENU_Advanced_HorOffset), "R9 ok", {}},
        {"port flow way", advanced(MENU_Advanced_FlowWay), "r2 ok", {}},
        {"applied",
         advanced(MENU_Advanced_Apply),
         "closed",
         {advancedForm(R"({"colCount":1,"layoutType":2,"offsetX":9,"offsetY":0,"portID":1,"rowCount":2})")}},
        {"cabinet file",
         {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_LoadCabFiles, MENU_CabinetFile2},
         "closed2",
         {cabinets("sendcfgfile", R"({"fileName":"1+P2.5-128x128.cab"})")}},
        {"save", screen(MENU_SavetoRVCard), "yes closed2", {solid}},
        {"test pattern", control(MENU_TestPattern), "", {shown(11, "111", 1)}},
        {"pure colours, down", pattern(MENU_Test_PureColor), "l5 ok",
         QStringList{shown(11, "111", 1)} + stepped({1, 1, 1, 1, 1}, {"111", "001", "010", "100", "000"}, 0)},
        {"gradient", pattern(MENU_Test_Gradient), "r7 ok",
         stepped({3, 3, 3, 3, 2, 2, 2, 2}, {"100", "010", "001", "111", "100", "010", "001", "111"}, 0)},
        {"grids", pattern(MENU_Test_Grid), "r5 ok",
         stepped({5, 4, 7, 8, 6, 9}, {"111", "111", "111", "111", "111", "111"}, 1)},
        {"spacing", pattern(MENU_Test_Spacing), "L2 ok", twice(shown(9, "111", 1, 130, 3))},
        {"test brightness", pattern(MENU_Test_Brightness), "R1 ok", twice(shown(9, "111", 1, 195, 3))},
        {"speed", pattern(MENU_Test_Speed), "R1 ok", twice(shown(9, "111", 1, 195, 3, 4))},
        {"end of the test", control(MENU_Normal), "", {screens("displaymode", R"({"value":0})")}},
    };
}
} // namespace

class TestStoryResource : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        // The option goes to the emulator behind those that the panel under test gives it.
        QVERIFY(m_panel.powerDevice({"sh", "-c", "exec \"$@\" --rest", "sh"}) && m_drive.startPanel());
        QVERIFY(m_walk.speak("fpd_ZH"));
        // Without a cable the panel is told every five seconds that nobody else holds it, which ends an edit
        // of the brightness, wherever that is.
        QVERIFY(m_panel.ask({"link", "usb", "1"}).ok && m_panel.waitForLog("usb_link == ") &&
                m_panel.settle());
    }

    /// Also after a row that failed on its way.
    void leave() override
    {
        if (std::exchange(m_isWell, true))
            return;
        for (const char *well : {"silent off", "delay 0", "status own", "off", "on"})
            QVERIFY(m_panel.ask(QStringList{"service"} + QString(well).split(' ')).ok);
    }

    /// Whether each request that has left since the mark comes to its end.
    bool everyRequestHasEnded()
    {
        return m_panel.waitUntil([this] {
            return m_panel.logLines("httpService::SendMsg:").size() ==
                   m_panel.logLines("succeed, index:").size() + m_panel.logLines("http return :").size();
        });
    }

private slots:
    void init() { QVERIFY(m_panel.ask({"requests", "--clear"}).ok); }

    void keysAsk_data()
    {
        QTest::addColumn<int>("line");
        const QVector<KeyRequests> lines = table();
        for (int line = 0; line < lines.size(); ++line)
            QTest::newRow(lines[line].name) << line;
    }
    /// And nothing else goes over the bus.
    void keysAsk()
    {
        QFETCH(int, line);
        const KeyRequests row = table()[line];
        const QString fault = m_drive.drive({row.path, row.keys, row.frames});
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
        QVERIFY2(m_panel.waitUntil([&] { return asked().size() >= row.requests.size(); }),
                 qPrintable(asked().join('\n')));
        QStringList asks = asked();
        QCOMPARE(asks.replaceInStrings(QRegularExpression("(?<= )/api/v1/device/"), "").join('\n'),
                 row.requests.join('\n'));
    }

    void theDeviceTellsThePanel()
    {
        QVERIFY(m_drive.home());
        // What the rows before have asked for is the device's state now.
        const QStringList state = m_panel.ask({"device", "show"}).lines;
        for (const char *line :
             {"  display: normal", "  test pattern: 15", "  test picture: brightness 4, spacing 3, speed 4",
              "  brightness: 0%", "  gamma: 2.9", "  colours: red 250, green 240, blue 250", "  mapping: off",
              "  quick configuration: 4 cabinets on the first port, flow way 1",
              "  quick form: 4 rows, 4 columns", "  advanced configuration: on",
              "  port 2: 2 rows, 1 columns", "  place of port 2: 9,0, flow way 2"})
            QVERIFY2(state.contains(line), line);
        QCOMPARE(resource({"put", "ScreenLowLatency", R"({"enable":true})", "id=255"}), 0);
        QVERIFY(waitUntilStored(MENU_LowLatency, "1"));
        QVERIFY(m_panel.ask({"device", "show"}).lines.contains("  low latency: on"));
        QCOMPARE(resource({"put", "ScreenLowLatency", R"({"enable":1})", "id=255"}), 1);
    }

    void aServiceThatIsNotWell_data()
    {
        QTest::addColumn<QStringList>(
            "fault"); // words of the console, or none for one that answers these bytes
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("log");
        const QString failed = "http return : brightness set faild error", done = "succeed, index: 1";
        const auto row = [](const char *name, const QStringList &fault, const QByteArray &bytes, int status,
                            const QString &log) { QTest::newRow(name) << fault << bytes << status << log; };
        const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: ";
        row("refusing", {"service", "off"}, {}, 2, failed);
        row("silent", {"service", "silent", "on"}, {}, 2, failed);
        row("slow", {"service", "delay", "900"}, {}, 0, done);
        row("500", {"service", "status", "500", R"({"code":0})"}, {}, 1, failed);
        row("garbage", {"service", "garbage"}, {}, 1, done);
        row("large", {}, head + "10000011\r\n\r\n{\"data\":\"" + QByteArray(10000000, 'x') + "\"}", 0, done);
        row("cut", {}, head + "100\r\n\r\n{\"data\":", 1, failed);
    }
    /// The panel shows and keeps the user's value as fast as with a service that is well, logs how each
    /// request ended, and changes nothing else.
    void aServiceThatIsNotWell()
    {
        QFETCH(QStringList, fault);
        QFETCH(QByteArray, bytes);
        QFETCH(int, status);
        QFETCH(QString, log);
        constexpr int graceMs = 200;
        QVERIFY(m_drive.home() && m_walk.go({MENU_ScreenBrightness}));
        m_panel.mark();
        const qint64 wellMs = stepMs();
        QVERIFY(waitUntilStored(MENU_ScreenBrightness, QString::number(m_brightness)));
        QVERIFY(everyRequestHasEnded());
        const QMap<QString, QString> before = m_panel.storedFields();
        const RudeServerThread rude(bytes);
        m_isWell = false;
        QVERIFY(fault.isEmpty() ? serveAt(rude.port()) : m_panel.ask(fault).ok);
        m_panel.mark();
        const qint64 illMs = stepMs();
        QVERIFY2(illMs <= 2 * wellMs + graceMs,
                 qPrintable(QString("a step takes %1 ms, and %2 ms without").arg(illMs).arg(wellMs)));
        QVERIFY(m_panel.waitForLog(log));
        QCOMPARE(resource({"--timeout", "1", "get", "Device_cfgfile"}), status);
        leave();
        // So that the next row begins with a service that is well.
        QVERIFY(everyRequestHasEnded());
        QVERIFY(waitUntilStored(MENU_ScreenBrightness, QString::number(m_brightness)));
        const QMap<QString, QString> after = m_panel.storedFields();
        QStringList changed;
        for (auto item = after.cbegin(); item != after.cend(); ++item)
            if (item.key() != itemnames::name(MENU_ScreenBrightness) && *item != before.value(item.key()))
                changed << item.key() + ": " + before.value(item.key()) + " -> " + *item;
        QCOMPARE(changed.join('\n'), QString());
        QVERIFY(m_walk.press(keys::Esc) && m_walk.home());
        QCOMPARE(resource({"get", "Device_cfgfile"}), 0);
    }

    /// The command has the whole catalogue, the device knows each path of it, and they mean the same. Some
    /// ask at the same time, so each has a number with it.
    void everyResourceIsAsked()
    {
        QCOMPARE(resource({"list"}), 0);
        const QStringList rows = m_output.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(rows.size(), 392);
        QStringList expected;
        std::deque<Command> running;
        const auto lastSucceeds = [&] {
            const int status = statusOf(*running.front());
            running.pop_front();
            return status == 0;
        };
        constexpr size_t atOnce = 4;
        for (const QString &row : rows) {
            QString path = row.section(' ', 1);
            const QString number = QString("n=%1").arg(expected.size());
            QStringList words{"--json", "get", row.section(' ', 0, 0), number};
            for (const char *name : {"id", "outputid", "type"}) {
                if (path.contains('{' + QString(name) + '}'))
                    words += QString(name) + "=7";
                path.replace('{' + QString(name) + '}', "7");
            }
            expected += "GET " + path + '?' + number;
            running.push_back(command(words));
            QVERIFY2(running.size() < atOnce || lastSucceeds(), qPrintable(row + ": " + m_output));
        }
        while (!running.empty())
            QVERIFY2(lastSucceeds(), qPrintable(m_output));
        QStringList came = asked();
        came.sort();
        expected.sort();
        QCOMPARE(came.join('\n'), expected.join('\n'));
    }

private:
    QStringList asked() { return m_panel.ask({"requests"}).lines; }
    /// fpd-resource against this device.
    using Command = std::unique_ptr<QProcess>;
    Command command(const QStringList &words)
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::MergedChannels);
        process->start(QCoreApplication::applicationDirPath() + "/../bin/fpd-resource",
                       QStringList{"--state", m_panel.statePath()} + words);
        return process;
    }
    /// Its exit status, once it has ended.
    int statusOf(QProcess &process)
    {
        if (!process.waitForFinished())
            return -1;
        m_output = QString::fromUtf8(process.readAll());
        return process.exitCode();
    }
    int resource(const QStringList &words) { return statusOf(*command(words)); }

    /// From the knob's step to the LCD, the middle one of some, each to another brightness.
    qint64 stepMs()
    {
        constexpr int steps = 5;
        std::array<qint64, steps> times{};
        constexpr int half = 50;
        m_brightness = m_panel.stored(MENU_ScreenBrightness).toInt();
        const Direction direction = m_brightness > half ? Left : Right;
        for (qint64 &time : times) {
            QElapsedTimer sinceStep;
            sinceStep.start();
            m_panel.turn(direction);
            m_brightness += direction == Right ? 1 : -1;
            if (!m_panel.waitFor(QString::number(m_brightness), QRect(200, 24, 120, 40)))
                return std::numeric_limits<int>::max();
            time = sinceStep.elapsed();
        }
        std::sort(times.begin(), times.end());
        return times[steps / 2];
    }
    /// For the panel the service is at that port.
    bool serveAt(quint16 port)
    {
        QFile file(m_panel.statePath() + "/ports");
        if (!file.open(QIODevice::ReadWrite))
            return false;
        const QString text =
            QString(file.readAll()).replace(QRegularExpression("(?<=\\b8001=)\\d+"), QString::number(port));
        return file.resize(0) && file.seek(0) && file.write(text.toUtf8()) == text.size();
    }

    FrameDrive m_drive{m_panel, m_walk};
    QString m_output;
    int m_brightness = 0;
    bool m_isWell = true; ///< the service
};

FPD_TEST(TestStoryResource)
#include "tst_storyresource.moc"
