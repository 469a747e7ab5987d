// Pairs a package with the window it belongs to. Owns the package; copies share it, so only one of them may
// be destroyed with it.
#pragma once

#include "framework/protocol/packet/packagebase.h"

namespace VASK
{
class WndPackageBase : public QObject
{
public:
    WndPackageBase() = default;
    WndPackageBase(int wndHandle, PackageBase *package) : m_package(package), m_wndHandle(wndHandle) {}
    WndPackageBase(const WndPackageBase &other)
        : QObject(), m_package(other.m_package), m_wndHandle(other.m_wndHandle)
    {
    }
    WndPackageBase &operator=(const WndPackageBase &other)
    {
        m_package = other.m_package;
        m_wndHandle = other.m_wndHandle;
        return *this;
    }
    ~WndPackageBase() override { delete m_package; }

    int wndHandle() const { return m_wndHandle; }
    void setWndHandle(const int &handle) { m_wndHandle = handle; }
    PackageBase *package() const { return m_package; }
    /// The package held before is not released.
    void setPackage(PackageBase *package) { m_package = package; }

private:
    PackageBase *m_package = nullptr;
    int m_wndHandle = 0;
};
} // namespace VASK
