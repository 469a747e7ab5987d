// The message of the protocol object to the HTTP client: one request and who is told of its end. Made for
// each request; the functions are copied on the way down.
#pragma once

#include "framework/communication/http/action.h"

#include <QMap>
#include <QString>
#include <string>
#include <vector>

namespace VASK
{
/// Verb and form of a request. The first three have nobody to tell and send nothing.
enum methontype : int {
    METHOD_Get = 0,
    METHOD_GetId = 1,
    METHOD_GetIdPlaceHolders = 2,
    METHOD_GetTree = 3,
    METHOD_Put = 4,
    METHOD_PutList = 5,
    METHOD_Post = 6,
    METHOD_PostList = 7,
    METHOD_PutId = 8,
    METHOD_PutIdList = 9,
    METHOD_PostId = 10,
    METHOD_PostIdList = 11,
};

struct ST_Protocol4rdMsg {
    std::string key; ///< of the catalogue
    methontype type = METHOD_Get;
    unsigned long long id = 0;                                      ///< stands for {id} in the path
    QMap<QString, QString> placeHolders;                            ///< further ones
    Parameters parameters;                                          ///< the body, as an object ...
    std::vector<Parameters> parameterList;                          ///< ... or as a list
    Action::OnSuccess<Parameters> onSuccess;                        ///< put and post
    Action::OnSuccessTree<Parameters> onSuccessTree;                ///< get
    Action::OnSuccess<Action::ParameterList> onListSuccess;         ///< put and post of a list
    Action::OnSuccessTree<Action::ParameterList> onListSuccessTree; ///< no form of this client
    Action::OnSuccessId<Parameters> onIdSuccess;                    ///< put and post with id
    Action::OnSuccessId<Action::ParameterList> onListIdSuccess;     ///< put and post of a list with id
    Action::OnFailure onFailure;                                    ///< all
};
} // namespace VASK
