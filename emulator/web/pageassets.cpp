#include "emulator/web/pageassets.h"

#include <QFile>

// The program is linked from archives: what nobody names is left out. Not in a namespace, as Qt demands.
static void takeResources()
{
    Q_INIT_RESOURCE(page);
}

namespace page
{
namespace
{
struct Type {
    const char *suffix;
    const char *type;
};
constexpr Type types[] = {
    {".html", "text/html; charset=utf-8"},
    {".css", "text/css; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".json", "application/json"},
    {".svg", "image/svg+xml"},
};
} // namespace

std::optional<Asset> asset(const QString &path)
{
    takeResources();
    const QString name = path == "/" ? "/index.html" : path;
    for (const Type &type : types) {
        QFile file(":/page" + name);
        if (name.endsWith(type.suffix) && !name.contains("..") && file.open(QIODevice::ReadOnly))
            return Asset{type.type, file.readAll()};
    }
    return std::nullopt;
}
} // namespace page
