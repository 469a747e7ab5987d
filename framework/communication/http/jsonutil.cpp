#include "framework/communication/http/jsonutil.h"

#include "framework/communication/http/jsontext.h"

#include <optional>

using nlohmann::json;

namespace
{
constexpr const char *codeKey = "code";
constexpr const char *dataKey = "data";

/// Where a reader begins, and what it makes of objects in objects.
enum class From { Data, Text };
enum class Objects { Nested, Flat };

QString text(const std::string &utf8)
{
    return QString::fromStdString(utf8);
}

std::optional<json> readText(const QString &text)
{
    if (text.isEmpty())
        return std::nullopt;
    try {
        return jsontext::parse(text.toUtf8());
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

std::optional<json> codeOf(const QString &text)
{
    const std::optional<json> value = readText(text);
    if (!value || !value->is_object() || !value->contains(codeKey) || !value->at(codeKey).is_number())
        return std::nullopt;
    return value->at(codeKey);
}

/// The value to read, if it is of that kind.
std::optional<json> readKind(const QString &text, From from, json::value_t kind)
{
    std::optional<json> value = readText(text);
    if (value && from == From::Data) {
        if (!value->is_object() || !value->contains(dataKey))
            return std::nullopt;
        value = json(std::move(value->at(dataKey)));
    }
    return value && value->type() == kind ? value : std::nullopt;
}

void addMembers(const json &object, const QString &prefix, Objects objects, JsonUtil::Map &map);

QVariant variant(const json &value, Objects objects)
{
    switch (value.type()) {
    case json::value_t::number_integer:
        return QVariant(value.get<qlonglong>());
    case json::value_t::number_unsigned:
        return QVariant(value.get<qulonglong>());
    case json::value_t::number_float:
        return value.get<double>();
    case json::value_t::string:
        return text(value.get_ref<const std::string &>());
    case json::value_t::boolean:
        return value.get<bool>();
    case json::value_t::array: {
        QVariantList list;
        for (const json &element : value)
            list.append(variant(element, objects));
        return list;
    }
    case json::value_t::object: {
        QVariantMap map;
        addMembers(value, QString(), objects, map);
        return map;
    }
    default:
        return QVariant();
    }
}

void addMembers(const json &object, const QString &prefix, Objects objects, JsonUtil::Map &map)
{
    for (const auto &member : object.items()) {
        const QString key = prefix + text(member.key());
        if (member.value().is_object() && objects == Objects::Flat)
            addMembers(member.value(), key + '.', objects, map);
        else if (!member.value().is_null())
            map.insert(key, variant(member.value(), objects));
    }
}

bool readMap(const QString &text, From from, Objects objects, JsonUtil::Map &map)
{
    const std::optional<json> value = readKind(text, from, json::value_t::object);
    if (value)
        addMembers(*value, QString(), objects, map);
    return value.has_value();
}

bool readList(const QString &text, From from, Objects objects, JsonUtil::List &list)
{
    const std::optional<json> value = readKind(text, from, json::value_t::array);
    if (value)
        list += variant(*value, objects).toList();
    return value.has_value();
}

json jsonOf(const QVariant &value, int levels);

/// A map whose keys are paths; what would stand deeper than the levels left is dropped.
json objectOf(const JsonUtil::Map &map, int levels)
{
    json object = json::object();
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        std::vector<std::string> path;
        for (const QString &piece : entry.key().split('.'))
            path.push_back(piece.toStdString());
        if (int(path.size()) > levels)
            continue;
        if (json *place = jsontext::place(object, path))
            *place = jsonOf(entry.value(), levels - int(path.size()));
    }
    return object;
}

json jsonOf(const QVariant &value, int levels)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return value.toULongLong();
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
        return value.toString().toStdString();
    case QMetaType::QByteArray: {
        json array = json::array();
        for (const char byte : value.toByteArray())
            array.push_back(static_cast<unsigned char>(byte));
        return array;
    }
    case QMetaType::QStringList: {
        json array = json::array();
        for (const QString &element : value.toStringList())
            array.push_back(element.toStdString());
        return array;
    }
    case QMetaType::QVariantList: {
        json array = json::array();
        for (const QVariant &element : levels > 0 ? value.toList() : QVariantList())
            array.push_back(jsonOf(element, levels - 1));
        return array;
    }
    case QMetaType::QVariantMap:
        return objectOf(value.toMap(), levels);
    default:
        return nullptr;
    }
}
} // namespace

int JsonUtil::getCode(const QString &text)
{
    const std::optional<json> code = codeOf(text);
    if (!code)
        return 0;
    return code->is_number_float() ? jsontext::toInteger<int>(code->get<double>()) : code->get<int>();
}

bool JsonUtil::checkJsonFormat(const QString &text)
{
    const std::optional<json> code = codeOf(text);
    return code && *code == 0;
}

bool JsonUtil::fromJsonToMap(const QString &text, Map &map)
{
    return readMap(text, From::Data, Objects::Nested, map);
}

bool JsonUtil::fromJsonToList(const QString &text, List &list)
{
    return readList(text, From::Data, Objects::Nested, list);
}

bool JsonUtil::fromJsonToKeyPathMap(const QString &text, Map &map)
{
    return readMap(text, From::Data, Objects::Flat, map);
}

bool JsonUtil::fromJsonToKeyPathList(const QString &text, List &list)
{
    return readList(text, From::Data, Objects::Flat, list);
}

bool JsonUtil::fromJsonToKeyPathMapWithoutData(const QString &text, Map &map)
{
    return readMap(text, From::Text, Objects::Flat, map);
}

bool JsonUtil::fromJsonToKeyPathListWithoutData(const QString &text, List &list)
{
    return readList(text, From::Text, Objects::Flat, list);
}

bool JsonUtil::fromJsonToMapWithoutData(const QString &text, Map &map)
{
    return readMap(text, From::Text, Objects::Nested, map);
}

std::string JsonUtil::toJson(const Map &map)
{
    return jsontext::dump(objectOf(map, jsontext::deepest));
}

std::string JsonUtil::toJson(const QVariant &value)
{
    return jsontext::dump(jsonOf(value, jsontext::deepest));
}
