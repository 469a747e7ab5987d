#include "framework/resourcemanager/ticket.h"

#include "framework/communication/http/tunnelmanager.h"

namespace ResourceManager
{
Ticket::Ticket(std::string connection, const HttpPackage &package, std::string key)
    : m_connection(std::move(connection)), m_package(package), m_key(std::move(key)),
      m_method(package.method().toStdString()), m_id(package.placeHolders("id").toStdString())
{
}

PTicket Ticket::commit(Callback function)
{
    m_group->insert(shared_from_this());
    sendGroup(function);
    return shared_from_this();
}

void Ticket::sendGroup(const Callback &function)
{
    const Group members = *m_group;
    bool sent = false;
    for (const PTicket &member : members) {
        if (member->m_state != Created)
            continue;
        member->m_callback = function;
        member->send();
        sent = true;
    }
    if (!sent)
        checkFinished();
}

PTicket Ticket::then(Then function)
{
    m_thenFunction = std::move(function);
    return shared_from_this();
}

void Ticket::join(const PTicket &member)
{
    if (member->m_result && member->m_results != m_results)
        m_results->push_back(member->m_result);
    member->m_callback = m_callback;
    member->m_group = m_group;
    member->m_results = m_results;
    m_group->insert(member);
}

PTicket Ticket::parellel(const PTicket &other)
{
    const std::shared_ptr<Group> others = other->m_group;
    if (others != m_group) {
        for (const PTicket &member : Group(*others))
            join(member);
        others->clear();
    }
    join(other);
    return shared_from_this();
}

void Ticket::send()
{
    if (m_connection.empty())
        return;
    const auto tunnel = VASK::TunnelManager::instance()->find(m_connection, VASK::TUNNEL_Http);
    if (tunnel && !m_package.isEmpty()) {
        m_transportTicket =
            tunnel->send(m_package, [self = shared_from_this()](bool ok, const PResultSet &result) {
                self->ProcessCB(ok, result);
            });
    }
    m_state = Sent;
}

void Ticket::ProcessCB(bool ok, const PResultSet &result)
{
    m_result = result;
    m_result->setKey(m_key);
    m_results->push_back(m_result);
    if (ok && !m_id.empty())
        m_result->addId(m_id);
    m_state = ok ? Succeeded : Failed;
    if (ok && m_thenFunction)
        ProcessThen();
    else
        checkFinished();
}

void Ticket::ProcessThen()
{
    const Then function = std::exchange(m_thenFunction, nullptr);
    const auto next = std::make_shared<Ticket>();
    function(m_result, next);
    for (const PTicket &member : Group(*next->m_group))
        join(member);
    // One that has been left as it was is no request, and would never be answered.
    if (!next->m_connection.empty())
        join(next);
    sendGroup(m_callback);
}

void Ticket::checkFinished()
{
    if (m_group->size() != m_results->size())
        return;
    bool ok = true;
    PResultSet sum;
    for (const PTicket &member : *m_group) {
        if (member->m_state == Created || member->m_state == Sent)
            return;
        ok = ok && member->m_state == Succeeded;
        sum = sum ? ResultSet::merge(sum, member->m_result) : member->m_result;
    }
    const PTicket self = shared_from_this();
    const Callback function = m_callback;
    for (const PTicket &member : Group(*m_group))
        member->letGo();
    if (function)
        function(ok, sum);
}

/// The group holds its members and their functions hold the tickets: nothing of that is needed any more.
void Ticket::letGo()
{
    m_callback = nullptr;
    m_thenFunction = nullptr;
    m_transportTicket.reset();
    m_group = std::make_shared<Group>();
    m_results = std::make_shared<Results>(1, m_result);
}
} // namespace ResourceManager
