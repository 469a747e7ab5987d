// The words that read the panel and act on what they read, beside the running panel: its LCD as data, waits,
// rules, the store and the walk through the menu.
#include "client/loglines.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
/// There is a pixel of the text's colour in its place, and one of another colour.
bool isInked(const QImage &lcd, const QJsonObject &text)
{
    constexpr int tolerance = 30; // of thin strokes, in each channel
    const QColor colour(text["colour"].toString());
    bool ink = false, paper = false;
    for (int y = text["y"].toInt(); y < text["y"].toInt() + text["height"].toInt(); ++y) {
        for (int x = text["x"].toInt(); x < text["x"].toInt() + text["width"].toInt(); ++x) {
            const QColor pixel = lcd.pixelColor(x, y);
            const int distance = qMax(qAbs(pixel.red() - colour.red()), qAbs(pixel.blue() - colour.blue()));
            (qMax(distance, qAbs(pixel.green() - colour.green())) <= tolerance ? ink : paper) = true;
        }
    }
    return ink && paper;
}
} // namespace

class TestSystemWords : public SystemTest
{
    Q_OBJECT
private slots:
    void init() { QVERIFY(goHome()); }
    void textsAreWhatTheLcdShows_data()
    {
        // path: from the home screen; empty: stay there
        // expected: in this order, perhaps with others between
        const DataRows<QStringList, QString, QStringList> row{"path", "typed", "expected"};
        row("home", {}, "",
            {"home field K2860", "home field Main", "home field HDMI1", "home field 1920x1080@60",
             "home field PIP1", "home field 未开启", "home field 60%", "home field Port"});
        row("menu", {"屏幕亮度"}, "",
            {"title 主菜单", "row label (focused) 屏幕亮度", "value (focused) 60%", "row label 图层设置"});
        row("value under edit", {"图层设置", "主图层", "水平宽度"}, "ok",
            {"row label 缩放模式", "value 自定义", "row label (focused) 水平宽度",
             "value (focused, edited) 1920"});
        row("list", {"图层设置", "主图层", "状态"}, "ok",
            {"title 主图层", "row label (focused, list open) 状态", "list entry (focused) 开",
             "row label 输入源", "list entry 关", "row label 缩放模式", "row label 水平宽度"});
        row("list of the second row", {"图层设置", "主图层", "输入源"}, "ok right:1",
            {"row label 状态", "list entry HDMI1", "row label (focused, list open) 输入源",
             "list entry (focused) HDMI2"});
        row("question", {"恢复出厂设置", "全部重置"}, "ok",
            {"message 是否重置所有参数？", "button 是", "button (focused) 否", "title (cut) 恢复出厂设置"});
        row("actions of a preset", {"预设设置", "Concert"}, "ok",
            {"message Concert", "message 保存", "message (focused) 调用", "message 清除", "message 复制到"});
        row("actions of an empty preset", {"预设设置", "预设3"}, "ok",
            {"message (focused) 保存", "message (disabled) 调用", "message (disabled) 清除",
             "message (disabled) 复制到"});
        row("address", {"通讯设置", "网络设置", "IP地址"}, "ok",
            {"row label (focused) IP地址", "value (focused, edited) 192", "value (focused) 168",
             "value (focused) 0"});
    }

    void textsAreWhatTheLcdShows()
    {
        const auto [path, typed, expected] =
            fetched<QStringList, QString, QStringList>({"path", "typed", "expected"});
        if (!path.isEmpty()) {
            const Answer walked = m_panel.ask(QStringList{"go"} + path);
            QVERIFY2(walked.ok, qPrintable(walked.error));
        }
        QVERIFY(keys(typed));
        const QStringList shown = texts();
        int from = 0;
        for (const QString &text : expected) {
            from = shown.indexOf(text, from) + 1;
            QVERIFY2(from > 0, qPrintable(text + " is not in its place among\n" + shown.join('\n')));
        }
        // What is told stands there in its colour.
        const QImage lcd = m_panel.screen();
        const QByteArray json = m_panel.ask({"screen", "text", "--json"}).lines.value(0).toUtf8();
        const QJsonArray all = QJsonDocument::fromJson(json).array();
        QCOMPARE(all.size(), shown.size());
        for (const QJsonValue &text : all)
            QVERIFY2(isInked(lcd, text.toObject()), qPrintable(text["text"].toString()));
    }

