// The resources of a family with one typed operation each, for callers other than the menu. The first
// argument of every operation is the device key; the operations themselves are rows of the .def files, in the
// shapes of facadeshapes.h. An operation with an answer waits for it, bounded and with keys held back; one
// without returns at once. The result is 0 unless stated. GUI thread.
#pragma once

#include "framework/resourcemanager/facadeshapes.h"

#include <QMutex>
#include <QObject>

namespace VASK
{
#define FPD_OPERATION(name, key, shape) FPD_SHAPE_##shape(, name, key)

/// The algorithms that the device offers.
class Algorithm : public QObject
{
    Q_OBJECT
public:
    static Algorithm *getInstance();
#include "framework/resourcemanager/algorithm.def"

signals:
    /// An algorithm's result has been read.
    void needGetAlgorithmInfo();

private:
    FacadeCall::Success readHook();
    static Algorithm *m_pInstance;
};

/// The chips that the device knows.
class Capability : public QObject
{
    Q_OBJECT
public:
    static Capability *getInstance();
#include "framework/resourcemanager/capability.def"

private:
    static Capability *m_pInstance;
};

/// Parameters of the cabinets' self-test.
class DebugInfo : public QObject
{
    Q_OBJECT
public:
    static DebugInfo *getInstance();
#include "framework/resourcemanager/debuginfo.def"

private:
    static DebugInfo *m_pInstance;
};

/// Drawing and correction on the device's surface.
class HwScreenInfo : public QObject
{
    Q_OBJECT
public:
    static HwScreenInfo *getInstance();
#include "framework/resourcemanager/hwscreeninfo.def"

    /// What a device was last made to draw.
    VariantList drawn(const QString &device) const
    {
        return m_lists.value(device);
    }

private:
    FacadeCall::Success keepHook(const QString &device, const VariantList &body);
    static HwScreenInfo *m_pInstance;
    QMap<QString, VariantList> m_lists;
};

/// The pipelines of a device. A list that has been read is held by the device's key.
class PipeInfo : public QObject
{
    Q_OBJECT
public:
    static PipeInfo *getInstance();
#include "framework/resourcemanager/pipeinfo.def"

    /// 1 if the list of the device is held, unless it shall be read anew. Else 0, and the list is asked for:
    /// signal_sendDataChanged tells when it is there.
    int getDevicePipes(const QString &device, bool refresh);
    /// The same, and the list that is held.
    int getDevicePipes(const QString &device, VariantList &list, bool refresh);
    /// The pipeline of that id out of the list that is held: 1, or 0 if there is none.
    int getDeviceOnePipe(const QString &device, const QString &id, VariantMap &map);

signals:
    /// A device's list has been read.
    void signal_sendDataChanged();

private:
    FacadeCall::Success keepHook(const QString &device, const VariantList &body);
    void keep(const QString &device, const VariantList &list);
    static PipeInfo *m_pInstance;
    QMutex m_mutex; ///< guards the look-up and the change of the lists
    QMap<QString, VariantList> m_lists;
};

/// What the receiving cards make of the picture.
class RvCardDisplayEffect : public QObject
{
    Q_OBJECT
public:
    static RvCardDisplayEffect *getInstance();
#include "framework/resourcemanager/rvcarddisplayeffect.def"

private:
    static RvCardDisplayEffect *m_pInstance;
};

#undef FPD_OPERATION
#define FPD_OPERATION(name, key, shape) FPD_SHAPE_##shape(static, name, key)

/// The device's outputs.
class Output
{
public:
#include "framework/resourcemanager/output.def"

private:
    static FacadeCall::Success keepHook(const QString &, const VariantList &)
    {
        return {};
    }
};

/// The screens.
class ScreenUrl
{
public:
#include "framework/resourcemanager/screenurl.def"
#include "framework/resourcemanager/screenurlnothing.def"

    /// Puts the body to each of the screens and waits for the last answer or the time-out. 1.
    static int putGroupSync(const QString &device, const QStringList &ids, const VariantMap &body,
                            VariantList &answers, const char *key);
};

/// Monitoring, which this device does not have.
class Monitor
{
public:
#include "framework/resourcemanager/monitornothing.def"
};
#undef FPD_OPERATION
} // namespace VASK
