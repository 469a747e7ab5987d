// A request as it comes from a browser: its head is taken apart and looked over, whatever it holds.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrlQuery>

namespace http
{
constexpr int longestHead = 16 * 1024;
constexpr int longestBody = 256 * 1024;

struct Request {
    QByteArray method;
    QString path;
    QUrlQuery query;
    QHash<QByteArray, QByteArray> headers; ///< by their names in lower case
    QByteArray body;

    bool isUpgrade() const { return headers.value("upgrade").toLower() == "websocket"; }
};

enum Status {
    incomplete = 0, ///< the rest of the head is still to come
    fine = 200,
    badRequest = 400,
    unauthorized = 401,
    forbidden = 403,
    notFound = 404,
    wrongMethod = 405,
    conflict = 409,
    tooLarge = 413,
    misdirected = 421,
    headTooLarge = 431,
    notImplemented = 501,
    tooMany = 503,
    timedOut = 504,
};
const char *phrase(Status status);

struct Head {
    Status status = incomplete;
    Request request;
    int length = 0;     ///< of the head
    int bodyLength = 0; ///< that it promises
};
/// What the data begin with.
Head parseHead(const QByteArray &data);
} // namespace http