    void textsAreShortenedAndCovered()
    {
        // The name takes turns with the address.
        const QString name(32, 'W');
        QVERIFY(m_panel.ask({"rename", name}).ok);
        QVERIFY(m_panel.waitUntil([&] {
            const QJsonObject shown = byName("labIp");
            return shown["text"].toString().startsWith("WWW") &&
                   (shown["cut"].toBool() || shown["whole"].toString() == name);
        }));
        QVERIFY(m_panel.ask({"rename", ""}).ok);
        // A window over the middle of the home screen.
        QVERIFY(keys("ok+esc:hold"));
        const QJsonObject window = byName("labTip"), below = byName("labScreenRes");
        QVERIFY(keys("ok+esc:hold"));
        QVERIFY(window["text"].toString() == "已锁定" && !window.contains("cut"));
        QVERIFY(below["text"].toString() == "1920x1080@60" && below["cut"].toBool());
        QVERIFY(m_panel.ask({"wait", "text", "已", "--gone"}).ok);
    }

    void wordsEnd_data()
    {
        // said: the first line of the answer, or a part of the reason
        const DataRows<QStringList, QString> row{"words", "said"};
        row({"wait", "text", "1920x1080"}, "");
        row({"WAIT", "TEXT", "1920x1080"}, "");
        row({"wait", "text", "nosuch", "0.2"}, "time-out: waited 0.2 s in vain");
        row({"wait", "text", "nosuch", "--gone"}, "");
        row({"wait", "text", "1920x1080", "--gone", "0.2"}, "time-out");
        row({"wait", "text"}, "usage: wait ready|settled");
        row({"wait", "screen", "moving"}, "\"moving\" is not still");
        row({"wait", "settled"}, "");
        row({"wait", "value", "1", "60"}, "");
        row({"wait", "value", "screenbrightness", "60"}, "");
        row({"wait", "value", "1", "61", "0.3"}, "time-out");
        row({"wait", "value", "Status", "1"}, "Status is the name of 10 items: 1040 ");
        row({"store", "get", "ScreenBrightness"}, "60");
        row({"store", "get", "1"}, "60");
        row({"store", "get", "1", "--json"}, "{\"Choice\":");
        row({"store", "get", "nosuch"}, "the store has no item nosuch");
        row({"store", "get"}, "ITEM is missing");
        row({"store", "list", "Status"}, "1040 Status 0");
        row({"store", "list"}, "1 ScreenBrightness 60");
        row({"go"}, "PATH is missing");
        row({"go", "nosuch"}, "the page \"主菜单\" has no row \"nosuch\" that the cursor comes to; it has ");
        row({"go", "屏幕亮度", "状态"}, "\"屏幕亮度\" opens no page");
        row({"go", "恢复出厂设置", "全部重置", "nosuch"},
            "behind \"全部重置\" the panel says \"是否重置所有参数？");
        row({"when", "text", "x", "key", "nosuch"}, "no such key: nosuch");
        row({"when", "text", "x", "ok"}, "\"ok\" is not key");
        row({"when", "text", "", "key", "ok"}, "TEXT is empty");
        row({"when"}, "");
        row({"when", "--json"}, "[]");
    }

    void wordsEnd()
    {
        const auto [words, said] = fetched<QStringList, QString>({"words", "said"});
        const Answer answer = m_panel.ask(words);
        const QString text = answer.ok ? answer.lines.value(0) : answer.error;
        QVERIFY2(said.isEmpty() ? answer.ok && text.isEmpty() : text.contains(said), qPrintable(text));
    }

    void walksArrive_data()
    {
        // expected: among the texts
        const DataRows<QStringList, QStringList> row{"path", "expected"};
        row({"通讯设置"},
            {"title 主菜单", "row label (focused) 通讯设置"}); // the last row but one, below the first screen
        row({"屏幕亮度"}, {"title 主菜单", "row label (focused) 屏幕亮度"}); // and back from there
        row({"图层设置", "主图层", "输入截取"}, {"title 主图层", "row label (focused) 输入截取"});
        row({"输入设置", "hdmi1", "EDID", "--open"}, {"title EDID", "button 应用"});
        row({"高级设置", "同步", "同步源"}, {"title 同步", "row label (focused) 同步源"});
    }

    void walksArrive()
    {
        const auto [path, expected] = fetched<QStringList, QStringList>({"path", "expected"});
        const Answer walked = m_panel.ask(QStringList{"go"} + path);
        QVERIFY2(walked.ok, qPrintable(walked.error));
        const QStringList shown = texts();
        for (const QString &text : expected)
            QVERIFY2(shown.contains(text), qPrintable(shown.join('\n')));
    }

