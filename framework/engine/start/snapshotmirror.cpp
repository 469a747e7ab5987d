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

void SnapshotMirror::read()
{
    for (SnapshotBlock *block :
         {&device, &stereo, &outputMode, &presetInUse, &output, &inputBackup, &inputs, &loadArea, &live})
        block->read();
}
} // namespace VASK
