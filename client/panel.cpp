#include "client/panel.h"

#include "client/lcdtext.h"
#include "client/loglines.h"
#include "client/names/itemnames.h"
#include "client/procfs.h"
#include "fpd_hostlink.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QThread>
#include <QXmlStreamReader>
#include <algorithm>

int panelSlowness()
{
    static const int slowness = qMax(1, qEnvironmentVariableIntValue("FPD_SLOWNESS"));
    return slowness;
}

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
const int patienceMs = 90000 * panelSlowness();
#else
const int patienceMs = 30000 * panelSlowness();
#endif
constexpr int lookMs = 10;
const int stillMs = 50 * panelSlowness();
const int busyMs = 1000 * panelSlowness();
const QString storeFile = "/usr/vask/etc/fpd/config/config.xml";

QDomElement itemElement(const QDomDocument &store, int item)
{
    QDomElement element = store.documentElement().firstChildElement("Items");
    while (!element.isNull() && element.attribute("Index").toInt() != item)
        element = element.nextSiblingElement("Items");
    return element;
}

/// False if the file does not end as it should.
bool readFields(QFile &file, QMap<QString, QString> &fields)
{
    QXmlStreamReader xml(&file);
    QString item;
    QString list;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.name().toString();
        QString field;
        if (name == "Items")
            item = itemnames::name(xml.attributes().value("Index").toInt());
        else if (name == "Params" || name == "Params1")
            list = item + '/' + name;
        else if (name == "param")
            field = list + '/' + xml.attributes().value("paramName").toString();
        else
            field = name == "Value" ? item : item + '/' + name;
        if (!item.isEmpty() && !field.isEmpty())
            fields.insert(field, xml.readElementText());
    }
    file.close();
    return !xml.hasError();
}

/// A text is that one or holds it, wherever its lines are broken; some of it lies in the area, if one is
/// given.
bool holds(const QJsonArray &texts, const QString &text, const QRect &area)
{
    return std::any_of(texts.begin(), texts.end(), [&](const QJsonValue &value) {
        QString shown = value["text"].toString();
        const QRect place(value["x"].toInt(), value["y"].toInt(), value["width"].toInt(),
                          value["height"].toInt());
        return (area.isNull() || area.intersects(place)) &&
               (shown.contains(text) || QString(shown).remove('\n').contains(text) ||
                shown.replace('\n', ' ').contains(text));
    });
}

QString buildFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/..");
}
} // namespace

Panel::Panel() : m_folder(QDir::tempPath() + "/fpd-XXXXXX"), m_state(m_folder.path() + "/state") {}

Panel::~Panel()
{
    stop();
}

bool Panel::powerDevice(const QStringList &wrapper)
{
    QStringList command = wrapper;
    command << buildFolder() + "/bin/fpd-emulator"
            << "--headless"
            << "--no-panel"
            << "--state" << m_state << m_options;
    m_emulator.setProcessChannelMode(QProcess::MergedChannels);
    m_emulator.start(command.takeFirst(), command);
    m_console = std::make_unique<ConsoleClient>();
    const bool connected = waitUntil(
        [this] { return m_emulator.state() == QProcess::NotRunning || m_console->connectTo(m_state); });
    if (!connected || m_emulator.state() == QProcess::NotRunning)
        return false;
    m_logConsole = std::make_unique<ConsoleClient>();
    if (!m_logConsole->connectTo(m_state))
        return false;
    m_logConsole->begin({"log", "--follow", "--plain"});
    return true;
}

bool Panel::start()
{
    mark();
    return ask({"panel", "start"}).ok && waitForLog(loglines::started);
}

bool Panel::startReady()
{
    return powerDevice() && start() && ask({"wait", "ready", QString::number(patienceMs / 1000)}).ok;
}

void Panel::stop()
{
    if (m_emulator.state() == QProcess::NotRunning)
        return;
    m_emulator.terminate();
    if (!m_emulator.waitForFinished(patienceMs))
        m_emulator.kill();
    m_emulator.waitForFinished();
}

void Panel::kill()
{
    m_emulator.kill();
    m_emulator.waitForFinished();
}

bool Panel::turn(Direction direction, int steps, int speed)
{
    return ask({"knob", direction == Left ? "left" : "right", QString::number(steps), QString::number(speed)})
        .ok;
}

Answer Panel::ask(const QStringList &words)
{
    return m_console->ask(words, patienceMs);
}

bool Panel::askAll(const QList<QStringList> &requests)
{
    return m_console->askAll(requests, patienceMs);
}

QImage Panel::screen() const
{
    QFile file(m_state + hostlink::lcdFile);
    QImage picture(hostlink::lcdWidth, hostlink::lcdHeight, QImage::Format_RGB32);
    if (!file.open(QIODevice::ReadOnly))
        return picture;
    const uchar *memory = file.map(0, hostlink::lcdFileSize);
    const auto *counter = reinterpret_cast<const volatile quint64 *>(memory + hostlink::lcdBytes);
    quint64 before;
    do {
        before = *counter;
        memcpy(picture.bits(), memory, hostlink::lcdBytes);
    } while (before % 2 != 0 || *counter != before);
    return picture;
}

/// A panel that has work to do, though it may not come to it, has not answered yet.
bool Panel::isBusy()
{
    if (procfs::read(QString("/proc/%1/comm").arg(m_process)) != "fpd\n")
        m_process = procfs::panelOf(m_state);
    return m_process != 0 && (threads::isBusy(m_process, "keypad") || threads::isBusy(m_process, "fpd"));
}

