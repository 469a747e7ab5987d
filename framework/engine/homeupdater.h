// What the engine has the home screen show, from any thread: toHome() brings it there, and the engine's own
// signals reach it queued.
#pragma once

#include "framework/ui/homestates.h"

#include <QString>

namespace VASK
{
class HomeScreen;
class ParaProcess;
struct InputRecord;

class HomeUpdater
{
public:
    explicit HomeUpdater(ParaProcess &engine) : m_engine(engine) {}

    /// Takes the home screen from the pool.
    void find();
    /// Nothing, with a log line, if there is no home screen.
    void connectSignals();
    HomeScreen *screen() const { return m_pMainWindow; }
    /// The same, with a log line if there is none.
    HomeScreen *needed() const;

    void showBrightness(const QString &text);
    void showResolution(const QString &text);
    /// The address, or the translation key of what is said while there is none.
    void showAddress(const QString &text);
    void showMakerSign(bool shown);
    void showSyncSource(const QString &name);
    void showLayerName(int layer, const QString &name);
    void showPort(int port, ENUM_MainWindowNetState state);
    /// The picture of a display mode, by its number in the process data.
    void showDisplayMode(int mode);
    void closeWindow(int layer);
    void noteServicesRun();

    /// What a report changes is drawn at once while the panel starts; all else waits its turn in the queue.
    /// @{
    void setWindow(int layer, bool shown, bool reported);
    void setSyncState(int state, bool reported);
    /// @}

    /// The source of a layer has a signal or not.
    void showSignal(int layer, bool stable);
    void showSignalOf(int layer);
    /// What the source of a layer carries, at a rate in hundredths of a hertz, or that it has no signal.
    void showSignal(int layer, const InputRecord &input, int rateCentiHz);
    /// The names of the layers' sources and, for the layers that are on, what those carry.
    void showSources();
    /// Sets everything, from the store and the process data. GUI thread.
    void showAll();
    /// Without anything that only a device can tell.
    void showNothing();
    /// The device's own name, from the snapshot.
    void showName();

private:
    template <class Work> void home(Work work);
    void showLayer(int layer);
    void showSource(int layer);

    ParaProcess &m_engine;
    HomeScreen *m_pMainWindow = nullptr;
};
} // namespace VASK
