// Text of the device service, fed to what reads it: no byte of it may end the panel, what is read must hold
// together, and what is written again must be readable.

#include "framework/communication/http/jsonutil.h"
#include "framework/communication/http/resultset.h"
#include "tests/fuzz/fuzztarget.h"

namespace
{
/// Every getter on every node, and every node found by its own path.
void walk(const ResultSet &node, int depth)
{
    const ResultSet::List children = node.getList();
    REQUIRE(children.empty() || node.type() == ResultSet::Object);
    (void)(node.getInt() + node.getBoolean() + node.getFloat() + double(node.getString().size()));
    REQUIRE(node.getList("id", static_cast<unsigned long long>(node.getInt64())).size() <= children.size());
    for (const PResultSet &child : children) {
        const PResultSet first = node.findPath(std::vector<std::string>{child->key()}, {});
        REQUIRE(first->key() == child->key());
        if (child->type() == ResultSet::String)
            REQUIRE(first != child || node.matchValue(child->key(), child->getString()));
        REQUIRE(node.findPath(child->key() + ".x.y") != nullptr);
        if (depth < 40)
            walk(*child, depth + 1);
    }
}

void readAsTree(const QByteArray &bytes, const std::string &path)
{
    const PResultSet tree = ResultSet::fromJson(bytes);
    REQUIRE(tree->type() == ResultSet::Object && tree->key().empty());
    walk(*tree, 0);
    REQUIRE(tree->findPath(path) != nullptr);
    tree->setKey(path);
    tree->addId(path);
    REQUIRE(tree->findPath(path.c_str(), 1, path) != nullptr);
    const PResultSet sum = ResultSet::merge(tree, ResultSet::fromJson(bytes));
    REQUIRE(sum->findPath(path.c_str(), path) != nullptr);
}

/// Both forms of a text: what is read from what was written is the same again.
void readAsVariant(const QString &text)
{
    (void)JsonUtil::getCode(text);
    REQUIRE(!JsonUtil::checkJsonFormat(text) || JsonUtil::getCode(text) == 0);
    JsonUtil::Map map;
    JsonUtil::List list;
    if (JsonUtil::fromJsonToMap(text, map) || JsonUtil::analysisJsonToMap(text, map) ||
        JsonUtil::fromJsonToKeyPathMap(text, map) || JsonUtil::fromJsonToKeyPathMapWithoutData(text, map)) {
        const std::string written = JsonUtil::toJson(map);
        JsonUtil::Map again;
        REQUIRE(JsonUtil::fromJsonToMapWithoutData(QString::fromStdString(written), again));
    }
    if (JsonUtil::fromJsonToList(text, list) || JsonUtil::fromJsonToKeyPathListWithoutData(text, list) ||
        JsonUtil::fromJsonToKeyPathList(text, list)) {
        JsonUtil::List again;
        const std::string written = JsonUtil::toJson(QVariant(list));
        REQUIRE(JsonUtil::fromJsonToKeyPathListWithoutData(QString::fromStdString(written), again));
        REQUIRE(again.size() == list.size());
    }
}

void feed(const QByteArray &input)
{
    // The last bytes are a path to look for.
    const int pathSize = input.size() < 32 ? 0 : 8;
    const QByteArray bytes = input.left(input.size() - pathSize);
    readAsTree(bytes, input.right(pathSize).toStdString());
    readAsVariant(QString::fromUtf8(bytes));
}
} // namespace

FPD_FUZZ_TARGET(json, feed, 1024)
