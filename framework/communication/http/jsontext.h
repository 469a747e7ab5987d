// JSON text from outside and paths from inside, both with a bound: what is nested deeper than any message is
// refused before a recursion over it could end the process.
#pragma once

#include <QByteArray>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace jsontext
{
/// Levels of a JSON value; the service's answers have fewer than ten.
constexpr int deepest = 500;

/// Throws std::exception for text that is no JSON or is nested too deep.
nlohmann::json parse(const QByteArray &text);
/// Compact text. Bytes that are no UTF-8 are replaced.
std::string dump(const nlohmann::json &json);

/// The place of a path in a JSON value, with the objects on the way made. What is in the way of an object
/// gives way, and an object that is there stays: then, and for a path that is too deep or empty, the result
/// is null.
nlohmann::json *place(nlohmann::json &json, const std::vector<std::string> &path);
/// A floating-point number as an integer, the nearest one where it does not fit.
template <class Integer> Integer toInteger(double value);
} // namespace jsontext
