#include "framework/communication/http/httpservice.h"

#include "boardio.h"
#include "framework/communication/http/httpadapter.h"

#include <QDebug>

namespace VASK
{
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
    switch (m.type) {
    case METHOD_Get:
        adapter.get(m.key);
        break;
    case METHOD_GetId:
        adapter.get(m.key, m.id);
        break;
    case METHOD_GetIdPlaceHolders:
        adapter.get(m.key, m.id, m.placeHolders);
        break;
    case METHOD_GetTree:
        adapter.get(m.key, m.parameters, m.onSuccessTree, m.onFailure);
        break;
    case METHOD_Put:
        adapter.put(m.key, m.parameters, m.onSuccess, m.onFailure);
        break;
    case METHOD_PutList:
        adapter.put(m.key, m.parameterList, m.onListSuccess, m.onFailure);
        break;
    case METHOD_Post:
        adapter.post(m.key, m.parameters, m.onSuccess, m.onFailure);
        break;
    case METHOD_PostList:
        adapter.post(m.key, m.parameterList, m.onListSuccess, m.onFailure);
        break;
    case METHOD_PutId:
        adapter.put(m.key, m.id, m.parameters, m.onIdSuccess, m.onFailure);
        break;
    case METHOD_PutIdList:
        adapter.put(m.key, m.id, m.parameterList, m.onListIdSuccess, m.onFailure);
        break;
    case METHOD_PostId:
        adapter.post(m.key, m.id, m.parameters, m.onIdSuccess, m.onFailure);
        break;
    case METHOD_PostIdList:
        adapter.post(m.key, m.id, m.parameterList, m.onListIdSuccess, m.onFailure);
        break;
    default:
        return 0;
    }
    return 1;
}
} // namespace VASK
