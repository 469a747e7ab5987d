// One request as data, in no way bound to a socket: attributes in named groups. A plain value that one thread
// at a time has in hand.
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace Communicator_New
{
class Package
{
public:
    virtual ~Package() = default;
    /// Compares the attributes and nothing else.
    virtual bool operator==(const Package &other) const { return m_attributes == other.m_attributes; }

    /// The attribute, an invalid value if there is none.
    QVariant value(const QString &group, const QString &key) const
    {
        return m_attributes.value(group).value(key);
    }
    void addAttrib(const QString &group, const QString &key, const QVariant &value)
    {
        m_attributes[group].insert(key, value);
    }
    /// Sets these keys of the group; its others stay.
    void addAttrib(const QString &group, const QMap<QString, QVariant> &values)
    {
        QMap<QString, QVariant> &target = m_attributes[group];
        for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
            target.insert(entry.key(), entry.value());
    }
    bool isEmpty() const { return m_attributes.isEmpty(); }

protected:
    QMap<QString, QVariant> group(const QString &name) const { return m_attributes.value(name); }

private:
    QMap<QString, QMap<QString, QVariant>> m_attributes;
};
} // namespace Communicator_New
