// The pool object that stands for the flash snapshot. No item is routed to it; its reading is done by the
// engine through driverutil. GUI thread.
#pragma once

#include "framework/protocol/link/protocolinterface.h"

namespace VASK
{
class ParaProcess;

class ProtoMemory20M : public ProtocolInterface
{
    Q_OBJECT
public:
    using ProtocolInterface::ProtocolInterface;
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 1; }

    /// Finds the engine. 1, or 0 with a log line if it is not in the pool: the start-up stops then.
    int initialize();

private:
    ParaProcess *m_pParaProcess = nullptr;
};
} // namespace VASK
