#include "framework/communication/http/resultset.h"

#include "framework/communication/http/jsontext.h"

#include <algorithm>

using nlohmann::json;

const char *const ResultSet::rootKey = "Root";

namespace
{
constexpr const char *idKey = "id";
constexpr const char *errorKey = "error";

/// As "%f" prints it, whatever the language of the environment.
std::string fixedPoint(double value)
{
    return QByteArray::number(value, 'f', 6).toStdString();
}
} // namespace

PResultSet makeNull()
{
    return std::make_shared<ResultSet>();
}

std::vector<std::string> split(const std::string &text, char separator)
{
    std::vector<std::string> pieces;
    size_t from = 0;
    while (from < text.size()) {
        const size_t to = std::min(text.find(separator, from), text.size());
        if (to > from)
            pieces.push_back(text.substr(from, to - from));
        from = to + 1;
    }
    return pieces;
}

void parse(const PResultSet &node, const json &value)
{
    for (auto element = value.begin(); element != value.end(); ++element) {
        const PResultSet child = makeNull();
        if (value.is_object())
            child->setKey(element.key());
        switch (element->type()) {
        case json::value_t::null:
            break;
        case json::value_t::string:
            child->m_type = ResultSet::String;
            child->m_value = element->get<std::string>();
            break;
        case json::value_t::boolean:
            child->m_type = ResultSet::Boolean;
            child->m_value = element->get<bool>();
            break;
        case json::value_t::number_integer:
        case json::value_t::number_unsigned:
            child->m_type = ResultSet::Integer;
            child->m_value = element->get<long long>();
            break;
        case json::value_t::number_float:
            child->m_type = ResultSet::Float;
            child->m_value = element->get<double>();
            break;
        case json::value_t::object:
        case json::value_t::array:
            child->m_type = ResultSet::Object;
            child->m_value = ResultSet::Children();
            parse(child, *element);
            break;
        default:
            continue;
        }
        node->add(child);
    }
}

ResultSet::ResultSet() : ResultSet(std::string(), Null, Any(0)) {}

ResultSet::ResultSet(std::string key, Type type, Any value)
    : m_key(std::move(key)), m_type(type), m_value(std::move(value))
{
}

PResultSet ResultSet::object(const std::string &key)
{
    return PResultSet(new ResultSet(key, Object, Any(Children())));
}

PResultSet ResultSet::string(const std::string &key, const std::string &value)
{
    return PResultSet(new ResultSet(key, String, Any(value)));
}

PResultSet ResultSet::fromJson(const QByteArray &text)
{
    const PResultSet root = object();
    try {
        parse(root, jsontext::parse(text));
    } catch (const std::exception &) {
        // Nothing of a tree that was begun: an answer is whole or it is its text.
        const PResultSet failed = object();
        failed->add(string(errorKey, text.toStdString()));
        return failed;
    }
    return root;
}

PResultSet ResultSet::merge(PResultSet a, PResultSet b)
{
    if (a->m_key == rootKey) {
        a->add(b);
        return a;
    }
    if (b->m_key == rootKey) {
        b->add(a);
        return b;
    }
    const PResultSet root = object(rootKey);
    root->add(a);
    root->add(b);
    return root;
}

// In place: copying the children for each one that is added would take minutes for a long list.
void ResultSet::add(PResultSet child)
{
    if (Children *children = m_value.look<Children>())
        children->emplace(child->key(), child);
}

void ResultSet::addId(const std::string &id)
{
    add(string(idKey, id));
}

bool ResultSet::getBoolean() const
{
    const bool *value = m_value.look<bool>();
    return value && *value;
}

std::string ResultSet::getString() const
{
    const auto *value = m_value.look<std::string>();
    return value ? *value : std::string();
}

int ResultSet::getInt() const
{
    if (const double *value = m_value.look<double>())
        return jsontext::toInteger<int>(*value);
    return static_cast<int>(getInt64());
}

long long ResultSet::getInt64() const
{
    if (const double *value = m_value.look<double>())
        return jsontext::toInteger<long long>(*value);
    const auto *value = m_value.look<long long>();
    return value ? *value : 0;
}

double ResultSet::getFloat() const
{
    const double *value = m_value.look<double>();
    return value ? *value : static_cast<double>(getInt64());
}

ResultSet::List ResultSet::getList() const
{
    List list;
    if (const Children *all = children())
        for (const auto &child : *all)
            list.push_back(child.second);
    return list;
}

ResultSet::List ResultSet::getList(const std::string &key) const
{
    List list;
    if (const Children *all = children())
        for (auto [child, end] = all->equal_range(key); child != end; ++child)
            list.push_back(child->second);
    return list;
}

ResultSet::List ResultSet::getList(const std::string &key, unsigned long long id) const
{
    List list;
    for (const PResultSet &child : getList(key))
        if (child->matchValue(idKey, std::to_string(id)))
            list.push_back(child);
    return list;
}

bool ResultSet::matchValue(const std::string &key, const std::string &expected) const
{
    const List list = getList(key);
    if (list.empty())
        return false;
    const ResultSet &child = *list.front();
    switch (child.m_type) {
    case Integer:
        return std::to_string(child.getInt64()) == expected;
    case Float:
        return fixedPoint(child.getFloat()) == expected;
    case String:
        return child.getString() == expected;
    default:
        return false;
    }
}

bool ResultSet::matchValue(const std::string &key, bool expected) const
{
    const List list = getList(key);
    return !list.empty() && list.front()->getBoolean() == expected;
}

PResultSet ResultSet::findPath(const std::vector<std::string> &path,
                               const std::map<std::string, std::string> &conditions) const
{
    const ResultSet *node = this;
    PResultSet found;
    for (size_t depth = 0; depth < path.size(); ++depth) {
        if (found && found->m_type != Object)
            return found;
        const List list = node->getList(path[depth]);
        const auto chosen = std::find_if(list.begin(), list.end(), [&](const PResultSet &child) {
            return depth > 0 || std::all_of(conditions.begin(), conditions.end(), [&](const auto &condition) {
                       return child->matchValue(condition.first, condition.second);
                   });
        });
        if (chosen == list.end())
            return makeNull();
        found = *chosen;
        node = found.get();
    }
    return found ? found : makeNull();
}

PResultSet ResultSet::findPath(const std::string &path) const
{
    return findPath(split(path, '.'), {});
}

PResultSet ResultSet::findNamed(const char *name, std::vector<std::string> path,
                                const std::map<std::string, std::string> &conditions) const
{
    if (m_key == rootKey)
        path.insert(path.begin(), name);
    else if (m_key != name)
        return makeNull();
    return findPath(path, conditions);
}

PResultSet ResultSet::findPath(const char *name, const std::string &path) const
{
    return findNamed(name, split(path, '.'), {});
}

PResultSet ResultSet::findPath(const char *name, unsigned long long id) const
{
    return findNamed(name, {}, {{idKey, std::to_string(id)}});
}

PResultSet ResultSet::findPath(const char *name, unsigned long long id, const std::string &path) const
{
    return findNamed(name, split(path, '.'), {{idKey, std::to_string(id)}});
}
