#include "framework/communication/http/jsontext.h"

#include <cmath>
#include <limits>
#include <stdexcept>

using nlohmann::json;

namespace jsontext
{
json parse(const QByteArray &text)
{
    const auto notTooDeep = [](int depth, json::parse_event_t, const json &) {
        if (depth > deepest)
            throw std::length_error("nested too deep");
        return true;
    };
    return json::parse(text.cbegin(), text.cend(), notTooDeep);
}

std::string dump(const json &value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

json *place(json &value, const std::vector<std::string> &path)
{
    if (path.empty() || path.size() > size_t(deepest))
        return nullptr;
    json *at = &value;
    for (const std::string &piece : path) {
        if (!at->is_object())
            *at = json::object();
        at = &(*at)[piece];
    }
    return at->is_object() ? nullptr : at;
}

template <class Integer> Integer toInteger(double value)
{
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value))
        return 0;
    if (value >= std::ldexp(1.0, Limits::digits))
        return Limits::max();
    if (value <= double(Limits::min()))
        return Limits::min();
    return static_cast<Integer>(value);
}

template int toInteger<int>(double value);
template long long toInteger<long long>(double value);
} // namespace jsontext
