// All tunnels by connection name and kind, so that whoever sends finds the one that was made before. Main
// thread.
#pragma once

#include "framework/communication/http/tunnel.h"

#include <map>
#include <memory>
#include <string>

namespace VASK
{
enum Type : int { TUNNEL_Udp = 0, TUNNEL_Unsupported = 1, TUNNEL_Http = 2, TUNNEL_Websocket = 3 };

/// A new tunnel; empty for a kind that there is not.
std::shared_ptr<Communicator_New::Tunnel> TunnelFactory(Type type);

class TunnelManager
{
public:
    using PTunnel = std::shared_ptr<Communicator_New::Tunnel>;

    static TunnelManager *instance();

    /// The tunnel of that name and kind, made if it is missing; empty for a kind that there is not. The
    /// second form is for names that carry a number.
    /// @{
    PTunnel create(const std::string &name, Type type);
    PTunnel create(const std::string &name, int index, Type type);
    /// @}
    /// The tunnel, or empty.
    /// @{
    PTunnel find(const std::string &name, Type type) const;
    PTunnel find(const std::string &name, int index, Type type) const;
    /// @}
    void removeAll(const std::string &name);
    void removeOne(const std::string &name, Type type);
    void removeOne(const std::string &name, int index, Type type);

private:
    using Tunnels = std::map<std::string, std::map<Type, PTunnel>>;

    TunnelManager() = default;

    Tunnels m_tunnels;
    Tunnels m_numbered;
};
} // namespace VASK
