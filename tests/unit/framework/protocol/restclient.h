// The client of the device service, as the protocol object sees it: it notes the requests.
#pragma once

#include "framework/communication/http/protocol4rdmsg.h"
#include "framework/communication/http/requestbody.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/resourcemanager/allurlresource.h"
#include "menu/objectindex.h"

namespace VASK
{
/// Notes requests as "VERB PATH BODY"; the test ends them.
class RestClient : public CommunicationClientInterface
{
public:
    RestClient() : CommunicationClientInterface(ENUM_COMMUNICATION_HTTP) {}
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }
    int SendMsg(void *given) override
    {
        const auto &message = *static_cast<ST_Protocol4rdMsg *>(given);
        static const QMap<int, QString> verbs{{METHOD_GetTree, "GET"},
                                              {METHOD_Put, "PUT"},
                                              {METHOD_PutId, "PUT"},
                                              {METHOD_Post, "POST"},
                                              {METHOD_PostId, "POST"}};
        static const QMap<int, QString> listVerbs{{METHOD_PutList, "PUT"},
                                                  {METHOD_PostList, "POST"},
                                                  {METHOD_PutIdList, "PUT"},
                                                  {METHOD_PostIdList, "POST"}};
        const bool isList = listVerbs.contains(message.type);
        const QString verb = isList ? listVerbs[message.type] : verbs.value(message.type, "?");
        const std::string body =
            isList ? Action::bodyText(message.parameterList) : Action::bodyText(message.parameters);
        QString path =
            AllUrlResource::getInstance()->getMapAllUrl().value(QString::fromStdString(message.key));
        path.replace("{id}", QString::number(message.id)).remove("/api/v1/device/");
        requests += verb + ' ' + path + ' ' + QString::fromStdString(body);
        messages.append(message);
        return 1;
    }
    /// All requests since the last take, joined.
    QString take()
    {
        QString text = requests.join('|');
        requests.clear();
        return text;
    }
    QStringList requests;
    QList<ST_Protocol4rdMsg> messages;
};

/// The request of a pattern on a screen with that gray, a spacing of 40 and a speed of 5.
inline QString pattern(int mode, int r, int g, int b, int line, int gray = 65)
{
    return QString(
               R"(PUT screens/255/txtestpattern {"blue":%4,"gray":%6,"green":%3,"lineWidth":%5,"modeType":%1,)"
               R"("moveDirection":0,"moveSpeed":5,"red":%2,"spaceValue":40})")
        .arg(mode)
        .arg(r)
        .arg(g)
        .arg(b)
        .arg(line)
        .arg(gray);
}
} // namespace VASK
