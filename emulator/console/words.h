// The words of the console. Each subject has its table of rows; a new word is a row and a function.
#pragma once

#include "emulator/console/session.h"

#include <QVector>

struct Word {
    const char *name;
    const char *usage;  ///< the arguments
    const char *effect; ///< for help
    /// Answers the request, at once or later, with ok or fail of the session.
    void (*handle)(Session &session, const QStringList &arguments);
};

QVector<Word> keypadWords();
QVector<Word> panelWords();
QVector<Word> busWords();
QVector<Word> deviceWords();
QVector<Word> modelWords();
QVector<Word> sessionWords();
QVector<Word> faultWords();

/// Finds the word in the tables and lets it answer.
void handleWord(Session &session, const QString &name, const QStringList &arguments);

/// For words: ends the request with how the word is used.
void failUsage(Session &session, const char *name);
