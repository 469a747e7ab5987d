// One request and what comes of it, alone or in a group that finishes together. Nobody else holds a ticket
// that is under way: it holds itself until the answer has been delivered, and then lets go of all it holds.
// Main thread.
#pragma once

#include "framework/communication/http/4th/httpversion/httppackage.h"
#include "framework/communication/http/ticket.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ResourceManager
{
class Ticket;
using PTicket = std::shared_ptr<Ticket>;

class Ticket : public std::enable_shared_from_this<Ticket>
{
public:
    using HttpPackage = Communicator_New::Vask4th_New::HttpPackage;
    /// Success of all, and the answers: a single one as it is, several as children of a node "Root".
    using Callback = std::function<void(bool, PResultSet)>;
    /// Given the answer and an empty ticket, which it may turn into the request that comes next, or whose
    /// group it may fill with several.
    using Then = std::function<void(PResultSet, PTicket)>;

    enum State : int { Succeeded = 0, Failed = 1, Sent = 2, Created = 3 };

    Ticket() = default;
    Ticket(std::string connection, const HttpPackage &package, std::string key);

    /// Sends what the group has not sent yet; the function is called once, when the last answer is in.
    PTicket commit(Callback function);
    /// What to do with the answer before the group counts as finished.
    PTicket then(Then function);
    /// The other ticket finishes together with this one, and so do those that it has been joined with.
    PTicket parellel(const PTicket &other);

    int state() const { return m_state; }
    const std::string &key() const { return m_key; }
    const std::string &id() const { return m_id; }
    const std::string &method() const { return m_method; }
    /// The answer, empty while there is none.
    const PResultSet &result() const { return m_result; }

private:
    using Group = std::set<PTicket>;
    using Results = std::vector<PResultSet>;

    void send();
    void sendGroup(const Callback &function);
    void join(const PTicket &member);
    void ProcessCB(bool ok, const PResultSet &result);
    void ProcessThen();
    void checkFinished();
    void letGo();

    Callback m_callback;
    Then m_thenFunction;
    std::string m_connection;
    HttpPackage m_package;
    PResultSet m_result;
    std::string m_key;
    std::string m_method;
    std::string m_id;
    State m_state = Created;
    Communicator_New::PTicket m_transportTicket;
    std::shared_ptr<Group> m_group = std::make_shared<Group>();
    std::shared_ptr<Results> m_results = std::make_shared<Results>();
};
} // namespace ResourceManager
