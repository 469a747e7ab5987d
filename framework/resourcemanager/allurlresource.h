// The catalogue of the device service: every resource has a key, and here its path. Whoever makes a request
// names the key and says the method; a path holds {placeholders} that are filled in when the request is sent.
// To add a resource, add a row to the table. Made on first use; then read from any thread.
#pragma once

#include <QMap>
#include <QObject>
#include <QString>

namespace VASK
{
class AllUrlResource : public QObject
{
    Q_OBJECT
public:
    static AllUrlResource *getInstance();

    /// Key to full path. A key that is not there has the empty path, which is the service itself.
    QMap<QString, QString> getMapAllUrl() const { return m_allUrl; }

private:
    AllUrlResource();

    QString m_base;
    QMap<QString, QString> m_allUrl;
};
} // namespace VASK
