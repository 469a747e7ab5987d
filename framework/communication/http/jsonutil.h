// JSON text in the service's envelope {"code": 0, "data": ...} to and from QVariant. The reading operations
// are false, and leave their target as it was, for empty text, text that is no JSON and a value of the wrong
// kind; else the members join those that are in the target already. Any thread.
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <string>

class JsonUtil
{
public:
    using Map = QMap<QString, QVariant>;
    using List = QList<QVariant>;

    /// The number in "code", 0 if there is none.
    static int getCode(const QString &text);
    /// Is it an answer of success: an object whose "code" is the number 0?
    static bool checkJsonFormat(const QString &text);

    /// The members of "data", which is an object (map) or an array (list); nulls of an object are left out.
    /// @{
    static bool fromJsonToMap(const QString &text, Map &map);
    static bool fromJsonToList(const QString &text, List &list);
    /// @}
    /// The same with nested objects flattened: a member of a member stands under "parent.member".
    /// @{
    static bool fromJsonToKeyPathMap(const QString &text, Map &map);
    static bool fromJsonToKeyPathList(const QString &text, List &list);
    /// @}
    /// The same of the text itself instead of its "data".
    /// @{
    static bool fromJsonToKeyPathMapWithoutData(const QString &text, Map &map);
    static bool fromJsonToKeyPathListWithoutData(const QString &text, List &list);
    static bool fromJsonToMapWithoutData(const QString &text, Map &map);
    static bool analysisJsonToMap(const QString &text, Map &map)
    {
        return fromJsonToMapWithoutData(text, map);
    }
    /// @}

    /// Compact text; each key of a map is a path of nested objects, cut at ".", empty pieces included.
    /// @{
    static std::string toJson(const Map &map);
    static std::string toJson(const QVariant &value);
    /// @}
};
