// The requests that wait for an answer, oldest first. Any thread; each call takes the list's own lock.
#pragma once

#include "framework/legacy/wndpackagebase.h"

#include <QList>
#include <QMutex>

namespace VASK
{
class RequestList
{
public:
    ~RequestList();

    /// The list owns the package from here on.
    void insert(PackageBase *package);
    /// Place of the first request with that serial number, -1 for none.
    int matchRequest(unsigned short serialNumber) const;
    /// Takes the package out of the request at that place, which stays. Null for no such place.
    PackageBase *takePackage(int place);
    PackageBase *package(int place) const;
    /// Removes the request at that place and all older ones: an answer retires all that was asked before.
    void retire(int place);
    int size() const;

private:
    mutable QMutex m_mutex;
    QList<WndPackageBase *> m_list;
};
} // namespace VASK
