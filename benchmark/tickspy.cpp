// Preloaded into the panel: counts the ticks of each of its timers and tickers, and the time on the processor
// of what they call. The program itself knows nothing of it.
#include "benchmark/tickspy.h"

#include <QByteArray>
#include <QFile>
#include <QMutex>
#include <QTimer>
#include <cstdlib>
#include <cstring>
#include <private/qobject_p.h>
#include <time.h>

namespace
{
QFile *counters = nullptr;
tickspy::Ticker *tickers = nullptr;
QMutex *lock = nullptr;
thread_local QObject *ticking = nullptr;
thread_local uint64_t begun = 0;

uint64_t cpuNs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return uint64_t(now.tv_sec) * 1000000000 + uint64_t(now.tv_nsec);
}

bool isTicker(const QObject *caller)
{
    const char *name = caller->metaObject()->className();
    return strcmp(name, "QTimer") == 0 || strcmp(name, "VASK::MsgThread") == 0;
}

void begin(QObject *caller, int, void **)
{
    if (ticking || !isTicker(caller))
        return;
    ticking = caller;
    begun = cpuNs();
}

void end(QObject *caller, int)
{
    if (caller != ticking)
        return;
    const uint64_t spent = cpuNs() - begun;
    ticking = nullptr;
    const QByteArray name = caller->objectName().toUtf8().left(sizeof tickspy::Ticker::name - 1);
    QMutexLocker guard(lock);
    for (int i = 0; i < tickspy::mostTickers; ++i) {
        tickspy::Ticker &ticker = tickers[i];
        if (ticker.ticks == 0)
            strcpy(ticker.name, name.constData());
        if (name != ticker.name)
            continue;
        ++ticker.ticks;
        ticker.cpuNs += spent;
        return;
    }
}

__attribute__((constructor)) void spy()
{
    const char *state = getenv("FPD_STATE");
    if (!state)
        return;             // the emulator, on the way to the panel
    unsetenv("LD_PRELOAD"); // the programs that the panel starts are not looked at
    constexpr int size = tickspy::mostTickers * int(sizeof(tickspy::Ticker));
    counters = new QFile(QByteArray(state) + tickspy::file);
    if (!counters->open(QIODevice::ReadWrite) || !counters->resize(size))
        return;
    tickers = reinterpret_cast<tickspy::Ticker *>(counters->map(0, size));
    lock = new QMutex;
    static QSignalSpyCallbackSet callbacks{begin, nullptr, end, nullptr};
    if (tickers)
        qt_register_signal_spy_callbacks(&callbacks);
}
} // namespace
