// How the words of the console are used, as a table. Without Qt: fpdctl has it, too.
#pragma once

#include <string>

struct WordText {
    const char *name;
    const char *usage;  ///< the arguments
    const char *effect; ///< a line, and behind it what only the help of this word tells
};

constexpr WordText wordTexts[] = {
#define WORD(name, usage, effect) {#name, usage, effect},
#include "emulator/console/wordlist.inc"
#undef WORD
};

/// The list of all words, a line or two each.
inline std::string helpText()
{
    constexpr size_t callWidth = 44; // of the first column
    std::string text;
    for (const WordText &word : wordTexts) {
        std::string call = std::string(word.name) + (*word.usage ? " " : "") + word.usage;
        if (call.size() > callWidth)
            call += '\n' + std::string(callWidth, ' ');
        else
            call.resize(callWidth, ' ');
        const std::string effect = word.effect;
        text += call + "  " + effect.substr(0, effect.find('\n')) + '\n';
    }
    return text;
}

/// All about one word.
inline std::string helpText(const WordText &word)
{
    return std::string("usage: ") + word.name + (*word.usage ? " " : "") + word.usage + '\n' + word.effect +
           '\n';
}

/// By a name in upper or lower case; null if there is no such word.
template <class IsSame> const WordText *findWord(IsSame isSame)
{
    for (const WordText &word : wordTexts) {
        if (isSame(word.name))
            return &word;
    }
    return nullptr;
}
