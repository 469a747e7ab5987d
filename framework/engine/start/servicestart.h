// The device's two services: when both run, HDCP, synchronisation, DHCP and the version are set going. Any
// thread.
#pragma once

#include "menu/itemindex.h"

#include <QString>
#include <atomic>

namespace VASK
{
class ParaProcess;

class ServiceStart
{
public:
    explicit ServiceStart(ParaProcess &engine) : m_engine(engine) {}

    /// One of the two has started; when both have, the start sequence runs.
    void started(ENUM_MenuIndex event);
    bool videoRuns() const { return videodStarted; }

    /// The start sequence, step by step.
    /// @{
    void startComplete();
    void switchHdcp();
    /// Tells of a source of synchronisation that cannot be used.
    void checkSync();
    void askForAddress();
    /// Stores the version of the root file system, and gives it; empty if it is not known.
    QString readRootVersion();
    /// @}

private:
    ParaProcess &m_engine;
    std::atomic<bool> videodStarted{false};
    std::atomic<bool> senderdStarted{true};
};
} // namespace VASK
