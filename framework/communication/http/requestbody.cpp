#include "framework/communication/http/requestbody.h"

#include "framework/communication/http/jsontext.h"
#include "framework/communication/http/resultset.h"

#include <optional>

using nlohmann::json;

namespace Action
{
namespace
{
/// Tries the types one after the other.
template <class... Types> std::optional<json> jsonOfTypes(const Any &value)
{
    std::optional<json> found;
    const auto tryType = [&](const auto *held) {
        if (held)
            found = json(*held);
        return held != nullptr;
    };
    (void)(tryType(value.look<Types>()) || ...);
    return found;
}

template <class... Elements> std::optional<json> jsonOfLists(const Any &value)
{
    return jsonOfTypes<std::vector<Elements>...>(value);
}

json objectOf(const Parameters &parameters)
{
    json object;
    for (const auto &[key, value] : parameters.body.getList())
        constructJson(split(key, '.'), value, object);
    return object;
}

std::optional<json> jsonOf(const Any &value)
{
    if (const auto *list = value.look<std::vector<Parameters>>()) {
        json array;
        setArray(*list, array);
        return array;
    }
    std::optional<json> found =
        jsonOfTypes<int, long long, short, signed char, unsigned int, unsigned long long, unsigned short,
                    unsigned char, float, double, bool, std::string>(value);
    if (!found)
        found = jsonOfLists<unsigned long long, long long, unsigned short, short, signed char, unsigned char,
                            int, unsigned int, std::string>(value);
    return found;
}
} // namespace

void constructJson(const std::vector<std::string> &path, const Any &value, json &object)
{
    const std::optional<json> made = jsonOf(value);
    if (!made)
        return;
    if (json *place = jsontext::place(object, path))
        *place = *made;
}

void setValue(const std::string &key, const Any &value, json &object)
{
    constructJson({key}, value, object);
}

void setArray(const std::vector<Parameters> &list, json &array)
{
    array = json::array();
    for (const Parameters &element : list)
        array.push_back(objectOf(element));
}

std::string bodyText(const Parameters &parameters)
{
    return jsontext::dump(objectOf(parameters));
}

std::string bodyText(const std::vector<Parameters> &list)
{
    json array;
    setArray(list, array);
    return jsontext::dump(array);
}
} // namespace Action
