#include "emulator/web/access.h"

#include <QHostInfo>
#include <QRandomGenerator>
#include <QUrl>

namespace
{
QString newToken()
{
    constexpr int words = 4; // of 32 bits
    QByteArray random;
    for (int i = 0; i < words; ++i) {
        const quint32 word = QRandomGenerator::system()->generate();
        random.append(reinterpret_cast<const char *>(&word), sizeof word);
    }
    return QString::fromLatin1(random.toHex());
}

/// In a time that does not tell how much of it is right.
bool isSame(const QString &given, const QString &token)
{
    const QByteArray one = given.toUtf8(), other = token.toUtf8();
    if (one.size() != other.size())
        return false;
    int difference = 0;
    for (int i = 0; i < one.size(); ++i)
        difference |= one[i] ^ other[i];
    return difference == 0;
}
} // namespace

Access::Access(const QHostAddress &bound)
{
    if (bound.isLoopback())
        return;
    m_driveToken = newToken();
    m_lookToken = newToken();
}

Access::Right Access::rightOf(const http::Request &request) const
{
    return rightOf(request.query, request.headers.value("authorization"));
}

Access::Right Access::rightOf(const QUrlQuery &query, const QByteArray &authorization) const
{
    const QByteArray scheme = "Bearer ";
    const QString given = authorization.startsWith(scheme)
                              ? QString::fromLatin1(authorization.mid(scheme.size()))
                              : query.queryItemValue("token");
    if (needsToken() && !isSame(given, m_driveToken))
        return isSame(given, m_lookToken) ? look : nothing;
    return query.hasQueryItem("view") ? look : drive;
}

bool Access::isOwnHost(const http::Request &request)
{
    const QUrl url("http://" + QString::fromLatin1(request.headers.value("host")));
    const QString host = url.host();
    const QString machine = QHostInfo::localHostName().toLower();
    return url.isValid() && (!QHostAddress(host).isNull() || host == "localhost" ||
                             (!machine.isEmpty() && (host == machine || host == machine + ".local")));
}

bool Access::isOwnOrigin(const http::Request &request)
{
    const auto &headers = request.headers;
    return !headers.contains("origin") ||
           headers.value("origin").toLower() == "http://" + headers.value("host").toLower();
}
