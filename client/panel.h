// The panel with the device around it, for programs that act and look like a user: press, turn, read the LCD.
// Every Panel has a fresh state folder, its own emulator and its own panel process. GUI thread of its
// program.
#pragma once

#include "client/consoleclient.h"

#include <QDomDocument>
#include <QImage>
#include <QJsonValue>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <memory>

/// Keys as the console names them.
namespace keys
{
constexpr const char *Ok = "ok";
constexpr const char *Esc = "esc";
constexpr const char *Main = "main";
constexpr const char *Pip1 = "pip1";
constexpr const char *Pip2 = "pip2";
constexpr const char *Fn = "fn";
constexpr const char *Freeze = "freeze";
constexpr const char *Test = "test";
constexpr const char *Preset = "preset";
} // namespace keys

enum Direction { Left, Right };

/// How many times as slow as a PC's the panel is, such as one for another processor: FPD_SLOWNESS, else 1.
int panelSlowness();

class Panel
{
public:
    Panel();
    ~Panel();

    /// Starts the device with the panel still off; wrapper: a command to start the emulator with.
    bool powerDevice(const QStringList &wrapper = {});
    /// The emulator is started with these, too.
    void setOptions(const QStringList &options) { m_options = options; }
    /// The emulator dies, and the panel with it.
    void kill();
    /// Starts the panel and waits until its start-up has ended.
    bool start();
    /// The device and the panel, up to the picture of what the device has told.
    bool startReady();
    void stop();

    bool press(const QString &key) { return ask({"key", key}).ok; }
    bool hold(const QString &key) { return ask({"key", key, "hold"}).ok; }
    bool turn(Direction direction, int steps = 1, int speed = 1);
    Answer ask(const QStringList &words);
    /// Many requests at once; false if one was refused.
    bool askAll(const QList<QStringList> &requests);

    QImage screen() const;
    /// Waits until the LCD has stood still for a moment.
    bool settle();
    /// A text on the LCD is that one or holds it; some of it lies in the area, if one is given.
    bool shows(const QString &text, const QRect &area = QRect());
    /// Waits until it does.
    bool waitFor(const QString &text, const QRect &area = QRect());
    /// Waits until it does not.
    bool waitUntilGone(const QString &text);
    /// The text is drawn in that one font, for what is gone before all fonts are tried and for its size.
    bool draws(const QString &text, int pixels, const QRect &area = QRect(),
               const QString &family = "宋体") const;
    bool waitToDraw(const QString &text, int pixels, const QRect &area = QRect(),
                    const QString &family = "宋体") const;
    bool waitUntil(const std::function<bool()> &condition) const;

    /// From here on the log is looked at.
    void mark();
    /// Waits until the log holds the text, behind the mark.
    bool waitForLog(const QString &text);
    /// Lines behind the mark with that text, by now.
    QStringList logLines(const QString &text);
    /// What is logged from now on is left to another reader: too much of it would come.
    void stopFollowingLog();

    /// As they are lit at this moment, LED 0 first.
    QString leds() { return ask({"leds", "--now"}).lines.value(0); }
    /// Register writes: ADDRESS DEVTYPE BYTES.
    QStringList writes() { return ask({"writes", "--plain"}).lines; }
    /// A field of an item in config.xml, as "Value".
    QString stored(int item, const QString &field = "Value") const;
    /// All of config.xml: values by "ITEM", other fields by "ITEM/Enable" and "ITEM/Params1/KEY".
    QMap<QString, QString> storedFields() const;

    /// Changes a field in config.xml, such as "Value" or "Params/KEY", while the panel is off.
    bool setStored(int item, const QString &value, const QString &field = "Value");

    int emulatorId() const { return int(m_emulator.processId()); }
    QString statePath() const { return m_state; }
    QString file(const QString &boardPath) const { return m_state + boardPath; }
    /// What a sanitizer or a crash left behind, empty if nothing.
    QString damage();
    /// Keeps the LCD's picture and the end of the log below the build folder.
    void keepEvidence(const QString &name);

private:
    /// What stands on the LCD; no array if the panel does not answer.
    QJsonValue texts();
    void readLog(int timeoutMs);
    bool isBusy();
    QDomDocument store() const;

    QTemporaryDir m_folder;
    QString m_state;
    QStringList m_options;
    QProcess m_emulator;
    std::unique_ptr<ConsoleClient> m_console;
    std::unique_ptr<ConsoleClient> m_logConsole;
    QStringList m_log;
    int m_mark = 0;
    int m_process = 0; ///< the panel's number, as last seen
};
