#include "framework/communication/http/tunnelmanager.h"

#include "framework/communication/http/httptunnel.h"
#include "framework/communication/http/udptunnel.h"
#include "framework/communication/http/websockettunnel.h"

#include <QCoreApplication>
#include <QDebug>

namespace VASK
{
std::shared_ptr<Communicator_New::Tunnel> TunnelFactory(Type type)
{
    switch (type) {
    case TUNNEL_Udp:
        return std::make_shared<Communicator_New::UDPTunnel>();
    case TUNNEL_Websocket:
        return std::make_shared<Communicator_New::WebsocketTunnel>();
    case TUNNEL_Http:
        return std::make_shared<HTTPTunnel>();
    case TUNNEL_Unsupported:
        qWarning() << "no such tunnel:" << int(type);
        return {};
    default:
        return {};
    }
}

namespace
{
using PTunnel = TunnelManager::PTunnel;

template <class Tunnels> PTunnel findIn(const Tunnels &tunnels, const std::string &name, Type type)
{
    const auto connection = tunnels.find(name);
    if (connection == tunnels.end())
        return {};
    const auto tunnel = connection->second.find(type);
    return tunnel == connection->second.end() ? PTunnel() : tunnel->second;
}

template <class Tunnels> PTunnel createIn(Tunnels &tunnels, const std::string &name, Type type)
{
    PTunnel tunnel = findIn(tunnels, name, type);
    if (!tunnel && (tunnel = TunnelFactory(type)))
        tunnels[name][type] = tunnel;
    return tunnel;
}

template <class Tunnels> void removeFrom(Tunnels &tunnels, const std::string &name, Type type)
{
    const auto connection = tunnels.find(name);
    if (connection != tunnels.end() && connection->second.erase(type) && connection->second.empty())
        tunnels.erase(connection);
}

std::string numbered(const std::string &name, int index)
{
    return name + std::to_string(index);
}
} // namespace

TunnelManager *TunnelManager::instance()
{
    // Kept for the life of the process; the tunnels' own threads must not outlive the application.
    static TunnelManager *const manager = [] {
        qAddPostRoutine([] {
            instance()->m_tunnels.clear();
            instance()->m_numbered.clear();
        });
        return new TunnelManager;
    }();
    return manager;
}

PTunnel TunnelManager::create(const std::string &name, Type type)
{
    return createIn(m_tunnels, name, type);
}

PTunnel TunnelManager::create(const std::string &name, int index, Type type)
{
    return createIn(m_numbered, numbered(name, index), type);
}

PTunnel TunnelManager::find(const std::string &name, Type type) const
{
    return findIn(m_tunnels, name, type);
}

PTunnel TunnelManager::find(const std::string &name, int index, Type type) const
{
    return findIn(m_numbered, numbered(name, index), type);
}

void TunnelManager::removeAll(const std::string &name)
{
    m_tunnels.erase(name);
}

void TunnelManager::removeOne(const std::string &name, Type type)
{
    removeFrom(m_tunnels, name, type);
}

void TunnelManager::removeOne(const std::string &name, int index, Type type)
{
    removeFrom(m_numbered, numbered(name, index), type);
}
} // namespace VASK
