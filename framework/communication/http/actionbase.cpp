#include "framework/communication/http/actionbase.h"

namespace Action
{
PAction ActionBase::next(const std::string &name, const Parameters &parameters)
{
    const PAction action = ActionManager::instance()->find(name);
    return action ? action->invoke(parameters) : PAction();
}

PAction ActionBase::finished(Finished function)
{
    m_finished = std::move(function);
    return shared_from_this();
}

void ActionBase::finish(bool ok, const Parameters &parameters)
{
    const Finished function = std::exchange(m_finished, nullptr);
    if (function)
        function(ok, parameters);
}

void CommunicateAciton::cancel()
{
    ActionManager::instance()->remove(shared_from_this());
}

void CommunicateAciton::resultCB(bool ok, PResultSet result, Parameters parameters)
{
    const PAction self = shared_from_this();
    finish(ok, answered(ok, result, parameters));
    cancel();
}

ActionManager *ActionManager::instance()
{
    static ActionManager manager;
    return &manager;
}

PAction ActionManager::find(const std::string &name)
{
    const auto factory = m_factories.find(name);
    const PAction action = factory == m_factories.end() ? PAction() : factory->second();
    if (action)
        m_actions.push_back(action);
    return action;
}
} // namespace Action
