// The verbs of the resource client: get, put and post a resource of the catalogue by its key, over the tunnel
// of a connection. Nothing here waits: the functions are called when the answer is in. A form with functions
// sends at once; one without gives a ticket that sends nothing until it is committed. A body is Parameters,
// which become a JSON object, or a list of them, which becomes an array. Main thread.
#pragma once

#include "framework/communication/http/parameters.h"
#include "framework/communication/http/resultset.h"
#include "framework/resourcemanager/ticket.h"

#include <QMap>
#include <QString>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace Action
{
using ResourceManager::PTicket;
using StringMap = QMap<QString, QString>;
using ParameterList = std::vector<Parameters>;

/// What is called with the answer: the body that was sent, the resource's key and, by form, the resource's id
/// or the answer. A failure tells no reason. Both functions of a form must be given.
/// The body alone says which of the two kinds it is, so a lambda will do.
/// @{
template <class Body> using Kind = std::common_type_t<Body>;
template <class Body> using OnSuccess = std::function<void(Kind<Body>, std::string)>;
template <class Body> using OnSuccessTree = std::function<void(Kind<Body>, std::string, PResultSet)>;
template <class Body> using OnSuccessId = std::function<void(Kind<Body>, unsigned long long, std::string)>;
using OnFailure = std::function<void()>;
/// @}

/// The general forms, for Parameters and ParameterList: method "get", "put", "post" or "del", query
/// parameters and values for the placeholders of the path. Placeholders of the Parameters join them; one that
/// is no std::string is a std::bad_cast.
/// @{
template <class Body>
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const Body &body,
                const StringMap &parameters, const StringMap &placeHolders);
template <class Body>
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const Body &body,
                OnSuccess<Body> success, OnFailure failure, const StringMap &parameters,
                const StringMap &placeHolders);
template <class Body>
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const Body &body,
                OnSuccessTree<Body> success, OnFailure failure, const StringMap &parameters,
                const StringMap &placeHolders);
/// Without a body.
PTicket process(const std::string &conn, const std::string &key, const std::string &method,
                const StringMap &parameters, const StringMap &placeHolders);
/// With the body as it is, and options and placeholders from the Parameters.
PTicket process(const std::string &conn, const std::string &key, const std::string &method, const char *data,
                size_t length, const Parameters &parameters);
/// @}

PTicket get(const std::string &conn, const std::string &key);
PTicket get(const std::string &conn, const std::string &key, const Parameters &parameters);
template <class Body>
PTicket get(const std::string &conn, const std::string &key, const Body &body, OnSuccessTree<Body> success,
            OnFailure failure);

/// Of the resource with that id. The texts of a get's Parameters go into the query.
/// @{
PTicket get(const std::string &conn, const std::string &key, unsigned long long id);
PTicket get(const std::string &conn, const std::string &key, unsigned long long id,
            const StringMap &placeHolders);
PTicket get(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters);
template <class Body>
PTicket get(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
            OnSuccessId<Body> success, OnFailure failure);
/// @}

template <class Body> PTicket put(const std::string &conn, const std::string &key, const Body &body);
template <class Body>
PTicket put(const std::string &conn, const std::string &key, const Body &body, OnSuccess<Body> success,
            OnFailure failure);
PTicket put(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters);
template <class Body>
PTicket put(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
            OnSuccessId<Body> success, OnFailure failure);

template <class Body> PTicket post(const std::string &conn, const std::string &key, const Body &body);
template <class Body>
PTicket post(const std::string &conn, const std::string &key, const Body &body, OnSuccess<Body> success,
             OnFailure failure);
template <class Body>
PTicket post(const std::string &conn, const std::string &key, unsigned long long id, const Body &body,
             OnSuccessId<Body> success, OnFailure failure);

/// After success the action of that name begins, if there is one, with the connection added to the parameters
/// as "deviceKey" and, in the second forms, the id as "id".
/// @{
PTicket put(const std::string &conn, const std::string &key, const Parameters &parameters,
            const std::string &actionName, OnFailure failure);
PTicket put(const std::string &conn, const std::string &key, unsigned long long id,
            const Parameters &parameters, const std::string &actionName, OnFailure failure);
PTicket post(const std::string &conn, const std::string &key, const Parameters &parameters,
             const std::string &actionName, OnFailure failure);
PTicket post(const std::string &conn, const std::string &key, unsigned long long id,
             const Parameters &parameters, const std::string &actionName, OnFailure failure);
/// @}
} // namespace Action
