#include "framework/communication/http/action.h"

#include "framework/communication/http/actionbase.h"
#include "framework/communication/http/requestbody.h"
#include "framework/resourcemanager/allurlresource.h"

#include <QDebug>

namespace Action
{
namespace
{
constexpr const char *methodGet = "get";
constexpr const char *methodPut = "put";
constexpr const char *methodPost = "post";

/// The package of a request in its ticket.
PTicket invokeAsync(const std::string &conn, const std::string &key, const std::string &method,
                    const Parameters_ &options, const std::string &body, const Parameters &multiPart,
                    const StringMap &parameters, const StringMap &placeHolders)
{
    ResourceManager::Ticket::HttpPackage package;
    package.setUrl(VASK::AllUrlResource::getInstance()->getMapAllUrl().value(QString::fromStdString(key)));
    package.setMethod(QString::fromStdString(method));
    if (!body.empty())
        package.setRequestData(QByteArray::fromStdString(body));
    if (!parameters.isEmpty())
        package.setParameters(parameters);
    if (!placeHolders.isEmpty())
        package.setPlaceHolders(placeHolders);
    package.options = options;
    package.setMultiPartParameters(multiPart);
    return std::make_shared<ResourceManager::Ticket>(conn, package, key);
}

template <class T> void takeOver(const Parameters &from, const char *key, Parameters &to)
{
    const Any *value = from.body.look(key);
    if (const T *held = value ? value->look<T>() : nullptr)
        to.body.insert(key, *held);
}

/// The keys of a form, as far as the body has them.
Parameters multiPartOf(const Parameters &body)
{
    Parameters multiPart;
    takeOver<std::vector<std::string>>(body, "file", multiPart);
    takeOver<std::string>(body, "text", multiPart);
    takeOver<std::vector<std::string>>(body, "idList", multiPart);
    return multiPart;
}

StringMap withPlaceholders(StringMap placeHolders, const Parameters &parameters)
{
    for (const auto &[name, value] : parameters.placeholders.getList())
        placeHolders.insert(QString::fromStdString(name), QString::fromStdString(value.cast<std::string>()));
    return placeHolders;
}

StringMap idHolder(unsigned long long id)
{
    return {{"id", QString::number(id)}};
}

StringMap textsOf(const Parameters &parameters)
{
    StringMap texts;
    for (const auto &[key, value] : parameters.body.getList())
        if (const auto *text = value.look<std::string>())
            texts.insert(QString::fromStdString(key), QString::fromStdString(*text));
    return texts;
}

StringMap textsOf(const ParameterList &)
{
    return {};
}

/// Sends, and calls one of the two when the answer is in. The function holds the ticket until then.
template <class Success> PTicket commit(const PTicket &ticket, Success success, OnFailure failure)
{
    return ticket->commit([ticket, success, failure](bool ok, const PResultSet &tree) {
        if (ok)
            success(tree);
        else
            failure();
    });
}

template <class Body>
PTicket sendWithId(const char *method, const std::string &conn, const std::string &key, unsigned long long id,
                   const Body &body, const OnSuccessId<Body> &success, const OnFailure &failure,
                   const StringMap &query = {})
{
    const OnSuccess<Body> passIdAlong = [success, id](const Body &sent, const std::string &resource) {
        success(sent, id, resource);
    };
    return process(conn, key, method, body, passIdAlong, failure, query, idHolder(id));
}

OnSuccess<Parameters> beginAction(const std::string &conn, const std::string &actionName,
                                  const StringMap &placeHolders)
{
    return [conn, actionName, placeHolders](Parameters parameters, const std::string &) {
        const PAction action = ActionManager::instance()->find(actionName);
        if (!action)
            return;
        parameters.body.insert("deviceKey", conn);
        for (auto holder = placeHolders.cbegin(); holder != placeHolders.cend(); ++holder)
            parameters.body.insert(holder.key().toStdString(), holder.value().toStdString());
        action->invoke(parameters);
    };
}

PTicket sendWithAction(const char *method, const std::string &conn, const std::string &key,
                       const Parameters &parameters, const std::string &actionName, const OnFailure &failure,
                       const StringMap &placeHolders)
{
    return process(conn, key, method, parameters, beginAction(conn, actionName, placeHolders), failure, {},
                   placeHolders);
}
} // namespace

template <>
PTicket process(const std::string &conn, const std::string &key, const std::string &method,
                const Parameters &body, const StringMap &parameters, const StringMap &placeHolders)
{
    return invokeAsync(conn, key, method, body.options, bodyText(body), multiPartOf(body), parameters,
                       withPlaceholders(placeHolders, body));
}

template <>
PTicket process(const std::string &conn, const std::string &key, const std::string &method,
                const ParameterList &body, const StringMap &parameters, const StringMap &placeHolders)
{
    return invokeAsync(conn, key, method, {}, bodyText(body), {}, parameters, placeHolders);
}

template <class Body>
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const Body &body,
                OnSuccess<Body> success, OnFailure failure, const StringMap &parameters,
                const StringMap &placeHolders)
{
    return commit(
        process(conn, key, method, body, parameters, placeHolders),
        [=](const PResultSet &) { success(body, key); }, failure);
}

template <class Body>
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const Body &body,
                OnSuccessTree<Body> success, OnFailure failure, const StringMap &parameters,
                const StringMap &placeHolders)
{
    return commit(
        process(conn, key, method, body, parameters, placeHolders),
        [=](const PResultSet &tree) { success(body, key, tree); }, failure);
}

