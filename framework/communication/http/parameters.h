// Named values on their way to the device service. A key of the body is a dotted path: "pos.x" becomes the
// member "x" of the object "pos". Plain values, without a lock.
#pragma once

#include "framework/communication/http/any.h"

#include <stdexcept>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// One table of named values.
class Parameters_
{
public:
    /// False, and nothing changes, if the key is there already.
    template <class T> bool insert(const std::string &key, T value)
    {
        return m_values.emplace(key, Any(std::move(value))).second;
    }
    bool insert(const std::string &key, const char *value) { return insert(key, std::string(value)); }

    /// Copies of all entries, in no particular order.
    std::vector<std::pair<std::string, Any>> getList() const { return {m_values.begin(), m_values.end()}; }
    /// The value in its place, null if there is none.
    const Any *look(const std::string &key) const
    {
        const auto found = m_values.find(key);
        return found == m_values.end() ? nullptr : &found->second;
    }

private:
    std::unordered_map<std::string, Any> m_values;
};

/// All that a request takes with it.
struct Parameters {
    Parameters_ body;    ///< what becomes the JSON of the request
    Parameters_ options; ///< how this one request is carried: "timeout" in seconds (int), "saveTo" (text)
    Parameters_ placeholders; ///< replacements for {name} in the path, all of them std::string

    /// A value of the body. std::out_of_range for a missing key, std::bad_cast for one of another type.
    template <class T> T get(const char *key) const
    {
        const Any *value = body.look(key);
        if (!value)
            throw std::out_of_range("No item found by the input KEY.");
        return value->cast<T>();
    }
};
