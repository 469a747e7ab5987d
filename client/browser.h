// A real browser without a window, driven by the protocol of its developer tools: pages, mouse, fingers and
// keyboard. Main thread of its program.
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QWebSocket>
#include <memory>

class Browser;

class BrowserPage
{
public:
    BrowserPage(Browser &browser, const QString &session, const QString &target);
    ~BrowserPage();

    /// A screen of another kind: CSS pixels, the screen's own to one of them, fingers instead of a mouse.
    bool setScreen(const QSize &size, double ratio, bool touch);
    bool load(const QString &url);

    /// The value of an expression; that of a promise once it is kept.
    QJsonValue value(const QString &expression);
    /// Waits until it is true.
    bool becomes(const QString &expression);
    /// What a data: address holds, such as the picture of a canvas.
    QByteArray data(const QString &expression);
    QImage picture();

    /// The middle of what the selector finds, as the user would aim at it.
    QPointF middle(const QString &selector);
    /// Type: mousePressed, mouseReleased, mouseMoved.
    void mouse(const char *type, const QPointF &at, bool shift = false);
    void click(const QString &selector, bool shift = false);
    void wheel(const QPointF &at, int down);
    /// Where fingers are; none: all are off.
    void touch(const QVector<QPointF> &fingers);
    /// By the place of the key, such as "KeyQ", and what it types.
    void key(bool down, const QString &place, const QString &typed, int modifiers = 0);
    void tapKey(const QString &place, const QString &typed, int modifiers = 0);

    /// What the page has complained of since the last time.
    QStringList takeErrors();

private:
    QJsonObject call(const QString &method, const QJsonObject &parameters = {});

    Browser &m_browser;
    const QString m_session, m_target;
    bool m_isTouch = false;
};

class Browser
{
public:
    Browser();
    ~Browser();

    bool start();
    /// A new page; null if there is none to be had.
    std::unique_ptr<BrowserPage> open(const QString &url, const QSize &size = QSize(1000, 800));

private:
    friend class BrowserPage;

    /// The answer, empty if none comes.
    QJsonObject call(const QString &method, const QJsonObject &parameters,
                     const QString &session = QString());
    void take(const QString &text);

    QTemporaryDir m_profile;
    QProcess m_process;
    QWebSocket m_socket;
    int m_lastCall = 0;
    QHash<int, QJsonObject> m_answers;
    QHash<QString, QStringList> m_errors; ///< by page
};
