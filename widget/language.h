// Texts of the screen: keys stay keys until they are drawn, and styles come in two forms by language. GUI
// thread.
#pragma once

#include <QString>

namespace VASK
{
/// The text of a key in the language of the panel; the key itself if it has none.
QString translated(const QString &key);

/// True while the panel speaks English, false for Chinese.
bool englishChosen();

/// The font family of the language in use, as style sheets name it.
QString fontFamily();
} // namespace VASK
