// The resources behind the REST service. Some are the device itself: what is put there changes the same
// registers that the panel writes over the bus, and what is read is what they hold. All others keep what was
// put and give it back. Main thread.
#pragma once

#include "emulator/bus/device.h"

#include <QHash>

namespace rest
{
struct Request {
    QByteArray method; ///< GET, PUT, POST or DELETE
    QString target;    ///< the path as it came, with its query
    QString path;      ///< without the query, decoded
    QByteArray body;
    QStringList parts; ///< names, of a form that came instead of a body
};

struct Answer {
    int status = 200;
    QByteArray body;
};

class Resources
{
public:
    explicit Resources(Device &device) : m_device(device) {}

    /// {"code":0,"data":...}, or a status of failure with {"code":STATUS,"message":...}.
    Answer answer(const Request &request);
    /// Puts what any path gives back from now on; false for text that is no JSON.
    bool set(const QString &path, const QByteArray &json);

private:
    Answer read(const QString &resource, const QString &path) const;
    Answer change(const QString &resource, const Request &request);

    Device &m_device;
    QHash<QString, QByteArray> m_kept; ///< JSON by path
    qint64 m_keptBytes = 0;
};
} // namespace rest
