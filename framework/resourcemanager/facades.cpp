#include "framework/resourcemanager/facades.h"

namespace VASK
{
namespace
{
/// Made on first use and kept for the life of the process.
template <class Facade> Facade *madeOnce(Facade *&instance)
{
    if (!instance)
        instance = new Facade;
    return instance;
}
} // namespace

#define FPD_INSTANCE(Facade)                                                                                 \
    Facade *Facade::m_pInstance = nullptr;                                                                   \
    Facade *Facade::getInstance()                                                                            \
    {                                                                                                        \
        return madeOnce(m_pInstance);                                                                        \
    }
FPD_INSTANCE(Algorithm)
FPD_INSTANCE(Capability)
FPD_INSTANCE(DebugInfo)
FPD_INSTANCE(HwScreenInfo)
FPD_INSTANCE(PipeInfo)
FPD_INSTANCE(RvCardDisplayEffect)

FacadeCall::Success Algorithm::readHook()
{
    return [this](const PResultSet &) { emit needGetAlgorithmInfo(); };
}

FacadeCall::Success HwScreenInfo::keepHook(const QString &device, const VariantList &body)
{
    return [this, device, body](const PResultSet &) { m_lists.insert(device, body); };
}

/// What has been put is what the device has now.
FacadeCall::Success PipeInfo::keepHook(const QString &device, const VariantList &body)
{
    return [this, device, body](const PResultSet &) { keep(device, body); };
}

void PipeInfo::keep(const QString &device, const VariantList &list)
{
    QMutexLocker lock(&m_mutex);
    m_lists.insert(device, list);
}

int PipeInfo::getDevicePipes(const QString &device, bool refresh)
{
    if (!refresh) {
        QMutexLocker lock(&m_mutex);
        if (m_lists.contains(device))
            return 1;
    }
    return FacadeCall("getDevicePipes", "Device_Pipes")
        .onSuccess([this, device](const PResultSet &answer) {
            keep(device, dataOf(*answer).toList());
            emit signal_sendDataChanged();
        })
        .send();
}

int PipeInfo::getDevicePipes(const QString &device, VariantList &list, bool refresh)
{
    if (getDevicePipes(device, refresh) == 0)
        return 0;
    list = m_lists.value(device);
    return 1;
}

int PipeInfo::getDeviceOnePipe(const QString &device, const QString &id, VariantMap &map)
{
    if (getDevicePipes(device, false) == 0)
        return 0;
    for (const QVariant &element : m_lists.value(device)) {
        const VariantMap pipe = element.toMap();
        if (QVariant(id) == pipe.value("id")) {
            map = pipe;
            return 1;
        }
    }
    return 0;
}

int ScreenUrl::putGroupSync(const QString &, const QStringList &ids, const VariantMap &body,
                            VariantList &answers, const char *key)
{
    return FacadeCall("putGroupSync", key).body(body).askGroup(ids, answers);
}
} // namespace VASK
