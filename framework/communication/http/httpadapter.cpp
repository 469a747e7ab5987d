#include "framework/communication/http/httpadapter.h"

#include "framework/communication/http/tunnelmanager.h"

#include <QDebug>

namespace VASK
{
void httpadapter::SetAddress(const QString &host, unsigned short port, const std::string &name)
{
    if (host.isEmpty() || name.empty())
        return;
    m_host = host;
    m_port = port;
    m_name = name;
}

void httpadapter::ConnectTo()
{
    TunnelManager::instance()
        ->create(m_name, TUNNEL_Http)
        ->connectTo(
            m_host, m_port, [](bool) {}, [](int) {});
}

void httpadapter::logId(unsigned long long id)
{
    qDebug() << "ResourceManager::PTicket id:" << id;
}

httpadapter::PTicket httpadapter::get(const std::string &key)
{
    ConnectTo();
    return Action::get(m_name, key);
}

httpadapter::PTicket httpadapter::get(const std::string &key, unsigned long long id)
{
    ConnectTo();
    return Action::get(m_name, key, id);
}

httpadapter::PTicket httpadapter::get(const std::string &key, unsigned long long id,
                                      const Action::StringMap &placeHolders)
{
    ConnectTo();
    return Action::get(m_name, key, id, placeHolders);
}

httpadapter::PTicket httpadapter::get(const std::string &key, const Parameters &parameters,
                                      const Action::OnSuccessTree<Parameters> &success,
                                      const Action::OnFailure &failure)
{
    ConnectTo();
    return Action::get(m_name, key, parameters, success, failure);
}
} // namespace VASK
