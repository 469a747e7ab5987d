// What the panel in a browser costs: the time from a key in the page to its picture there, the panel's CPU
// with viewers and without, and the emulator's memory for a viewer that stops reading. One line a question.
#include "client/browser.h"
#include "client/panel.h"
#include "client/procfs.h"
#include "fpd_hostlink.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace
{
double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values[values.size() / 2];
}

int freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
}

/// A viewer without a browser, which takes every picture at once.
class Viewer
{
public:
    explicit Viewer(int port)
    {
        QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket, [this] { ack(); });
        QObject::connect(&m_socket, &QWebSocket::binaryMessageReceived, &m_socket, [this] {
            ++m_pictures;
            ack();
        });
        m_socket.open(QUrl(QString("ws://127.0.0.1:%1/api/stream").arg(port)));
    }
    int pictures() const { return m_pictures; }

private:
    void ack() { m_socket.sendTextMessage(R"({"do":"ack"})"); }

    QWebSocket m_socket;
    int m_pictures = 0;
};

/// What the page waits for: the first picture behind a turn of the knob, and the browser's next frame with
/// it.
constexpr const char *turnAndWait = R"((() => new Promise(done => {
    const read = DataView.prototype.getBigInt64;
    const begin = performance.now();
    DataView.prototype.getBigInt64 = function(...all) {
        const changedUs = read.apply(this, all), shown = performance.now();
        DataView.prototype.getBigInt64 = read;
        requestAnimationFrame(() => setTimeout(() => done([shown - begin, performance.now() - begin, Number(changedUs)])));
        return changedUs;
    };
    const code = '%1';
    dispatchEvent(new KeyboardEvent('keydown', { code, key: code, cancelable: true }));
}))())";

/// The picture's own time is from the key word to the panel's drawing, both by the monotonic clock.
void measureKeys(Panel &panel, int port)
{
    constexpr int keys = 200;
    Browser browser;
    const auto page = browser.start() ? browser.open(QString("http://127.0.0.1:%1/").arg(port)) : nullptr;
    if (!page || !page->becomes("!document.getElementById('front').hidden")) {
        printf("there is no browser to measure in\n");
        return;
    }
    panel.ask({"go", "屏幕亮度"});
    QVector<double> shown, framed, own;
    for (int i = 0; i < keys; ++i) {
        panel.settle();
        const QJsonArray times =
            page->value(QString(turnAndWait).arg(i % 2 ? "ArrowLeft" : "ArrowRight")).toArray();
        if (times.size() < 3) {
            printf("the page does not answer\n");
            return;
        }
        const double sentMs = panel.ask({"sent"}).lines.value(0).toDouble() / 1e6;
        own << times[2].toDouble() / 1e3 - sentMs;
        shown << times[0].toDouble() - own.last();
        framed << times[1].toDouble() - own.last();
    }
    printf("%-46s %8.2f ms   worst %8.2f ms   of %d\n", "key to canvas over the picture's own time",
           median(shown), *std::max_element(shown.begin(), shown.end()), keys);
    printf("%-46s %8.2f ms\n", "  and to the browser's next frame", median(framed));
    printf("%-46s %8.2f ms\n", "the picture's own time", median(own));
}

/// CPU of the panel for so many turns of the knob, in ms.
double turnsMs(Panel &panel)
{
    constexpr int turns = 200, pauseMs = 20;
    const int id = procfs::panelOf(panel.statePath());
    const double before = procfs::cpuMs(id);
    for (int i = 0; i < turns; ++i) {
        panel.turn(i / 4 % 2 ? Left : Right);
        QTest::qWait(pauseMs);
    }
    return procfs::cpuMs(id) - before;
}

void measureViewers(Panel &panel, int port)
{
    constexpr int viewers = 5, rounds = 5;
    panel.ask({"go", "屏幕亮度"});
    QVector<double> alone, watched;
    int pictures = 0;
    (void)turnsMs(panel); // warm
    for (int round = 0; round < rounds; ++round) {
        alone << turnsMs(panel);
        std::vector<std::unique_ptr<Viewer>> all;
        for (int i = 0; i < viewers; ++i)
            all.push_back(std::make_unique<Viewer>(port));
        watched << turnsMs(panel);
        pictures += all.front()->pictures();
    }
    printf("%-46s %8.1f ms   with %d viewers %8.1f ms   %+.1f %%   (%d pictures to each)\n",
           "panel's CPU while the knob turns, median", median(alone), viewers, median(watched),
           (median(watched) / median(alone) - 1) * 100, pictures);
}

/// It asks for all that there is to be told, and then reads nothing of it.
void measureStalled(Panel &panel, int port)
{
    constexpr int rounds = 10;
    const int emulator = panel.emulatorId();
    QTcpSocket stalled;
    stalled.setReadBufferSize(1);
    (void)turnsMs(panel);
    const double before = procfs::memoryMb(emulator);
    stalled.connectToHost(QHostAddress::LocalHost, quint16(port));
    const auto frame = [](const QByteArray &text) {
        return QByteArray("\x81") + char(0x80 | text.size()) + QByteArray(4, '\0') + text;
    };
    stalled.write(
        "GET /api/stream HTTP/1.1\r\nHost: localhost\r\nUpgrade: websocket\r\nConnection: Upgrade\r\n"
        "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: AAAAAAAAAAAAAAAAAAAAAA==\r\n\r\n" +
        frame(R"({"do":"word","id":1,"words":["log","--follow"]})") +
        frame(R"({"do":"word","id":2,"words":["writes","--follow"]})"));
    double most = before;
    for (int i = 0; i < rounds; ++i) {
        (void)turnsMs(panel);
        most = qMax(most, procfs::memoryMb(emulator));
    }
    printf("%-46s %8.2f MB\n", "emulator's memory for a viewer that stops", most - before);
}
} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    const int port = freePort();
    Panel panel;
    panel.setOptions({"--web", QString::number(port)});
    if (!panel.startReady() || !panel.ask({"wait", "settled"}).ok) {
        printf("the panel does not start\n");
        return 1;
    }
    measureKeys(panel, port);
    measureViewers(panel, port);
    measureStalled(panel, port);
    return 0;
}
