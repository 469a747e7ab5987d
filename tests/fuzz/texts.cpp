// Short texts from outside: a recorded session, a line of the console, the index of the cabinet files.

#include "emulator/console/session.h"
#include "emulator/device/recording.h"
#include "emulator/emulator.h"
#include "framework/protocol/link/cabinetnames.h"
#include "tests/fuzz/fuzztarget.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace
{
/// What was read as events is written so that it is read as the same.
void feedRecording(const QByteArray &input)
{
    QVector<session::Event> events, again;
    if (!session::parse(QString::fromUtf8(input), events).isEmpty())
        return;
    QString text;
    for (const session::Event &event : events)
        text += session::toText(event) + '\n';
    REQUIRE(session::parse(text, again).isEmpty() && again.size() == events.size());
    for (int i = 0; i < events.size(); ++i)
        REQUIRE(session::toText(events[i]) == session::toText(again[i]));
}

void feedCabinets(const QByteArray &index)
{
    const int records = VASK::cabinetRecords(index);
    QStringList names;
    for (int i = 0; i <= records; ++i)
        names << VASK::cabinetNameAt(index, i);
    REQUIRE(names.takeLast().isEmpty());
    const QStringList joined = VASK::cabinetNames(index).split('+');
    REQUIRE(joined.size() <= names.join('+').split('+').size());
}

/// A client that can name no file, and starts no panel.
class Client : public Session
{
public:
    explicit Client(Emulator &emulator) : Session(emulator, std::nullopt) {}
    void say(const QStringList &words)
    {
        m_answers = 0;
        handle(words);
        QCoreApplication::processEvents();
        REQUIRE(m_answers == (isAnswering() ? 0 : 1));
        abandon();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // an event loop would
    }

protected:
    void sendLine(const QString &line) override { REQUIRE(!line.contains('\n')); }
    void sendEnd(Failure, const QString &reason) override
    {
        REQUIRE(!reason.contains('\n'));
        ++m_answers;
    }

private:
    int m_answers = 0;
};

/// Made anew now and then, since it remembers all that it is told.
struct Bench {
    Bench() : stateFolder(folder.path() + "/state")
    {
        REQUIRE(stateFolder.take().isEmpty() && stateFolder.install().isEmpty());
        emulator = std::make_unique<Emulator>(stateFolder);
        REQUIRE(emulator->open().isEmpty());
    }
    QTemporaryDir folder{"/dev/shm/fuzz-XXXXXX"};
    StateFolder stateFolder;
    std::unique_ptr<Emulator> emulator;
};

void feedConsole(const QByteArray &input)
{
    constexpr int inputsOfABench = 5000;
    static std::unique_ptr<Bench> bench;
    static int inputs = 0;
    if (inputs++ % inputsOfABench == 0) {
        bench.reset();
        bench = std::make_unique<Bench>();
    }
    Client client(*bench->emulator);
    for (const QByteArray &line : input.split('\n')) {
        const QStringList words = QString::fromUtf8(line).split(' ', Qt::SkipEmptyParts);
        if (!words.value(0).startsWith("panel", Qt::CaseInsensitive))
            client.say(words);
    }
}
} // namespace

FPD_FUZZ_TARGET(recording, feedRecording, 1024)
FPD_FUZZ_TARGET(cabinets, feedCabinets, 1024)
FPD_FUZZ_TARGET(console, feedConsole, 512, [] {})
