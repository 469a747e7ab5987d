// Named steps that can follow a request: a factory a name, and the actions that live. No factory is
// registered in this program, so a request with an action's name ends with its own success. Main thread.
#pragma once

#include "framework/communication/http/parameters.h"
#include "framework/communication/http/resultset.h"
#include "framework/resourcemanager/ticket.h"

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <string>

namespace Action
{
class ActionBase;
using PAction = std::shared_ptr<ActionBase>;

class ActionBase : public std::enable_shared_from_this<ActionBase>
{
public:
    using Finished = std::function<void(bool, const Parameters &)>;

    virtual ~ActionBase() = default;

    /// Begins; the result is the action itself.
    virtual PAction invoke(const Parameters &parameters) = 0;
    virtual void cancel() = 0;
    /// Invokes the action of that name. Empty if there is none.
    virtual PAction next(const std::string &name, const Parameters &parameters);
    /// Stores the function that ends the chain.
    virtual PAction finished(Finished function);

protected:
    void finish(bool ok, const Parameters &parameters);

private:
    Finished m_finished;
};

/// An action whose work is a request.
class CommunicateAciton : public ActionBase
{
public:
    PAction invoke(const Parameters &) override { return shared_from_this(); }
    void cancel() override;
    /// Makes the request; here there is none.
    virtual ResourceManager::PTicket process(const Parameters &) { return {}; }
    /// What the answer means for the parameters that the end of the chain is given.
    virtual Parameters answered(bool ok, const PResultSet &result, const Parameters &parameters) = 0;

    /// The answer is in: ends the action.
    void resultCB(bool ok, PResultSet result, Parameters parameters);
};

class ActionManager
{
public:
    using Factory = std::function<PAction()>;

    static ActionManager *instance();

    void regist(const std::string &name, Factory factory) { m_factories[name] = std::move(factory); }
    /// A new action, kept until it is removed. Empty for an unknown name.
    PAction find(const std::string &name);
    void remove(const PAction &action) { m_actions.remove(action); }

private:
    std::map<std::string, Factory> m_factories;
    std::list<PAction> m_actions;
};
} // namespace Action
