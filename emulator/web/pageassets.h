// The page's files, which lie in the program itself.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace page
{
struct Asset {
    QByteArray type;
    QByteArray content;
};
/// "/" is the page; nothing if there is no such file.
std::optional<Asset> asset(const QString &path);
} // namespace page
