// The requests that wait for an answer, oldest first. Any thread; each call takes the list's own lock.
#pragma once

#include "framework/legacy/wndpackagebase.h"

#include <QMutex>
#include <deque>
#include <memory>

namespace VASK
{
class RequestList
{
public:
    void insert(std::unique_ptr<PackageBase> package);
    /// Place of the first request with that serial number, -1 for none.
    int matchRequest(unsigned short serialNumber) const;
    /// Takes the package out of the request at that place, which stays. Null for no such place.
    std::unique_ptr<PackageBase> takePackage(int place);
    /// Removes the request at that place and all older ones: an answer retires all that was asked before.
    void retire(int place);
    int size() const;

private:
    mutable QMutex m_mutex;
    std::deque<std::unique_ptr<WndPackageBase>> m_list;
};
} // namespace VASK
