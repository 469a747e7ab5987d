#include "framework/protocol/link/requestlist.h"

namespace VASK
{
RequestList::~RequestList()
{
    qDeleteAll(m_list);
}

void RequestList::insert(PackageBase *package)
{
    constexpr int noWindow = 0;
    QMutexLocker lock(&m_mutex);
    m_list.append(new WndPackageBase(noWindow, package));
}

int RequestList::matchRequest(unsigned short serialNumber) const
{
    QMutexLocker lock(&m_mutex);
    for (int i = 0; i < m_list.size(); ++i) {
        const PackageBase *package = m_list[i]->package();
        if (package && package->getSerialNum() == serialNumber)
            return i;
    }
    return -1;
}

PackageBase *RequestList::package(int place) const
{
    QMutexLocker lock(&m_mutex);
    const WndPackageBase *request = m_list.value(place);
    return request ? request->package() : nullptr;
}

PackageBase *RequestList::takePackage(int place)
{
    QMutexLocker lock(&m_mutex);
    WndPackageBase *request = m_list.value(place);
    if (!request)
        return nullptr;
    PackageBase *package = request->package();
    request->setPackage(nullptr);
    return package;
}

void RequestList::retire(int place)
{
    QMutexLocker lock(&m_mutex);
    for (int i = qMin(place, m_list.size() - 1); i >= 0; --i)
        delete m_list.takeAt(i);
}

int RequestList::size() const
{
    QMutexLocker lock(&m_mutex);
    return m_list.size();
}
} // namespace VASK
