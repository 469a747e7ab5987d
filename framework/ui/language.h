// Texts of the screen: keys stay keys until they are drawn, and styles come in two forms by language. GUI
// thread.
#pragma once

#include <QString>

class QObject;

namespace VASK
{
/// The text of a key in the language of the panel; the key itself if it has none.
QString translated(const QString &key);

/// True while the panel speaks English, false for Chinese.
bool englishChosen();

/// The board's file with the texts of a language.
QString languageFile(bool english);

/// Puts the texts of a language before all that are in use; what this call put there before, for the same
/// owner, goes. False, with a log line, if they cannot be had: the panel goes on with the texts it has.
bool installLanguage(QObject *owner, bool english);

/// The font family of the language in use, as style sheets name it.
QString fontFamily();
} // namespace VASK
