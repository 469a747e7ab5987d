// What an HTTP exchange with the device service is made of: the URL, the request, a form of parts, and what a
// finished reply comes to. The worker and a tunnel, which downloads past it, have these operations as their
// own. No state, any thread.
#pragma once

#include "framework/communication/http/4th/httpversion/httppackage.h"
#include "framework/communication/http/resultset.h"

#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <chrono>
#include <memory>

namespace VASK
{
class HttpExchange
{
public:
    using HttpPackage = Communicator_New::Vask4th_New::HttpPackage;
    using StringMap = HttpPackage::StringMap;

    /// The path with its {placeholders} filled in, where there is a value, and the query behind it.
    static QString composeUrl(QString url, const StringMap &parameters, const StringMap &placeHolders);
    static QNetworkRequest createRequest(const QString &address, const QString &url,
                                         const StringMap &headers);
    /// The request of a package.
    static QNetworkRequest createRequest(const HttpPackage &package);

    /// A form with three parts for each id: the file, the text, the id; an empty file or text is left out.
    /// Throws std::runtime_error for a file that cannot be read.
    static std::unique_ptr<QHttpMultiPart> makeMultiPart(const QString &file, const QString &text,
                                                         const QList<unsigned long long> &idList);
    /// The form of a package, null if it has none. Throws std::exception for one that lacks a part.
    static std::unique_ptr<QHttpMultiPart> makeMultiPart(const HttpPackage &package);

    /// How long a package may take: its "timeout" option, 3 s without one. Throws std::bad_cast for an option
    /// of another type than int.
    static std::chrono::milliseconds timeoutOf(const HttpPackage &package);
    /// The file that its answer goes to, empty for none.
    static QString saveToOf(const HttpPackage &package);

    static std::shared_ptr<ResultSet> parseJson(const QString &text)
    {
        return ResultSet::fromJson(text.toUtf8());
    }
    struct Outcome {
        bool ok = false;
        PResultSet tree;
    };
    /// A failure for that reason.
    static Outcome failed(const QString &reason);
    /// What a finished reply comes to: its JSON or, with a file to save to, the file's name under "file". A
    /// file is written whole or not at all; without success it stays as it was.
    static Outcome outcomeOf(QNetworkReply &reply, const QString &saveTo);
    /// Breaks a reply off that brings more than any answer has: a service gone mad must not fill the memory.
    static void boundAnswer(QNetworkReply *reply);

    /// Requests go to the service itself, whatever proxy the environment names.
    static void useNoProxy(QNetworkAccessManager &manager);
};
} // namespace VASK
