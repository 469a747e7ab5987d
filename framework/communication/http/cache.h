// Answers by path, for whoever wants to keep some. No request reads or fills it: every request goes to the
// service.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <string>

namespace Communicator_New
{
class Cache
{
public:
    void put(const QString &key, const QByteArray &bytes) { m_entries[key.toStdString()] = bytes; }
    /// Empty if there is none.
    QByteArray get(const QString &key) const
    {
        const auto found = m_entries.find(key.toStdString());
        return found == m_entries.end() ? QByteArray() : found->second;
    }
    void clear() { m_entries.clear(); }

private:
    std::map<std::string, QByteArray> m_entries;
};
} // namespace Communicator_New
