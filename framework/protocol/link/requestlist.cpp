#include "framework/protocol/link/requestlist.h"

#include <algorithm>

namespace VASK
{
void RequestList::insert(std::unique_ptr<PackageBase> package)
{
    constexpr int noWindow = 0;
    QMutexLocker lock(&m_mutex);
    m_list.push_back(std::make_unique<WndPackageBase>(noWindow, package.release()));
}

int RequestList::matchRequest(unsigned short serialNumber) const
{
    QMutexLocker lock(&m_mutex);
    const auto found = std::find_if(m_list.begin(), m_list.end(), [serialNumber](const auto &request) {
        return request->package() && request->package()->getSerialNum() == serialNumber;
    });
    return found == m_list.end() ? -1 : int(found - m_list.begin());
}

std::unique_ptr<PackageBase> RequestList::takePackage(int place)
{
    QMutexLocker lock(&m_mutex);
    if (place < 0 || place >= int(m_list.size()))
        return nullptr;
    WndPackageBase &request = *m_list[size_t(place)];
    std::unique_ptr<PackageBase> package(request.package());
    request.setPackage(nullptr);
    return package;
}

void RequestList::retire(int place)
{
    QMutexLocker lock(&m_mutex);
    m_list.erase(m_list.begin(), m_list.begin() + qBound(0, place + 1, int(m_list.size())));
}

int RequestList::size() const
{
    QMutexLocker lock(&m_mutex);
    return int(m_list.size());
}
} // namespace VASK
