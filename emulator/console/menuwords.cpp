// Words that read the panel as a user does and act on what they read: rules, the store, a walk through the
// menu.
#include "emulator/console/keyarguments.h"
#include "emulator/console/words.h"
#include "emulator/device/menuwalker.h"
#include "emulator/emulator.h"
#include "emulator/host/storefile.h"

#include <QJsonDocument>

namespace
{
void listRules(Session &session)
{
    QJsonArray rules;
    for (const KeyRule &rule : session.emulator.keyRules.all()) {
        if (session.isJson())
            rules.append(QJsonObject{{"text", rule.text}, {"key", rule.name}, {"pressed", rule.pressed}});
        else
            session.print(QString("when text \"%1\" key %2: pressed %3 times")
                              .arg(rule.text, rule.name)
                              .arg(rule.pressed));
    }
    if (session.isJson())
        session.print(QJsonDocument(rules));
    session.ok();
}

void takeRule(Session &session, Arguments &arguments)
{
    arguments.choice({"text", "clear"});
    const QString text = arguments.text("TEXT");
    if (text.isEmpty())
        arguments.complain("TEXT is empty");
    arguments.choice({"key"});
    const QString name = arguments.peek();
    const QVector<int> keys = takeKeys(arguments);
    if (!session.accepts(arguments))
        return;
    session.emulator.keyRules.add(text, keys, name);
    session.ok();
}

QJsonObject toJson(const StoreItem &item)
{
    QJsonObject object = item.fields;
    object.insert("Index", item.number);
    return object;
}

void printItems(Session &session, const QVector<StoreItem> &items)
{
    QJsonArray array;
    for (const StoreItem &item : items) {
        if (session.isJson())
            array.append(toJson(item));
        else
            session.print(QString("%1 %2 %3").arg(item.number).arg(item.name, item.value).trimmed());
    }
    if (session.isJson())
        session.print(QJsonDocument(array));
    session.ok();
}
} // namespace

void words::when(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    if (!arguments.isEmpty() && !arguments.nextIs("clear"))
        return takeRule(session, arguments);
    const bool clears = !arguments.isEmpty();
    if (clears)
        arguments.choice({"clear"});
    if (!session.accepts(arguments))
        return;
    if (!clears)
        return listRules(session);
    session.emulator.keyRules.clear();
    session.ok();
}

void words::store(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    const bool gets = arguments.choice({"get", "list"}) == "get";
    const QString name = gets ? arguments.text("ITEM") : arguments.text("ITEM", "");
    if (!session.accepts(arguments))
        return;
    const auto items = storefile::read(session.emulator.folder.path());
    if (!items)
        return session.fail("the panel has no store, or writes it just now");
    const auto found = name.isEmpty() ? *items : storefile::find(*items, name);
    if (found.isEmpty() || (gets && found.size() != 1))
        return session.fail(storefile::notOne(found, name));
    if (!gets)
        return printItems(session, found);
    session.tell(found[0].value, toJson(found[0]));
    session.ok();
}

void words::go(Session &session, Arguments &arguments)
{
    const bool opensLast = arguments.flag("--open");
    const QStringList path = arguments.rest();
    if (path.isEmpty())
        arguments.complain("PATH is missing");
    if (!session.accepts(arguments))
        return;
    auto *walker = new MenuWalker(session.emulator, path, opensLast, session.request());
    QObject::connect(walker, &MenuWalker::ended, session.request(), [&session](const QString &fault) {
        if (fault.isEmpty())
            session.ok();
        else
            session.fail(fault);
    });
    walker->start();
}
