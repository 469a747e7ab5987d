// The words of the console. A new word is a row in wordlist.inc and a function of its name in one of
// *words.cpp, which answers the request, at once or later, with ok or fail of the session.
#pragma once

#include "emulator/console/arguments.h"
#include "emulator/console/session.h"

namespace words
{
#define WORD(name, usage, effect) void name(Session &session, Arguments &arguments);
#include "emulator/console/wordlist.inc"
#undef WORD
} // namespace words

/// Finds the word in the table and lets it answer.
void handleWord(Session &session, const QString &name, const QStringList &arguments);
