// The answer of the device service: a tree of typed nodes, searched by dotted paths and by conditions. Built
// on the network worker and then handed to the main thread; no lock, so one thread at a time.
#pragma once

#include "framework/communication/http/any.h"

#include <QByteArray>
#include <QMetaType>
#include <map>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

class ResultSet : public std::enable_shared_from_this<ResultSet>
{
public:
    enum Type : int { Object = 0, String = 1, Integer = 2, Float = 3, Boolean = 4, Null = 6 };
    using Children = std::multimap<std::string, std::shared_ptr<ResultSet>>;
    using List = std::vector<std::shared_ptr<ResultSet>>;

    static const char *const rootKey;

    /// A null node without a key.
    ResultSet();

    /// The tree of a JSON text. Text that is no JSON, or nested deeper than any answer is, gives a tree whose
    /// one child "error" holds it; nothing is thrown.
    static std::shared_ptr<ResultSet> fromJson(const QByteArray &text);
    /// Two answers as children of one node named rootKey; one of them may be such a node already.
    static std::shared_ptr<ResultSet> merge(std::shared_ptr<ResultSet> a, std::shared_ptr<ResultSet> b);
    /// A node without children that takes some.
    static std::shared_ptr<ResultSet> object(const std::string &key = {});
    static std::shared_ptr<ResultSet> string(const std::string &key, const std::string &value);

    /// Takes a child under the child's own key. Nothing happens on a node that is no object.
    void add(std::shared_ptr<ResultSet> child);
    /// A child "id" with that text.
    void addId(const std::string &id);

    std::string key() const { return m_key; }
    void setKey(const std::string &key) { m_key = key; }
    int type() const { return m_type; }

    /// The value, or the neutral one on a node of another type. A number too large for the result gives the
    /// nearest one that fits, an integer narrowed to int its low bits.
    /// @{
    bool getBoolean() const;
    std::string getString() const;
    int getInt() const;
    long long getInt64() const;
    double getFloat() const;
    /// @}

    /// The children of an object: all of them sorted by key, those of a key, those of a key whose "id" it is.
    /// @{
    List getList() const;
    List getList(const std::string &key) const;
    List getList(const std::string &key, unsigned long long id) const;
    /// @}

    /// Has the node a child of that key with that value? Numbers are compared as text: "%lld" and "%f".
    /// @{
    bool matchValue(const std::string &key, const std::string &expected) const;
    bool matchValue(const std::string &key, const char *expected) const
    {
        return matchValue(key, std::string(expected));
    }
    bool matchValue(const std::string &key, bool expected) const;
    /// @}

    /// What stands at a path; a null node, never a null pointer, if there is nothing. A path that runs into a
    /// value ends there. The conditions are for the first element of the path.
    /// @{
    std::shared_ptr<ResultSet> findPath(const std::vector<std::string> &path,
                                        const std::map<std::string, std::string> &conditions) const;
    std::shared_ptr<ResultSet> findPath(const std::string &path) const;
    /// @}
    /// The same in the answer of a resource: this node has that name, or it is a node of several answers and
    /// one of them has it.
    /// @{
    std::shared_ptr<ResultSet> findPath(const char *name, const std::string &path) const;
    std::shared_ptr<ResultSet> findPath(const char *name, unsigned long long id) const;
    std::shared_ptr<ResultSet> findPath(const char *name, unsigned long long id,
                                        const std::string &path) const;
    /// @}

private:
    friend void parse(const std::shared_ptr<ResultSet> &node, const nlohmann::json &json);

    ResultSet(std::string key, Type type, Any value);
    std::shared_ptr<ResultSet> findNamed(const char *name, std::vector<std::string> path,
                                         const std::map<std::string, std::string> &conditions) const;
    const Children *children() const { return m_value.look<Children>(); }

    std::string m_key;
    Type m_type;
    Any m_value;
};

using PResultSet = std::shared_ptr<ResultSet>;
Q_DECLARE_METATYPE(PResultSet)

/// A null node without a key.
PResultSet makeNull();
/// Adds a child for each element of a JSON value.
void parse(const PResultSet &node, const nlohmann::json &json);
/// Pieces of a text, without the empty ones.
std::vector<std::string> split(const std::string &text, char separator);
