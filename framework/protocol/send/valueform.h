// How the text of a menu value becomes the bytes of a register, as data: up to two texts with a byte of their
// own, then a rule for every other text. Without state; any thread.
#pragma once

#include "framework/protocol/packet/bytes.h"

#include <QByteArray>
#include <QString>

namespace VASK
{
struct ValueForm {
    /// What becomes of a text that no choice names.
    enum Rest {
        Fixed,   ///< rest, whatever the text
        Number,  ///< the number, times rest where rest is not 0
        Shifted, ///< the number plus rest
        Centi,   ///< a decimal, in hundredths
        Percent, ///< of 255
        Refuse,  ///< no value at all
    };
    struct Choice {
        const char *text = nullptr;
        quint32 number = 0;
    };

    Rest rule = Number;
    int size = 1; ///< bytes
    int rest = 0;
    Choice choices[2] = {};

    /// False for a value that the form refuses.
    bool encode(const QString &value, QByteArray &data) const;
};

/// A text that is no number counts as 0.
constexpr ValueForm number(int size = 1)
{
    return {ValueForm::Number, size, 0, {}};
}
constexpr ValueForm numberTimes(int factor, int size)
{
    return {ValueForm::Number, size, factor, {}};
}
constexpr ValueForm numberPlus(int distance)
{
    return {ValueForm::Shifted, 1, distance, {}};
}
/// A decimal in hundredths, in two bytes.
constexpr ValueForm centi()
{
    return {ValueForm::Centi, 2, 0, {}};
}
constexpr ValueForm percent()
{
    return {ValueForm::Percent, 1, 0, {}};
}
constexpr ValueForm fixed(quint8 byte)
{
    return {ValueForm::Fixed, 1, byte, {}};
}
constexpr ValueForm fixed(quint8 first, quint8 second)
{
    return {ValueForm::Fixed, 2, first | second << 8, {}};
}
/// "1" switches on, every other text off.
constexpr ValueForm onOff(quint8 on, quint8 off)
{
    return {ValueForm::Fixed, 1, off, {{"1", on}}};
}
/// One text has a byte of its own, every other text another.
constexpr ValueForm textElse(const char *text, quint8 byte, quint8 other)
{
    return {ValueForm::Fixed, 1, other, {{text, byte}}};
}
constexpr ValueForm zeroElse(quint8 zero, quint8 other)
{
    return textElse("0", zero, other);
}
/// "0" and "1" have bytes of their own, every other text a third.
constexpr ValueForm zeroOneElse(quint8 zero, quint8 one, quint8 other)
{
    return {ValueForm::Fixed, 1, other, {{"0", zero}, {"1", one}}};
}
/// "0" and "1" have bytes of their own, every other text is refused.
constexpr ValueForm zeroOneOnly(quint8 zero, quint8 one)
{
    return {ValueForm::Refuse, 1, 0, {{"0", zero}, {"1", one}}};
}
/// One text has a byte of its own, every other text is a number.
constexpr ValueForm numberBut(const char *text, quint8 byte)
{
    return {ValueForm::Number, 1, 0, {{text, byte}}};
}
} // namespace VASK
