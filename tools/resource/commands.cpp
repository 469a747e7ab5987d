#include "tools/resource/commands.h"

#include "framework/communication/http/jsontext.h"
#include "framework/communication/http/tunnelmanager.h"
#include "framework/resourcemanager/allurlresource.h"
#include "framework/resourcemanager/facadecall.h"
#include "framework/resourcemanager/facadetable.h"

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>
#include <optional>

using namespace VASK;

namespace resourcetool
{
namespace
{
using Values = QMap<QString, QString>;

/// NAME=VALUE arguments; nothing if one is none.
std::optional<Values> valuesOf(const QStringList &arguments)
{
    Values values;
    for (const QString &argument : arguments) {
        if (argument.indexOf('=') < 1)
            return std::nullopt;
        values.insert(argument.section('=', 0, 0), argument.section('=', 1));
    }
    return values;
}

bool isJson(const QByteArray &text)
{
    try {
        jsontext::parse(text);
        return true;
    } catch (const std::exception &) {
        return false;
    }
}

int list(const Options &options, const QStringList &arguments)
{
    if (arguments.size() > 1)
        return wrongUsage;
    const QString wanted = arguments.value(0);
    const QMap<QString, QString> all = AllUrlResource::getInstance()->getMapAllUrl();
    QVariantMap found;
    for (auto row = all.cbegin(); row != all.cend(); ++row) {
        if (!(row.key() + ' ' + row.value()).contains(wanted, Qt::CaseInsensitive))
            continue;
        found.insert(row.key(), row.value());
        if (!options.json)
            printf("%s %s\n", qPrintable(row.key()), qPrintable(row.value()));
    }
    if (options.json)
        print(options, found);
    return found.isEmpty() ? fail(failed, "no resource has that in its key or path") : int(done);
}

int get(const Options &options, const QStringList &arguments)
{
    const auto values = valuesOf(arguments.mid(1));
    if (arguments.isEmpty() || !values)
        return wrongUsage;
    return exchange(options, "get", arguments[0], {}, *values);
}

int write(const Options &options, const char *method, const QStringList &arguments)
{
    const auto values = valuesOf(arguments.mid(2));
    if (arguments.size() < 2 || !values)
        return wrongUsage;
    const QByteArray body = arguments[1].toUtf8();
    return isJson(body) ? exchange(options, method, arguments[0], body, *values)
                        : fail(failed, "no JSON: " + arguments[1]);
}

int put(const Options &options, const QStringList &arguments)
{
    return write(options, "put", arguments);
}

int post(const Options &options, const QStringList &arguments)
{
    return write(options, "post", arguments);
}

/// The operation of that name, null if there is none. Some have a form for one and a form for a group, or one
/// that waits for its answer beside one that does not.
const FacadeRow *operation(const QString &name, bool group)
{
    const FacadeRow *found = nullptr;
    for (const FacadeRow &row : facadeRows()) {
        if (name != QString("%1.%2").arg(row.facade, row.name) || (qstrcmp(row.shape, "Group") == 0) != group)
            continue;
        if (!found || qstrcmp(found->shape, "Reader") == 0)
            found = &row;
    }
    return found;
}

int call(const Options &options, const QStringList &arguments)
{
    auto values = valuesOf(arguments.mid(1));
    if (arguments.isEmpty() || !values)
        return wrongUsage;
    const FacadeRow *row = operation(arguments[0], values->contains("ids"));
    if (!row)
        return fail(failed, "no such operation: " + arguments[0]);
    // One that does not wait is asked as what it sends, so that there is an answer to print.
    if (qstrcmp(row->shape, "Reader") == 0)
        return exchange(options, "get", row->key, {}, *values);
    const QByteArray body = values->value("body", "{}").toUtf8();
    if (!isJson(body))
        return fail(failed, "no JSON: " + values->value("body"));
    FacadeArguments given;
    given.device = values->take("device");
    given.body = toVariant(*ResultSet::fromJson(body));
    for (const char *name : {"id", "outputid"}) {
        if (values->contains(name))
            given.ids = QStringList{values->take(name)};
    }
    if (values->contains("ids"))
        given.ids = values->take("ids").split(',', Qt::SkipEmptyParts);
    values->remove("body");
    given.query = *values;
    if (!reachable(options))
        return noService;
    FacadeCall::setService(options.host, options.port, options.timeoutS);
    const QVariant answer = row->call(given);
    if (!answer.isValid())
        return fail(failed, arguments[0] + " has no answer");
    print(options, answer);
    return done;
}

/// Prints what comes until the time is over, if one was given. False once it cannot.
int printAll(const Options &options, Communicator_New::Tunnel &tunnel)
{
    tunnel.recieve([&options](const QHostAddress &, unsigned short, const PResultSet &tree) {
        print(options, toVariant(*tree));
    });
    if (options.timeoutGiven)
        QTimer::singleShot(std::chrono::seconds(options.timeoutS), [] { QCoreApplication::exit(done); });
    return QCoreApplication::exec();
}

int listenToSocket(const Options &options)
{
    const auto tunnel = TunnelManager::instance()->create("listen", TUNNEL_Websocket);
    tunnel->connectTo(
        options.host, options.pushPort, [](bool) { fputs("listening\n", stderr); },
        [&options](int) {
            QCoreApplication::exit(fail(
                noService, QString("no channel at %1:%2 any more").arg(options.host).arg(options.pushPort)));
        });
    return printAll(options, *tunnel);
}

int listenToDatagrams(const Options &options, unsigned short port)
{
    const auto tunnel = TunnelManager::instance()->create("listen", TUNNEL_Udp);
    if (!tunnel->bind(port))
        return fail(failed, QString("cannot listen at port %1").arg(port));
    tunnel->connectTo(options.host, options.port, {}, {}); // who is heard
    fputs("listening\n", stderr);
    return printAll(options, *tunnel);
}

int listen(const Options &options, const QStringList &arguments)
{
    if (arguments == QStringList{"ws"})
        return listenToSocket(options);
    const unsigned short port = arguments.value(1).toUShort();
    if (arguments.size() != 2 || arguments[0] != "udp" || port == 0)
        return wrongUsage;
    return listenToDatagrams(options, port);
}
} // namespace

const QVector<Command> &commands()
{
    static const QVector<Command> all = {
        {"list", "[TEXT]", "resources with that text in key or path", list},
        {"get", "KEY [NAME=VALUE...]", "reads a resource", get},
        {"put", "KEY JSON [NAME=VALUE...]", "puts to a resource", put},
        {"post", "KEY JSON [NAME=VALUE...]", "posts to a resource", post},
        {"call", "CLASS.OPERATION [id=ID|ids=ID,ID...|outputid=ID] [body=JSON] [NAME=VALUE...]",
         "a typed operation", call},
        {"listen", "ws | udp PORT", "prints what the service tells by itself", listen},
    };
    return all;
}
} // namespace resourcetool
