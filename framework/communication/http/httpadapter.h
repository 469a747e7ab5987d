// The verbs of the resource client for one service: it knows the address, and has the tunnel made and told
// before each request. A plain value. Main thread.
#pragma once

#include "framework/communication/http/action.h"

#include <string>

namespace VASK
{
class httpadapter
{
public:
    using PTicket = ResourceManager::PTicket;
    using ParameterList = Action::ParameterList;

    /// Nothing happens if host or connection name are empty.
    void SetAddress(const QString &host, unsigned short port, const std::string &name);
    void ConnectTo();

    // As in action.h, with this adapter's connection.
    PTicket get(const std::string &key);
    PTicket get(const std::string &key, unsigned long long id);
    PTicket get(const std::string &key, unsigned long long id, const Action::StringMap &placeHolders);
    PTicket get(const std::string &key, const Parameters &parameters,
                const Action::OnSuccessTree<Parameters> &success, const Action::OnFailure &failure);
    template <class Body>
    PTicket put(const std::string &key, const Body &body, const Action::OnSuccess<Body> &success,
                const Action::OnFailure &failure)
    {
        ConnectTo();
        return Action::put(m_name, key, body, success, failure);
    }
    template <class Body>
    PTicket put(const std::string &key, unsigned long long id, const Body &body,
                const Action::OnSuccessId<Body> &success, const Action::OnFailure &failure)
    {
        logId(id);
        ConnectTo();
        return Action::put(m_name, key, id, body, success, failure);
    }
    template <class Body>
    PTicket post(const std::string &key, const Body &body, const Action::OnSuccess<Body> &success,
                 const Action::OnFailure &failure)
    {
        ConnectTo();
        return Action::post(m_name, key, body, success, failure);
    }
    template <class Body>
    PTicket post(const std::string &key, unsigned long long id, const Body &body,
                 const Action::OnSuccessId<Body> &success, const Action::OnFailure &failure)
    {
        ConnectTo();
        return Action::post(m_name, key, id, body, success, failure);
    }

private:
    static void logId(unsigned long long id);

    std::string m_name;
    QString m_host;
    unsigned short m_port = 0;
};
} // namespace VASK