PTicket process(const std::string &conn, const std::string &key, const std::string &method,
                const StringMap &parameters, const StringMap &placeHolders)
{
    return invokeAsync(conn, key, method, {}, {}, {}, parameters, placeHolders);
}

PTicket process(const std::string &conn, const std::string &key, const std::string &method, const char *data,
                size_t length, const Parameters &parameters)
{
    return invokeAsync(conn, key, method, parameters.options, std::string(data, length), {}, {},
                       withPlaceholders({}, parameters));
}

PTicket get(const std::string &conn, const std::string &key)
{
    return process(conn, key, methodGet, {}, {});
}

PTicket get(const std::string &conn, const std::string &key, const Parameters &parameters)
{
    return process(conn, key, methodGet, parameters, {}, {});
}

template <class Body>
PTicket get(const std::string &conn, const std::string &key, const Body &body, OnSuccessTree<Body> success,
            OnFailure failure)
{
    return process(conn, key, methodGet, body, success, failure, {}, {});
}

PTicket get(const std::string &conn, const std::string &key, unsigned long long id)
{
    return process(conn, key, methodGet, {}, idHolder(id));
}

PTicket get(const std::string &conn, const std::string &key, unsigned long long id,
            const StringMap &placeHolders)
{
    StringMap all = placeHolders;
    all.insert("id", QString::number(id));
    return process(conn, key, methodGet, {}, all);
}

PTicket get(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters)
{
    return process(conn, key, methodGet, textsOf(parameters), idHolder(id));
}

template <class Body>
PTicket get(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
            OnSuccessId<Body> success, OnFailure failure)
{
    return sendWithId(methodGet, conn, key, id, body, success, failure, textsOf(body));
}

template <class Body> PTicket put(const std::string &conn, const std::string &key, const Body &body)
{
    return process(conn, key, methodPut, body, {}, {});
}

template <class Body>
PTicket put(const std::string &conn, const std::string &key, const Body &body, OnSuccess<Body> success,
            OnFailure failure)
{
    return process(conn, key, methodPut, body, success, failure, {}, {});
}

PTicket put(const std::string &conn, const std::string &key, const Parameters &parameters,
            const std::string &actionName, OnFailure failure)
{
    return sendWithAction(methodPut, conn, key, parameters, actionName, failure, {});
}

PTicket put(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters, const std::string &actionName, OnFailure failure)
{
    qDebug() << "PTicket  put0, id:" << id;
    return sendWithAction(methodPut, conn, key, parameters, actionName, failure, idHolder(id));
}

PTicket put(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters)
{
    qDebug() << "PTicket  put1, id:" << id;
    return process(conn, key, methodPut, parameters, {}, idHolder(id));
}

template <class Body>
PTicket put(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
            OnSuccessId<Body> success, OnFailure failure)
{
    qDebug() << (std::is_same_v<Body, Parameters> ? "PTicket  put2, id:" : "PTicket  put3, id:") << id;
    return sendWithId(methodPut, conn, key, id, body, success, failure);
}

template <class Body> PTicket post(const std::string &conn, const std::string &key, const Body &body)
{
    return process(conn, key, methodPost, body, {}, {});
}

template <class Body>
PTicket post(const std::string &conn, const std::string &key, const Body &body, OnSuccess<Body> success,
             OnFailure failure)
{
    return process(conn, key, methodPost, body, success, failure, {}, {});
}

PTicket post(const std::string &conn, const std::string &key, const Parameters &parameters,
             const std::string &actionName, OnFailure failure)
{
    return sendWithAction(methodPost, conn, key, parameters, actionName, failure, {});
}

PTicket post(const std::string &conn, const std::string &key, unsigned long long id,
             const Parameters &parameters, const std::string &actionName, OnFailure failure)
{
    return sendWithAction(methodPost, conn, key, parameters, actionName, failure, idHolder(id));
}

template <class Body>
PTicket post(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
             OnSuccessId<Body> success, OnFailure failure)
{
    return sendWithId(methodPost, conn, key, id, body, success, failure);
}

/// The forms exist for these two bodies.
#define FPD_FORMS(Body)                                                                                      \
    template PTicket process(const std::string &, const std::string &, const std::string &, const Body &,    \
                             OnSuccess<Body>, OnFailure, const StringMap &, const StringMap &);              \
    template PTicket process(const std::string &, const std::string &, const std::string &, const Body &,    \
                             OnSuccessTree<Body>, OnFailure, const StringMap &, const StringMap &);          \
    template PTicket get(const std::string &, const std::string &, const Body &, OnSuccessTree<Body>,        \
                         OnFailure);                                                                         \
    template PTicket get(const std::string &, const std::string &, unsigned long long, const Body &,         \
                         OnSuccessId<Body>, OnFailure);                                                      \
    template PTicket put(const std::string &, const std::string &, const Body &);                            \
    template PTicket put(const std::string &, const std::string &, const Body &, OnSuccess<Body>,            \
                         OnFailure);                                                                         \
    template PTicket put(const std::string &, const std::string &, unsigned long long, const Body &,         \
                         OnSuccessId<Body>, OnFailure);                                                      \
    template PTicket post(const std::string &, const std::string &, const Body &);                           \
    template PTicket post(const std::string &, const std::string &, const Body &, OnSuccess<Body>,           \
                          OnFailure);                                                                        \
    template PTicket post(const std::string &, const std::string &, unsigned long long, const Body &,        \
                          OnSuccessId<Body>, OnFailure);
FPD_FORMS(Parameters)
FPD_FORMS(ParameterList)
} // namespace Action
