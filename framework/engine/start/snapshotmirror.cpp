#include "framework/engine/start/snapshotmirror.h"

#include "framework/protocol/snapshot/driverutil.h"

namespace VASK
{
bool SnapshotBlock::read()
{
    const int result =
        driverutil::getInstance()->ReadDataFromFile(m_address, static_cast<unsigned int>(m_bytes.size()),
                                                    reinterpret_cast<unsigned char *>(m_bytes.data()));
    m_known = m_known || result == 0;
    return m_known;
}

int SnapshotBlock::u8(int offset) const
{
    return offset >= 0 && offset < m_bytes.size() ? uint8_t(m_bytes.at(offset)) : 0;
}

int SnapshotBlock::u16(int offset) const
{
    return u8(offset) | u8(offset + 1) << 8;
}

int SnapshotBlock::u24(int offset) const
{
    return u16(offset) | u8(offset + 2) << 16;
}

int SnapshotBlock::i32(int offset) const
{
    return int(uint32_t(u24(offset)) | uint32_t(u8(offset + 3)) << 24);
}

void SnapshotMirror::read()
{
    for (SnapshotBlock *block :
         {&device, &stereo, &outputMode, &presetInUse, &output, &inputBackup, &inputs, &loadArea, &live})
        block->read();
}
} // namespace VASK
