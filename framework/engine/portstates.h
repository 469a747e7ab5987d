// The states of the Ethernet ports on the home screen, from what the ports and the optical links report. Any
// thread.
#pragma once

namespace VASK
{
class HomeUpdater;
class ParaProcess;

class PortStates
{
public:
    PortStates(ParaProcess &engine, HomeUpdater &home) : m_engine(engine), m_home(home) {}

    /// A port, from 0, as it tells itself.
    void show(int port);
    /// The same as the first optical link tells it; a port without an optical link shows its own.
    /// @{
    void showOfOpt1(int port);
    void showAllOfOpt1();
    /// @}
    /// An optical link, from 0, came or went.
    void followLink(int link);
    /// Works out whether the backup of a port of the second optical link is in use.
    void workOutOpt2Backup(int port);
    /// At least one Ethernet or optical port has a link.
    bool anyLink() const;

private:
    void showState(int port, bool link, bool engaged);

    ParaProcess &m_engine;
    HomeUpdater &m_home;
};
} // namespace VASK
