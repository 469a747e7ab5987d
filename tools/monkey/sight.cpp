#include "tools/monkey/sight.h"

#include "client/panel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
struct Text {
    QString role, text;
    bool isFocused, isEdited, isDisabled;
};

void take(Sight &sight, const Text &text)
{
    if (text.role == "title") {
        sight.title += text.text;
    } else if (text.role == "row label") {
        sight.labels << text.text;
        if (text.isFocused) {
            sight.row = text.text;
            sight.isDisabled = text.isDisabled;
        }
    } else if (text.role == "value") {
        if (text.isFocused)
            sight.value += text.text;
    } else if (text.role == "button") {
        sight.buttons << text.text;
    } else if (text.role == "message") {
        sight.text += text.text;
        if (text.isFocused) // one of several pictures with their names
            sight.buttons << text.text;
    }
    sight.isEdited |= text.isEdited;
}

Sight::Kind kindOf(const QStringList &roles)
{
    for (const auto &row : {std::pair{"message", Sight::Message},
                            {"button", Sight::Message},
                            {"list entry", Sight::List},
                            {"title", Sight::Page},
                            {"home field", Sight::Home}})
        if (roles.contains(row.first))
            return row.second;
    return Sight::Nothing;
}
} // namespace

QString Sight::describe() const
{
    static const char *const kinds[] = {"nothing", "home", "page", "list", "message"};
    return QStringList{kinds[kind], title, row, kind == Message ? text : value, isEdited ? "edited" : ""}
        .join(" | ");
}

Sight lookAt(Panel &panel)
{
    Sight sight;
    QStringList roles;
    const Answer answer = panel.ask({"screen", "text", "--json"});
    for (const QJsonValue &value : QJsonDocument::fromJson(answer.lines.value(0).toUtf8()).array()) {
        const QJsonArray states = value["state"].toArray();
        QString shown = value["whole"].toString();
        if (shown.isEmpty())
            shown = value["text"].toString();
        const Text text{value["role"].toString(), shown.remove('\n'), states.contains("focused"),
                        states.contains("edited"), states.contains("disabled")};
        roles << text.role;
        take(sight, text);
    }
    sight.kind = kindOf(roles);
    return sight;
}
