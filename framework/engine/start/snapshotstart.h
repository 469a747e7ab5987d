// What the flash snapshot says of the device goes into the menu: as reported values, in a fixed order. GUI
// thread.
#pragma once

#include <memory>

namespace VASK
{
class MenuAnalysis;
class ParaProcess;
struct SnapshotMirror;

class SnapshotStart
{
public:
    explicit SnapshotStart(ParaProcess &engine);
    ~SnapshotStart();

    /// Reads the blocks of the snapshot into the mirror.
    void read();
    /// Pushes the mirror into the menu.
    void push(MenuAnalysis &store);
    /// Writes the network items from the snapshot again, unless the address comes from DHCP.
    void reloadAddress();

private:
    ParaProcess &m_engine;
    std::unique_ptr<SnapshotMirror> m_mirror;
};
} // namespace VASK
