#include "framework/legacy/traceout.h"

namespace VASK
{
TTraceOut TTraceOut::s_TraceOut;
IOutPutDev *TTraceOut::s_pOutPutDev = nullptr;

bool TTraceOut::SetOutPutDev(IOutPutDev *device)
{
    s_pOutPutDev = device;
    return true;
}

void TTraceOut::Trace(QString text)
{
    if (s_pOutPutDev)
        s_pOutPutDev->OutPut(text);
}
} // namespace VASK
