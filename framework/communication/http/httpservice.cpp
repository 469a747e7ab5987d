#include "framework/communication/http/httpservice.h"

#include "boardio.h"
#include "framework/communication/http/httpadapter.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
using Message = ST_Protocol4rdMsg;

/// How each kind of message is asked, in the order of methontype.
constexpr void (*verbs[])(httpadapter &adapter, const Message &m) = {
    [](httpadapter &a, const Message &m) { a.get(m.key); },
    [](httpadapter &a, const Message &m) { a.get(m.key, m.id); },
    [](httpadapter &a, const Message &m) { a.get(m.key, m.id, m.placeHolders); },
    [](httpadapter &a, const Message &m) { a.get(m.key, m.parameters, m.onSuccessTree, m.onFailure); },
    [](httpadapter &a, const Message &m) { a.put(m.key, m.parameters, m.onSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) { a.put(m.key, m.parameterList, m.onListSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) { a.post(m.key, m.parameters, m.onSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) { a.post(m.key, m.parameterList, m.onListSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) { a.put(m.key, m.id, m.parameters, m.onIdSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) {
        a.put(m.key, m.id, m.parameterList, m.onListIdSuccess, m.onFailure);
    },
    [](httpadapter &a, const Message &m) { a.post(m.key, m.id, m.parameters, m.onIdSuccess, m.onFailure); },
    [](httpadapter &a, const Message &m) {
        a.post(m.key, m.id, m.parameterList, m.onListIdSuccess, m.onFailure);
    },
};
static_assert(std::size(verbs) == METHOD_PostIdList + 1, "a kind of message has no verb");
} // namespace

int httpService::SendMsg(void *msg)
{
    return SendMsg(*static_cast<const ST_Protocol4rdMsg *>(msg));
}

int httpService::SendMsg(const ST_Protocol4rdMsg &message)
{
    httpadapter adapter;
    adapter.SetAddress(host, board::localPort(port), connection);
    qDebug() << "httpService::SendMsg:" << message.id;
    return AdapterInterface(adapter, message);
}

int httpService::AdapterInterface(httpadapter &adapter, const ST_Protocol4rdMsg &m)
{
    qDebug() << "httpService::AdapterInterface type:" << int(m.type);
    if (m.type < 0 || m.type >= int(std::size(verbs)))
        return 0;
    verbs[m.type](adapter, m);
    return 1;
}
} // namespace VASK
