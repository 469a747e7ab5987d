#include "framework/communication/http/httpexchange.h"

#include <QFile>
#include <QNetworkProxy>
#include <QSaveFile>
#include <QUrl>
#include <limits>
#include <stdexcept>

namespace VASK
{
namespace
{
using HttpPackage = HttpExchange::HttpPackage;

constexpr int defaultTimeoutS = 3;
constexpr qint64 largestAnswer = 32 * 1024 * 1024;
constexpr const char *contentType = "application/json;charset=utf-8";
constexpr const char *userAgent = "Vask Orbexa";

QString encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

template <class T> T optionOf(const HttpPackage &package, const char *key, T otherwise)
{
    const Any *value = package.options.look(key);
    return value ? value->cast<T>() : otherwise;
}

QHttpPart part(const QByteArray &disposition)
{
    QHttpPart made;
    made.setRawHeader("Content-Disposition", "form-data; " + disposition);
    return made;
}

QHttpPart filePart(QHttpMultiPart *form, const QString &name)
{
    QHttpPart made = part("name=\"file\"; filename=\"" + name.toUtf8() + '"');
    auto *file = new QFile(name, form);
    if (!file->open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + name.toStdString() + ": " +
                                 file->errorString().toStdString());
    made.setBodyDevice(file);
    return made;
}

QHttpPart textPart(const char *name, const QByteArray &text)
{
    QHttpPart made = part(QByteArray("name=\"") + name + '"');
    made.setBody(text);
    return made;
}
} // namespace

QString HttpExchange::composeUrl(QString url, const StringMap &parameters, const StringMap &placeHolders)
{
    for (auto holder = placeHolders.cbegin(); holder != placeHolders.cend(); ++holder)
        url.replace('{' + holder.key() + '}', holder.value());
    QStringList query;
    for (auto pair = parameters.cbegin(); pair != parameters.cend(); ++pair)
        query += encoded(pair.key()) + '=' + encoded(pair.value());
    return query.isEmpty() ? url : url + '?' + query.join('&');
}

QNetworkRequest HttpExchange::createRequest(const QString &address, const QString &url,
                                            const StringMap &headers)
{
    QNetworkRequest request(QUrl(address + url));
    for (auto header = headers.cbegin(); header != headers.cend(); ++header) {
        // A template that nobody has filled in says nothing.
        if (!header.value().contains('{'))
            request.setRawHeader(header.key().toUtf8(), header.value().toUtf8());
    }
    if (!request.hasRawHeader("Content-Type"))
        request.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
    if (!request.hasRawHeader("User-Agent"))
        request.setHeader(QNetworkRequest::UserAgentHeader, userAgent);
    // Head and body leave in two pieces, and on a connection that is kept the second waits until the service
    // has acknowledged the first: 40 ms for each step of a knob that turns.
    if (!request.hasRawHeader("Connection"))
        request.setRawHeader("Connection", "close");
    return request;
}

QNetworkRequest HttpExchange::createRequest(const HttpPackage &package)
{
    return createRequest(package.address(),
                         composeUrl(package.getUrl(), package.parameters(), package.placeHolders()),
                         package.requestHeader());
}

std::unique_ptr<QHttpMultiPart> HttpExchange::makeMultiPart(const QString &file, const QString &text,
                                                            const QList<unsigned long long> &idList)
{
    auto form = std::make_unique<QHttpMultiPart>();
    for (const unsigned long long id : idList) {
        if (!file.isEmpty())
            form->append(filePart(form.get(), file));
        if (!text.isEmpty())
            form->append(textPart("text", text.toUtf8()));
        form->append(textPart("id", QByteArray::number(id)));
    }
    return form;
}

std::unique_ptr<QHttpMultiPart> HttpExchange::makeMultiPart(const HttpPackage &package)
{
    using Texts = std::vector<std::string>;
    const Parameters parts = package.multiPartParameters();
    if (!parts.body.look("file"))
        return nullptr;
    const Texts files = parts.get<Texts>("file");
    if (files.size() > 1)
        throw std::invalid_argument("a form has one file");
    if (files.empty() || files.front().empty())
        return nullptr;
    const std::string text = parts.get<std::string>("text");
    QList<unsigned long long> ids;
    for (const std::string &id : parts.get<Texts>("idList"))
        ids.append(std::stoull(id));
    return makeMultiPart(QString::fromStdString(files.front()), QString::fromStdString(text), ids);
}

std::chrono::milliseconds HttpExchange::timeoutOf(const HttpPackage &package)
{
    constexpr int longestS = std::numeric_limits<int>::max() / 1000;
    return std::chrono::seconds(qBound(0, optionOf(package, "timeout", defaultTimeoutS), longestS));
}

QString HttpExchange::saveToOf(const HttpPackage &package)
{
    return QString::fromStdString(optionOf(package, "saveTo", std::string()));
}

HttpExchange::Outcome HttpExchange::failed(const QString &reason)
{
    return {false, parseJson(reason)};
}

HttpExchange::Outcome HttpExchange::outcomeOf(QNetworkReply &reply, const QString &saveTo)
{
    if (reply.error() != QNetworkReply::NoError)
        return failed(reply.errorString());
    const QByteArray body = reply.readAll();
    if (saveTo.isEmpty())
        return {true, parseJson(QString::fromUtf8(body.constData()))};
    QSaveFile file(saveTo);
    if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size() || !file.commit())
        return failed("cannot write " + saveTo + ": " + file.errorString());
    const PResultSet tree = ResultSet::object();
    tree->add(ResultSet::string("file", saveTo.toStdString()));
    return {true, tree};
}

void HttpExchange::boundAnswer(QNetworkReply *reply)
{
    reply->setReadBufferSize(largestAnswer + 1);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > largestAnswer)
            reply->abort();
    });
}

void HttpExchange::useNoProxy(QNetworkAccessManager &manager)
{
    manager.setProxy(QNetworkProxy(QNetworkProxy::NoProxy));
}
} // namespace VASK
