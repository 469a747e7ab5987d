// The return-to-home timer: restarted by every key, it takes the panel back to the home screen when no key
// came for the time of the item "return to home". All of it on the GUI thread.
#pragma once

#include "framework/object/vaskobject.h"

#include <QTimer>

namespace VASK
{
class HomeScreen;
class ParaProcess;

class GlobalTimer : public VaskObject
{
    Q_OBJECT
public:
    /// The singleton, kept for the life of the process and not entered in the pool.
    static GlobalTimer *getInstance();
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// Starts the time, with the given window as home. Called once, by start-up.
    void Initialize(HomeScreen *mainWindow);
    /// Restarts the time, for every key. The item is read again, so a new setting counts from the next key.
    /// True.
    bool ResetReturnToMain();
    /// Another window counts as home from now on; the time starts if start-up has left it out. True.
    bool ChangeMainWindow(HomeScreen *mainWindow);

public slots:
    void slot_ReturnToMain();

private:
    GlobalTimer();

    int readReturnTime() const;

    int m_returnTimeMs = 60;
    QTimer *m_returnMainWindow = nullptr;
    ParaProcess *m_paraProcess = nullptr;
    HomeScreen *m_pmainwindow = nullptr;
    VaskObject *m_presetPage = nullptr;
};
} // namespace VASK
