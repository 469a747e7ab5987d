#include "emulator/web/httprequest.h"

#include <QUrl>
#include <algorithm>

namespace http
{
namespace
{
struct Phrase {
    Status status;
    const char *text;
};
constexpr Phrase phrases[] = {
    {fine, "OK"},
    {badRequest, "Bad Request"},
    {unauthorized, "Unauthorized"},
    {forbidden, "Forbidden"},
    {notFound, "Not Found"},
    {wrongMethod, "Method Not Allowed"},
    {conflict, "Conflict"},
    {tooLarge, "Content Too Large"},
    {misdirected, "Misdirected Request"},
    {headTooLarge, "Request Header Fields Too Large"},
    {notImplemented, "Not Implemented"},
    {tooMany, "Service Unavailable"},
    {timedOut, "Gateway Timeout"},
};

bool isPrintable(const QByteArray &text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c < 127; });
}

bool takeFirstLine(const QByteArray &line, Request &request)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3 || !words[2].startsWith("HTTP/1.") || words[0].isEmpty() ||
        !words[1].startsWith('/') || !isPrintable(words[1]))
        return false;
    request.method = words[0];
    const QString target = QString::fromLatin1(words[1]);
    request.path = QUrl::fromPercentEncoding(target.section('?', 0, 0).toLatin1());
    request.query = QUrlQuery(target.section('?', 1));
    return true;
}

bool takeHeader(const QByteArray &line, Request &request)
{
    const int colon = line.indexOf(':');
    const QByteArray name = line.left(colon).toLower();
    // Told twice, two readers could each take another one.
    const bool isOnce = !request.headers.contains(name);
    if (colon <= 0 || !isPrintable(name) || !isOnce)
        return colon > 0 && isPrintable(name) && name != "host" && name != "content-length" &&
               name != "origin" && name != "authorization";
    request.headers.insert(name, line.mid(colon + 1).trimmed());
    return true;
}

Status takeLength(Head &head)
{
    const auto &headers = head.request.headers;
    if (headers.contains("transfer-encoding"))
        return notImplemented;
    const QByteArray text = headers.value("content-length", "0");
    bool isNumber = false;
    const qint64 length = text.toLongLong(&isNumber);
    if (!isNumber || length < 0 || text.startsWith('+'))
        return badRequest;
    if (length > longestBody)
        return tooLarge;
    head.bodyLength = int(length);
    return fine;
}
} // namespace

const char *phrase(Status status)
{
    const auto *found = std::find_if(std::begin(phrases), std::end(phrases),
                                     [status](const Phrase &phrase) { return phrase.status == status; });
    return found == std::end(phrases) ? "" : found->text;
}

Head parseHead(const QByteArray &data)
{
    Head head;
    const int end = data.indexOf("\r\n\r\n");
    if (end < 0 || end > longestHead) {
        head.status = data.size() > longestHead ? headTooLarge : incomplete;
        return head;
    }
    head.length = end + 4;
    head.status = badRequest;
    bool isFirst = true;
    for (QByteArray line : data.left(end).split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        if (!(isFirst ? takeFirstLine(line, head.request) : takeHeader(line, head.request)))
            return head;
        isFirst = false;
    }
    head.status = takeLength(head);
    return head;
}
} // namespace http
