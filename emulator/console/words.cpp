#include "emulator/console/words.h"

#include <QFileInfo>

namespace
{
constexpr int callWidth = 44; ///< of the first column of the help

void help(Session &session, const QStringList &);
void changeFolder(Session &session, const QStringList &arguments);

QVector<Word> generalWords()
{
    return {
        {"help", "", "this list", help},
        {"cd", "DIR", "where relative file names start from, for this connection", changeFolder},
    };
}

const QVector<Word> &allWords()
{
    static const QVector<Word> words = keypadWords() + panelWords() + busWords() + deviceWords() +
                                       modelWords() + sessionWords() + faultWords() + generalWords();
    return words;
}

void help(Session &session, const QStringList &)
{
    for (const Word &word : allWords()) {
        const QString call = QString("%1 %2").arg(word.name, word.usage).trimmed();
        if (call.size() > callWidth)
            session.print(call + '\n' + QString(callWidth, ' ') + "  " + word.effect);
        else
            session.print(QString("%1  %2").arg(call, -callWidth).arg(word.effect));
    }
    session.ok();
}

void changeFolder(Session &session, const QStringList &arguments)
{
    if (arguments.size() != 1)
        return failUsage(session, "cd");
    const QString folder = session.absolutePath(arguments[0]);
    if (!QFileInfo(folder).isDir())
        return session.fail("no such folder: " + folder);
    session.setFolder(folder);
    session.ok();
}
} // namespace

void failUsage(Session &session, const char *name)
{
    for (const Word &word : allWords()) {
        if (qstrcmp(word.name, name) == 0)
            return session.fail(QString("usage: %1 %2").arg(word.name, word.usage));
    }
}

void handleWord(Session &session, const QString &name, const QStringList &arguments)
{
    for (const Word &word : allWords()) {
        if (name == QLatin1String(word.name))
            return word.handle(session, arguments);
    }
    session.fail(QString("no such word: %1 (help lists them)").arg(name));
}
