// A place for trace texts that can be pointed at a device. Without one it swallows them. The sink is set
// before threads start; Trace may then be called from any thread that the sink allows.
#pragma once

#include <QObject>
#include <QString>

namespace VASK
{
class IOutPutDev
{
public:
    virtual void OutPut(QString text) = 0;

protected:
    ~IOutPutDev() = default;
};

class TTraceOut : public QObject
{
public:
    static TTraceOut *Instance() { return &s_TraceOut; }
    /// Null takes the sink away. The sink stays the caller's.
    bool SetOutPutDev(IOutPutDev *device);
    void Trace(QString text);

private:
    static TTraceOut s_TraceOut;
    static IOutPutDev *s_pOutPutDev;
};
} // namespace VASK
