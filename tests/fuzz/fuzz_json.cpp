// Text of the device service, fed to what reads it: no byte of it may end the panel, what is read must hold
// together, and what is written again must be readable.

#include "framework/communication/http/jsonutil.h"
#include "framework/communication/http/resultset.h"

#include <cstdint>
#include <cstdlib>

namespace
{
void require(bool holds)
{
    if (!holds)
        abort();
}

/// Every getter on every node, and every node found by its own path.
void walk(const ResultSet &node, int depth)
{
    const ResultSet::List children = node.getList();
    require(children.empty() || node.type() == ResultSet::Object);
    (void)(node.getInt() + node.getBoolean() + node.getFloat() + double(node.getString().size()));
    require(node.getList("id", static_cast<unsigned long long>(node.getInt64())).size() <= children.size());
    for (const PResultSet &child : children) {
        const PResultSet first = node.findPath(std::vector<std::string>{child->key()}, {});
        require(first->key() == child->key());
        if (child->type() == ResultSet::String)
            require(first != child || node.matchValue(child->key(), child->getString()));
        require(node.findPath(child->key() + ".x.y") != nullptr);
        if (depth < 40)
            walk(*child, depth + 1);
    }
}

void readAsTree(const QByteArray &bytes, const std::string &path)
{
    const PResultSet tree = ResultSet::fromJson(bytes);
    require(tree->type() == ResultSet::Object && tree->key().empty());
    walk(*tree, 0);
    require(tree->findPath(path) != nullptr);
    tree->setKey(path);
    tree->addId(path);
    require(tree->findPath(path.c_str(), 1, path) != nullptr);
    const PResultSet sum = ResultSet::merge(tree, ResultSet::fromJson(bytes));
    require(sum->findPath(path.c_str(), path) != nullptr);
}

/// Both forms of a text: what is read from what was written is the same again.
void readAsVariant(const QString &text)
{
    (void)JsonUtil::getCode(text);
    require(!JsonUtil::checkJsonFormat(text) || JsonUtil::getCode(text) == 0);
    JsonUtil::Map map;
    JsonUtil::List list;
    if (JsonUtil::fromJsonToMap(text, map) || JsonUtil::analysisJsonToMap(text, map) ||
        JsonUtil::fromJsonToKeyPathMap(text, map) || JsonUtil::fromJsonToKeyPathMapWithoutData(text, map)) {
        const std::string written = JsonUtil::toJson(map);
        JsonUtil::Map again;
        require(JsonUtil::fromJsonToMapWithoutData(QString::fromStdString(written), again));
    }
    if (JsonUtil::fromJsonToList(text, list) || JsonUtil::fromJsonToKeyPathListWithoutData(text, list) ||
        JsonUtil::fromJsonToKeyPathList(text, list)) {
        JsonUtil::List again;
        const std::string written = JsonUtil::toJson(QVariant(list));
        require(JsonUtil::fromJsonToKeyPathListWithoutData(QString::fromStdString(written), again));
        require(again.size() == list.size());
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The last bytes are a path to look for.
    const size_t pathSize = size < 32 ? 0 : 8;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size - pathSize));
    readAsTree(bytes, std::string(reinterpret_cast<const char *>(data) + size - pathSize, pathSize));
    readAsVariant(QString::fromUtf8(bytes));
    return 0;
}
