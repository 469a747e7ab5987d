#include "emulator/console/words.h"

#include "emulator/console/wordlist.h"

#include <QFileInfo>
#include <QJsonObject>

namespace
{
using Handler = void (*)(Session &, Arguments &);

constexpr Handler handlers[] = {
#define WORD(name, usage, effect) words::name,
#include "emulator/console/wordlist.inc"
#undef WORD
};

const WordText *findByName(const QString &name)
{
    return findWord(
        [&name](const char *word) { return name.compare(QLatin1String(word), Qt::CaseInsensitive) == 0; });
}

void failUnknown(Session &session, const QString &name)
{
    session.fail(Failure::usage, QString("no such word: %1 (help lists them)").arg(name));
}
} // namespace

void words::help(Session &session, Arguments &arguments)
{
    session.setJson(arguments.flag("--json"));
    const QString name = arguments.text("WORD", "");
    if (!session.accepts(arguments))
        return;
    const WordText *word = findByName(name);
    if (!word && !name.isEmpty())
        return failUnknown(session, name);
    if (!session.isJson())
        session.print(QString::fromStdString(word ? helpText(*word) : helpText()).trimmed());
    for (const WordText &text : wordTexts) {
        if (session.isJson() && (!word || word == &text))
            session.tell(QString(), {{"word", text.name}, {"usage", text.usage}, {"effect", text.effect}});
    }
    session.ok();
}

void words::cd(Session &session, Arguments &arguments)
{
    const QString name = arguments.text("DIR");
    if (!session.accepts(arguments))
        return;
    const QString folder = session.takePath(name);
    if (folder.isEmpty())
        return;
    if (!QFileInfo(folder).isDir())
        return session.fail("no such folder: " + folder);
    session.setFolder(folder);
    session.ok();
}

void handleWord(Session &session, const QString &name, const QStringList &list)
{
    const WordText *word = findByName(name);
    if (!word)
        return failUnknown(session, name);
    Arguments arguments(list);
    session.setUsage(QString("%1 %2").arg(word->name, word->usage).trimmed());
    handlers[word - wordTexts](session, arguments);
}
