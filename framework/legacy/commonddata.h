// Conversion of a switch to and from its text, under the four names by which mappings know it. No state, any
// thread.
#pragma once

#include <QString>

namespace VASK
{
class CommondData
{
public:
    static QString setBool(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }
    static bool getBool(const QString &text) { return text == QLatin1String("True"); }
};

class CommonMapping : public CommondData
{
};
class AddressMapping : public CommonMapping
{
};
class AddressMapping20M : public AddressMapping
{
};
} // namespace VASK
