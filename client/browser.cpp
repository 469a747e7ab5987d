#include "client/browser.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>
#include <unistd.h>

namespace
{
constexpr int patienceMs = 30000;

QJsonObject point(const QPointF &at)
{
    return {{"x", at.x()}, {"y", at.y()}};
}

/// What the page or the network says of something gone wrong; empty if it is nothing of the kind.
QString errorIn(const QString &method, const QJsonObject &parameters)
{
    if (method == "Runtime.exceptionThrown") {
        const QJsonObject details = parameters["exceptionDetails"].toObject();
        return details["text"].toString() + ' ' + details["exception"]["description"].toString();
    }
    if (method == "Runtime.consoleAPICalled" && parameters["type"] == "error")
        return QJsonDocument(parameters["args"].toArray()).toJson();
    if (method == "Log.entryAdded" && parameters["entry"]["level"] == "error")
        return parameters["entry"]["text"].toString();
    return QString();
}
} // namespace

Browser::Browser()
{
    QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket,
                     [this](const QString &text) { take(text); });
}

Browser::~Browser()
{
    m_socket.disconnect();
    m_process.terminate();
    if (!m_process.waitForFinished(patienceMs))
        m_process.kill();
    m_process.waitForFinished();
}

bool Browser::start()
{
    QStringList options{"--headless=new",
                        "--remote-debugging-port=0",
                        "--user-data-dir=" + m_profile.path(),
                        "--no-first-run",
                        "--disable-gpu",
                        "--disable-extensions",
                        "--disable-background-networking",
                        "--disable-component-update",
                        "--disable-dev-shm-usage",
                        "--hide-scrollbars",
                        "--force-color-profile=srgb"};
    if (getuid() == 0) // its own guard does not work for root, as in a container
        options << "--no-sandbox";
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start("chromium", options);
    QRegularExpressionMatch address;
    QString said;
    const bool listens = QTest::qWaitFor(
        [&] {
            said += QString::fromUtf8(m_process.readAll());
            address = QRegularExpression("DevTools listening on (ws://\\S+)").match(said);
            return address.hasMatch() || m_process.state() == QProcess::NotRunning;
        },
        patienceMs);
    if (!listens || !address.hasMatch()) {
        qWarning("no browser: %s", qPrintable(said));
        return false;
    }
    m_socket.open(QUrl(address.captured(1)));
    return QTest::qWaitFor([this] { return m_socket.isValid(); }, patienceMs);
}

std::unique_ptr<BrowserPage> Browser::open(const QString &url, const QSize &size)
{
    // A context of its own: two pages are two users.
    const QJsonObject context = call("Target.createBrowserContext", {});
    const QJsonObject target = call(
        "Target.createTarget", {{"url", "about:blank"}, {"browserContextId", context["browserContextId"]}});
    const QJsonObject session =
        call("Target.attachToTarget", {{"targetId", target["targetId"]}, {"flatten", true}});
    if (!session.contains("sessionId"))
        return nullptr;
    auto page =
        std::make_unique<BrowserPage>(*this, session["sessionId"].toString(), target["targetId"].toString());
    return page->setScreen(size, 1, false) && page->load(url) ? std::move(page) : nullptr;
}

QJsonObject Browser::call(const QString &method, const QJsonObject &parameters, const QString &session)
{
    const int id = ++m_lastCall;
    QJsonObject message{{"id", id}, {"method", method}, {"params", parameters}};
    if (!session.isEmpty())
        message.insert("sessionId", session);
    m_socket.sendTextMessage(QString::fromUtf8(QJsonDocument(message).toJson(QJsonDocument::Compact)));
    if (!QTest::qWaitFor([&] { return m_answers.contains(id); }, patienceMs))
        qWarning("the browser does not answer %s", qPrintable(method));
    const QJsonObject answer = m_answers.take(id);
    if (answer.contains("error"))
        qWarning("%s: %s", qPrintable(method), qPrintable(answer["error"]["message"].toString()));
    return answer["result"].toObject();
}

void Browser::take(const QString &text)
{
    const QJsonObject message = QJsonDocument::fromJson(text.toUtf8()).object();
    if (message.contains("id")) {
        m_answers.insert(message["id"].toInt(), message);
        return;
    }
    const QString error = errorIn(message["method"].toString(), message["params"].toObject());
    if (!error.isEmpty())
        m_errors[message["sessionId"].toString()] << error;
}

