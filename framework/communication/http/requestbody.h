// Named values as the JSON of a request. A key is a dotted path; a value of a type that JSON has no form for
// is left out.
#pragma once

#include "framework/communication/http/parameters.h"

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace Action
{
/// Sets a value at a path, with the objects on the way made.
void constructJson(const std::vector<std::string> &path, const Any &value, nlohmann::json &json);
/// Sets a value as the member of that name.
void setValue(const std::string &key, const Any &value, nlohmann::json &json);
/// An array with an object for each element, of its body.
void setArray(const std::vector<Parameters> &list, nlohmann::json &json);

/// The body of a request as compact text; "null" for one without values.
/// @{
std::string bodyText(const Parameters &parameters);
std::string bodyText(const std::vector<Parameters> &list);
/// @}
} // namespace Action