    void aRuleActsWhenItsTextAppears()
    {
        const auto pressed = [this] { return m_panel.ask({"when"}).lines.value(0); };
        QVERIFY(m_panel.ask({"when", "text", "主菜单", "key", "main"}).ok);
        QCOMPARE(pressed(), QString("when text \"主菜单\" key main: pressed 0 times"));
        // Into the menu, and back into it from the page that the rule has opened, which has one above it.
        for (const char *way : {"ok", "esc esc"}) {
            const QString before = pressed();
            QVERIFY(keys(way) && m_panel.waitUntil([&] { return pressed() != before; }));
            QVERIFY(m_panel.ask({"wait", "text", "主图层"}).ok &&
                    m_panel.ask({"wait", "screen", "still"}).ok);
        }
        QVERIFY2(pressed().contains("pressed 2 times"), qPrintable(pressed()));
        QVERIFY(m_panel.ask({"when", "clear"}).ok && goHome() && keys("ok"));
        QVERIFY(texts().contains("title 主菜单"));
    }

    void waitsEndWithWhatTheyWaitFor()
    {
        // Each is asked before it happens.
        const auto waits = [this](const QStringList &words, const std::function<bool()> &act) {
            ConsoleClient client;
            client.connectTo(m_panel.statePath());
            client.begin(QStringList{"wait"} + words);
            return act() && client.finish(30000).ok;
        };
        QVERIFY(waits({"text", "主菜单"}, [this] { return m_panel.press("ok"); }));
        QVERIFY(waits({"text", "主菜单", "--gone"}, [this] { return m_panel.press("esc"); }));
        QVERIFY(waits({"log", loglines::okReleased}, [this] { return m_panel.press("ok"); }));
        QVERIFY(waits({"value", "ScreenBrightness", "61"}, [this] {
            return m_panel.ask({"go", "屏幕亮度"}).ok && keys("ok right:1 ok");
        }));
    }

    void aPanelThatIsDownHasNoTexts()
    {
        QVERIFY(m_panel.ask({"panel", "kill"}).ok);
        for (const QStringList &words : {QStringList{"screen", "text"},
                                         {"go", "屏幕亮度"},
                                         {"wait", "screen", "still", "0.5"},
                                         {"wait", "text", "Port", "0.2"}}) {
            const Answer answer = m_panel.ask(words);
            QVERIFY2(!answer.ok && !answer.error.isEmpty(), qPrintable(words.join(' ')));
        }
        QVERIFY(startAgain());
        QVERIFY(m_panel.ask({"wait", "text", "Port"}).ok);
        QVERIFY(texts().contains("home field K2860"));
    }

private:
    bool goHome()
    {
        constexpr int mostPresses = 30; // a message that saves something takes none for some seconds
        if (texts().contains("home field Port"))
            return true;
        for (int i = 0; i < mostPresses; ++i)
            if (m_panel.press("esc") && m_panel.ask({"wait", "text", "Port", "0.3"}).ok)
                return m_panel.ask({"wait", "screen", "still"}).ok;
        return false;
    }
    /// "ROLE (STATE) TEXT" of the texts on the LCD.
    QStringList texts()
    {
        QStringList lines;
        for (const QString &line : m_panel.ask({"screen", "text"}).lines)
            lines << line.section("  ", 1).simplified();
        return lines;
    }
    /// The text of the widget with that name.
    QJsonObject byName(const QString &name)
    {
        const QByteArray json = m_panel.ask({"screen", "text", "--json"}).lines.value(0).toUtf8();
        for (const QJsonValue &text : QJsonDocument::fromJson(json).array())
            if (text["name"].toString() == name)
                return text.toObject();
        return {};
    }
    /// Keys and knob words by their names, such as "ok right:2 ok".
    bool keys(const QString &keys)
    {
        for (const QString &key : keys.split(' ', Qt::SkipEmptyParts)) {
            const QStringList parts = key.split(':');
            const bool done = parts[0] == "right" ? m_panel.turn(Right, parts.value(1).toInt())
                                                  : m_panel.ask({"key", parts[0], parts.value(1, "tap")}).ok;
            if (!done)
                return false;
        }
        return m_panel.ask({"wait", "screen", "still"}).ok;
    }
};

FPD_TEST(TestSystemWords)

#include "tst_systemwords.moc"