bool Panel::settle()
{
    const auto changes = [this] {
        QFile file(m_state + hostlink::lcdFile);
        quint64 counter = 0;
        if (file.open(QIODevice::ReadOnly) && file.seek(hostlink::lcdBytes))
            file.read(reinterpret_cast<char *>(&counter), sizeof counter);
        return counter;
    };
    quint64 seen = changes();
    // Still, and at rest; a panel that is kept busy by something else is taken by its LCD alone.
    QElapsedTimer still, rest, passed;
    still.start();
    rest.start();
    passed.start();
    while (!rest.hasExpired(stillMs) && !still.hasExpired(busyMs)) {
        QThread::msleep(lookMs);
        const quint64 now = changes();
        if (now != seen)
            still.restart();
        if (now != seen || isBusy())
            rest.restart();
        seen = now;
        if (passed.hasExpired(patienceMs))
            return false;
    }
    return true;
}

QJsonValue Panel::texts()
{
    const Answer answer = ask({"screen", "text", "--json"});
    return answer.ok ? QJsonDocument::fromJson(answer.lines.value(0).toUtf8()).array() : QJsonValue();
}

bool Panel::shows(const QString &text, const QRect &area)
{
    return holds(texts().toArray(), text, area);
}

bool Panel::waitFor(const QString &text, const QRect &area)
{
    return waitUntil([this, &text, &area] { return shows(text, area); });
}

bool Panel::waitUntilGone(const QString &text)
{
    return waitUntil([this, &text] {
        const QJsonValue seen = texts();
        return seen.isArray() && !holds(seen.toArray(), text, QRect());
    });
}

bool Panel::draws(const QString &text, int pixels, const QRect &area, const QString &family) const
{
    QFont font(family);
    font.setPixelSize(pixels);
    return !lcdtext::find(screen(), text, font, area).isEmpty();
}

bool Panel::waitToDraw(const QString &text, int pixels, const QRect &area, const QString &family) const
{
    return waitUntil([&] { return draws(text, pixels, area, family); });
}

bool Panel::waitUntil(const std::function<bool()> &condition) const
{
    QElapsedTimer passed;
    passed.start();
    while (!condition()) {
        if (passed.hasExpired(patienceMs))
            return false;
        QThread::msleep(lookMs);
        QCoreApplication::processEvents();
    }
    return true;
}

void Panel::mark()
{
    readLog(0);
    m_mark = m_log.size();
}

bool Panel::waitForLog(const QString &text)
{
    QElapsedTimer passed;
    passed.start();
    while (logLines(text).isEmpty()) {
        if (passed.hasExpired(patienceMs))
            return false;
        readLog(patienceMs - int(passed.elapsed()));
    }
    return true;
}

QStringList Panel::logLines(const QString &text)
{
    readLog(0);
    return m_log.mid(m_mark).filter(text);
}

void Panel::stopFollowingLog()
{
    readLog(0);
    m_logConsole.reset();
}

QDomDocument Panel::store() const
{
    QFile file(m_state + storeFile);
    QDomDocument document;
    if (file.open(QIODevice::ReadOnly))
        document.setContent(&file);
    return document;
}

QString Panel::stored(int item, const QString &field) const
{
    return itemElement(store(), item).firstChildElement(field).text();
}

QMap<QString, QString> Panel::storedFields() const
{
    QMap<QString, QString> fields;
    QFile file(m_state + storeFile);
    // The panel writes the file in place: it may be empty or cut off at this moment.
    const bool whole = waitUntil([&fields, &file] {
        fields.clear();
        return file.open(QIODevice::ReadOnly) && readFields(file, fields);
    });
    return whole ? fields : QMap<QString, QString>();
}

bool Panel::setStored(int item, const QString &value, const QString &field)
{
    QDomDocument document = store();
    QDomElement element = itemElement(document, item).firstChildElement(field.section('/', 0, 0));
    if (field.contains('/')) {
        element = element.firstChildElement("param");
        while (!element.isNull() && element.attribute("paramName") != field.section('/', 1))
            element = element.nextSiblingElement("param");
    }
    QFile file(m_state + storeFile);
    if (element.isNull() || !file.open(QIODevice::WriteOnly))
        return false;
    while (element.hasChildNodes())
        element.removeChild(element.firstChild());
    element.appendChild(document.createTextNode(value));
    return file.write(document.toByteArray(4)) > 0;
}

QString Panel::damage()
{
    readLog(0);
    const QStringList signs = m_log.filter(QRegularExpression("(Address|Thread|Leak)Sanitizer|runtime error:|"
                                                              "ASSERT|Segmentation"));
    if (!signs.isEmpty())
        return m_log.mid(m_log.indexOf(signs.first()), 40).join('\n');
    m_emulator.waitForReadyRead(0);
    const QString output = QString::fromUtf8(m_emulator.readAll());
    return output.contains("the panel ") || output.contains("Sanitizer") ? output : QString();
}

void Panel::keepEvidence(const QString &name)
{
    const QDir folder(buildFolder() + "/screens");
    folder.mkpath(".");
    screen().save(folder.filePath(name + ".png"));
    QFile file(folder.filePath(name + ".log"));
    readLog(0);
    if (file.open(QIODevice::WriteOnly))
        file.write(m_log.join('\n').toUtf8());
}

void Panel::readLog(int timeoutMs)
{
    if (m_logConsole)
        m_log += m_logConsole->newLines(timeoutMs);
}
