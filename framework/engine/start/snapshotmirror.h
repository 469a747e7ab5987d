// The device's state as last read from the flash snapshot, block by block. Filled and read on the GUI thread.
#pragma once

#include "framework/protocol/packet/bytes.h"
#include "framework/protocol/snapshot/snapshotmap.h"

#include <QByteArray>
#include <cstdint>

namespace VASK
{
/// One block of the snapshot; reads beyond its end give 0.
class SnapshotBlock
{
public:
    SnapshotBlock(unsigned int address, unsigned int length) : m_address(address), m_bytes(int(length), '\0')
    {
    }

    /// Reads the block from the flash; a block that cannot be read keeps what it held. False if nothing of it
    /// was ever read.
    bool read();
    int u8(int offset) const { return ByteView(m_bytes).u8(offset); }
    int u16(int offset) const { return ByteView(m_bytes).u16(offset); }
    int u24(int offset) const { return ByteView(m_bytes).u24(offset); }
    int i32(int offset) const { return ByteView(m_bytes).i32(offset); }
    QByteArray bytes(int offset, int length) const { return m_bytes.mid(offset, length); }

private:
    unsigned int m_address;
    QByteArray m_bytes;
    bool m_known = false;
};

struct SnapshotMirror {
    SnapshotBlock device{SNAPSHOT_Device, LENGTH_Device};
    SnapshotBlock stereo{SNAPSHOT_Stereo, LENGTH_Stereo};
    SnapshotBlock outputMode{SNAPSHOT_OutputMode, LENGTH_OutputMode};
    SnapshotBlock presetInUse{SNAPSHOT_PresetInUse, LENGTH_PresetInUse};
    SnapshotBlock output{SNAPSHOT_Output, LENGTH_Output};
    SnapshotBlock inputBackup{SNAPSHOT_InputBackup, LENGTH_InputBackup};
    SnapshotBlock inputs{SNAPSHOT_Inputs, LENGTH_Inputs};
    SnapshotBlock loadArea{SNAPSHOT_LoadArea, LENGTH_LoadArea};
    SnapshotBlock live{SNAPSHOT_LiveRecord, LENGTH_LiveRecord};

    /// Reads all blocks, in their order.
    void read();
};
} // namespace VASK
