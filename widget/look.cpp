#include "widget/look.h"

namespace look
{
QString sheet(const char *style)
{
    struct Colour {
        const char *name;
        const char *value;
    };
    static constexpr Colour colours[] = {
        {"$text", text},     {"$disabled", disabled}, {"$focus", focus},
        {"$edited", edited}, {"$pass", pass},         {"$fail", fail},
    };
    QString sheet = QString::fromUtf8(style);
    for (const Colour &colour : colours)
        sheet.replace(QLatin1String(colour.name), QLatin1String(colour.value));
    return sheet;
}
} // namespace look
