#include "framework/protocol/snapshot/protomemory20m.h"

#include "framework/engine/paraprocess.h"
#include "menu/objectindex.h"

namespace VASK
{
int ProtoMemory20M::initialize()
{
    m_pParaProcess = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    if (m_pParaProcess)
        return 1;
    qDebug() << "paraProcess get Fail!";
    return 0;
}
} // namespace VASK
