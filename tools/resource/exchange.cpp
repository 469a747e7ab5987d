#include "tools/resource/exchange.h"

#include "framework/communication/http/httpservice.h"
#include "framework/communication/http/tunnelmanager.h"
#include "framework/resourcemanager/allurlresource.h"
#include "framework/resourcemanager/facadecall.h"
#include "framework/resourcemanager/ticket.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QRegularExpression>
#include <QTcpSocket>
#include <cstdio>

using namespace VASK;

namespace resourcetool
{
namespace
{
constexpr int msPerS = 1000;

struct Outcome {
    bool ok = false;
    PResultSet tree;
    bool timedOut = false;
};

Outcome send(const Options &options, ResourceManager::Ticket::HttpPackage &package, const QString &key)
{
    const auto tunnel = TunnelManager::instance()->create(httpService::connection, TUNNEL_Http);
    tunnel->connectTo(options.host, options.port, {}, {});
    package.options.insert("timeout", options.timeoutS);
    QElapsedTimer since;
    since.start();
    QEventLoop loop;
    Outcome outcome;
    std::make_shared<ResourceManager::Ticket>(httpService::connection, package, key.toStdString())
        ->commit([&](bool ok, const PResultSet &tree) {
            outcome.ok = ok;
            outcome.tree = tree;
            loop.quit();
        });
    loop.exec();
    outcome.timedOut = !outcome.ok && since.elapsed() >= qint64(options.timeoutS) * msPerS;
    return outcome;
}

int tell(const Options &options, const Outcome &outcome)
{
    const QString error = QString::fromStdString(outcome.tree->findPath("error")->getString());
    if (outcome.timedOut)
        return fail(noService, QString("no answer in %1 s").arg(options.timeoutS));
    if (!outcome.ok)
        return fail(failed, error);
    const ResultSet::List codes = outcome.tree->getList("code");
    if (codes.empty() && !error.isEmpty())
        return fail(failed, "the answer is no JSON");
    if (!codes.empty() && codes.front()->getInt() != 0)
        return fail(failed, QString("the service answers with code %1").arg(codes.front()->getInt()));
    print(options, dataOf(*outcome.tree));
    return done;
}
} // namespace

int fail(Status status, const QString &reason)
{
    fprintf(stderr, "fpd-resource: %s\n", qPrintable(reason.section('\n', 0, 0)));
    return status;
}

void print(const Options &options, const QVariant &value)
{
    const QJsonValue json = QJsonValue::fromVariant(value);
    const bool nested = json.isObject() || json.isArray();
    const QJsonDocument document = json.isObject()
                                       ? QJsonDocument(json.toObject())
                                       : QJsonDocument(nested ? json.toArray() : QJsonArray{json});
    QByteArray text =
        document.toJson(options.json || !nested ? QJsonDocument::Compact : QJsonDocument::Indented);
    if (!nested)
        text = text.mid(1, text.size() - 2);
    printf("%s\n", text.trimmed().constData());
    fflush(stdout);
}

bool reachable(const Options &options)
{
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy(QNetworkProxy::NoProxy));
    socket.connectToHost(options.host, options.port);
    if (options.port != 0 && socket.waitForConnected(options.timeoutS * msPerS))
        return true;
    fail(noService, options.port == 0
                        ? QString("no emulator has said where its service is")
                        : QString("no service answers at %1:%2").arg(options.host).arg(options.port));
    return false;
}

int exchange(const Options &options, const QString &method, const QString &key, const QByteArray &body,
             const QMap<QString, QString> &values)
{
    const QString path = AllUrlResource::getInstance()->getMapAllUrl().value(key);
    if (path.isEmpty())
        return fail(failed, "no such resource: " + key);
    ResourceManager::Ticket::HttpPackage package;
    package.setUrl(path);
    package.setMethod(method);
    if (!body.isEmpty())
        package.setRequestData(body);
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (path.contains('{' + value.key() + '}'))
            package.addPlaceHolders(value.key(), value.value());
        else
            package.addParameters(value.key(), value.value());
    }
    static const QRegularExpression holder("\\{(\\w+)\\}");
    for (auto found = holder.globalMatch(path); found.hasNext();) {
        const QString name = found.next().captured(1);
        if (!values.contains(name))
            return fail(failed, QString("%1 needs %2=VALUE for %3").arg(key, name, path));
    }
    return reachable(options) ? tell(options, send(options, package, key)) : noService;
}
} // namespace resourcetool