BrowserPage::BrowserPage(Browser &browser, const QString &session, const QString &target)
    : m_browser(browser), m_session(session), m_target(target)
{
    for (const char *domain : {"Page.enable", "Runtime.enable", "Log.enable"})
        call(domain);
}

BrowserPage::~BrowserPage()
{
    m_browser.call("Target.closeTarget", {{"targetId", m_target}});
}

QJsonObject BrowserPage::call(const QString &method, const QJsonObject &parameters)
{
    return m_browser.call(method, parameters, m_session);
}

bool BrowserPage::setScreen(const QSize &size, double ratio, bool touch)
{
    call("Emulation.setDeviceMetricsOverride", {{"width", size.width()},
                                                {"height", size.height()},
                                                {"deviceScaleFactor", ratio},
                                                {"mobile", touch}});
    call("Emulation.setTouchEmulationEnabled", {{"enabled", touch}});
    // As if it were in front: one behind gets no focus and few pictures.
    call("Emulation.setFocusEmulationEnabled", {{"enabled", true}});
    return becomes(QString("innerWidth === %1 && innerHeight === %2").arg(size.width()).arg(size.height()));
}

bool BrowserPage::load(const QString &url)
{
    return !call("Page.navigate", {{"url", url}}).contains("errorText") &&
           becomes("document.readyState === 'complete'");
}

QJsonValue BrowserPage::value(const QString &expression)
{
    const QJsonObject answer = call(
        "Runtime.evaluate", {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
    if (answer.contains("exceptionDetails"))
        qWarning("%s: %s", qPrintable(expression),
                 qPrintable(answer["exceptionDetails"]["exception"]["description"].toString()));
    return answer["result"]["value"];
}

bool BrowserPage::becomes(const QString &expression)
{
    return QTest::qWaitFor([&] { return value(expression).toBool(); }, patienceMs);
}

QByteArray BrowserPage::data(const QString &expression)
{
    return QByteArray::fromBase64(value(expression).toString().section(',', 1).toLatin1());
}

QImage BrowserPage::picture()
{
    return QImage::fromData(
        QByteArray::fromBase64(call("Page.captureScreenshot")["data"].toString().toLatin1()));
}

QPointF BrowserPage::middle(const QString &selector)
{
    const QJsonArray place =
        value(QString("(() => { const box = document.querySelector('%1').getBoundingClientRect();"
                      " return [box.x + box.width / 2, box.y + box.height / 2]; })()")
                  .arg(selector))
            .toArray();
    return QPointF(place[0].toDouble(), place[1].toDouble());
}

void BrowserPage::mouse(const char *type, const QPointF &at, bool shift)
{
    constexpr int shiftModifier = 8;
    QJsonObject event = point(at);
    event.insert("type", type);
    event.insert("button", "left");
    event.insert("clickCount", 1);
    event.insert("modifiers", shift ? shiftModifier : 0);
    call("Input.dispatchMouseEvent", event);
}

void BrowserPage::click(const QString &selector, bool shift)
{
    const QPointF at = middle(selector);
    mouse("mousePressed", at, shift);
    mouse("mouseReleased", at, shift);
}

void BrowserPage::wheel(const QPointF &at, int down)
{
    QJsonObject event = point(at);
    event.insert("type", "mouseWheel");
    event.insert("deltaX", 0);
    event.insert("deltaY", down);
    call("Input.dispatchMouseEvent", event);
}

void BrowserPage::touch(const QVector<QPointF> &fingers)
{
    QJsonArray points;
    for (const QPointF &finger : fingers) {
        QJsonObject place = point(finger);
        place.insert("id", points.size());
        points.append(place);
    }
    call("Input.dispatchTouchEvent", {{"type", points.isEmpty() ? "touchEnd"
                                               : m_isTouch      ? "touchMove"
                                                                : "touchStart"},
                                      {"touchPoints", points}});
    m_isTouch = !points.isEmpty();
}

void BrowserPage::key(bool down, const QString &place, const QString &typed, int modifiers)
{
    call(
        "Input.dispatchKeyEvent",
        {{"type", down ? "rawKeyDown" : "keyUp"}, {"code", place}, {"key", typed}, {"modifiers", modifiers}});
}

void BrowserPage::tapKey(const QString &place, const QString &typed, int modifiers)
{
    key(true, place, typed, modifiers);
    key(false, place, typed, modifiers);
}

QStringList BrowserPage::takeErrors()
{
    return m_browser.m_errors.take(m_session);
}
