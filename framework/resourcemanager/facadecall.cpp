#include "framework/resourcemanager/facadecall.h"

#include "boardio.h"
#include "framework/communication/http/action.h"
#include "framework/communication/http/httpadapter.h"
#include "framework/communication/http/httpservice.h"
#include "framework/communication/http/jsonutil.h"
#include "framework/input/keydispatcher.h"
#include "framework/resourcemanager/allurlresource.h"

#include <QEventLoop>
#include <QTimer>
#include <memory>

namespace VASK
{
namespace
{
struct Service {
    QString host; ///< empty: the panel's own
    unsigned short port = 0;
    int timeoutS = 3;
};

Service &service()
{
    static Service theService;
    return theService;
}

QString methodOf(const QString &operation)
{
    if (operation.startsWith("get"))
        return "get";
    return operation.startsWith("post") ? "post" : "put";
}

void connectToService()
{
    httpadapter adapter;
    if (service().host.isEmpty())
        adapter.SetAddress(httpService::host, board::localPort(httpService::port), httpService::connection);
    else
        adapter.SetAddress(service().host, service().port, httpService::connection);
    adapter.ConnectTo();
}

/// Runs the event loop until that is so, at most for the time-out. Keys wait meanwhile.
template <class Done> void waitUntil(const std::shared_ptr<QEventLoop> &loop, Done done)
{
    if (done())
        return;
    const KeyHold keys;
    QTimer::singleShot(std::chrono::seconds(service().timeoutS), loop.get(), &QEventLoop::quit);
    loop->exec();
}
} // namespace

QVariant toVariant(const ResultSet &node)
{
    switch (node.type()) {
    case ResultSet::String:
        return QString::fromStdString(node.getString());
    case ResultSet::Integer:
        return node.getInt64();
    case ResultSet::Float:
        return node.getFloat();
    case ResultSet::Boolean:
        return node.getBoolean();
    case ResultSet::Object:
        break;
    default:
        return QVariant();
    }
    QVariantMap map;
    QVariantList list;
    bool isList = false;
    for (const PResultSet &child : node.getList()) {
        isList = isList || child->key().empty(); // elements of an array have no name
        map.insert(QString::fromStdString(child->key()), toVariant(*child));
        list.append(toVariant(*child));
    }
    return isList ? QVariant(list) : QVariant(map);
}

QVariant dataOf(const ResultSet &answer)
{
    const ResultSet::List data = answer.getList("data");
    return toVariant(data.empty() ? answer : *data.front());
}

FacadeCall::FacadeCall(const char *operation, const char *key) : m_method(methodOf(operation)), m_key(key) {}

FacadeCall &FacadeCall::holder(const QString &name, const QString &value)
{
    m_holders.insert(name, value);
    return *this;
}

FacadeCall &FacadeCall::query(const QMap<QString, QString> &parameters)
{
    m_query = parameters;
    return *this;
}

FacadeCall &FacadeCall::body(const VariantMap &values)
{
    if (m_method != "get") {
        m_body = QByteArray::fromStdString(JsonUtil::toJson(values));
        return *this;
    }
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        m_query.insert(value.key(), value.value().toString());
    return *this;
}

FacadeCall &FacadeCall::body(const VariantList &values)
{
    m_body = QByteArray::fromStdString(JsonUtil::toJson(QVariant(values)));
    return *this;
}

FacadeCall &FacadeCall::onSuccess(Success function)
{
    m_onSuccess = std::move(function);
    return *this;
}

namespace
{
/// Not by the verbs: their bodies are Parameters, and a facade's is what it was given.
ResourceManager::PTicket makeTicket(const QString &key, const QString &method, const QByteArray &body,
                                    const QMap<QString, QString> &query,
                                    const QMap<QString, QString> &holders)
{
    ResourceManager::Ticket::HttpPackage package;
    package.setUrl(AllUrlResource::getInstance()->getMapAllUrl().value(key));
    package.setMethod(method);
    if (!body.isEmpty())
        package.setRequestData(body);
    package.setParameters(query);
    package.setPlaceHolders(holders);
    package.options.insert("timeout", service().timeoutS);
    return std::make_shared<ResourceManager::Ticket>(httpService::connection, package, key.toStdString());
}
} // namespace

int FacadeCall::send() const
{
    connectToService();
    makeTicket(m_key, m_method, m_body, m_query, m_holders)
        ->commit([success = m_onSuccess](bool ok, const PResultSet &answer) {
            if (ok && success)
                success(answer);
        });
    return 0;
}

/// The answer, empty without success. It is kept by the function, as it may come when nobody waits any more.
PResultSet FacadeCall::wait() const
{
    const auto loop = std::make_shared<QEventLoop>();
    const auto outcome = std::make_shared<PResultSet>();
    const auto ended = std::make_shared<bool>(false);
    connectToService();
    makeTicket(m_key, m_method, m_body, m_query, m_holders)
        ->commit([loop, outcome, ended, success = m_onSuccess](bool ok, const PResultSet &answer) {
            *ended = true;
            if (ok) {
                *outcome = answer;
                if (success)
                    success(answer);
            }
            loop->quit();
        });
    waitUntil(loop, [&] { return *ended; });
    return *outcome;
}

int FacadeCall::ask(VariantMap &answer) const
{
    const PResultSet tree = wait();
    if (!tree)
        return 0;
    const QVariant data = dataOf(*tree);
    answer = data.type() == QVariant::Map ? data.toMap() : VariantMap{{"data", data}};
    return 0;
}

int FacadeCall::ask(VariantList &answer) const
{
    const PResultSet tree = wait();
    if (!tree)
        return 0;
    const QVariant data = dataOf(*tree);
    const bool isEmpty = data.type() == QVariant::Map && data.toMap().isEmpty(); // an array says no more
    answer = data.type() == QVariant::List || isEmpty ? data.toList() : VariantList{data};
    return 0;
}

int FacadeCall::askGroup(const QStringList &ids, VariantList &answers) const
{
    std::vector<ResourceManager::PTicket> tickets;
    for (const QString &id : ids) {
        QMap<QString, QString> holders = m_holders;
        holders.insert("id", id);
        tickets.push_back(makeTicket(m_key, m_method, m_body, m_query, holders));
    }
    if (tickets.empty())
        return 1;
    const auto loop = std::make_shared<QEventLoop>();
    const auto ended = std::make_shared<bool>(false);
    connectToService();
    // One after the other, not as a group: what has come by the time-out counts.
    const auto left = std::make_shared<size_t>(tickets.size());
    for (const ResourceManager::PTicket &ticket : tickets)
        ticket->commit([loop, ended, left](bool, const PResultSet &) {
            if (--*left > 0)
                return;
            *ended = true;
            loop->quit();
        });
    waitUntil(loop, [&] { return *ended; });
    for (const ResourceManager::PTicket &ticket : tickets)
        if (ticket->state() == ResourceManager::Ticket::Succeeded)
            answers.append(dataOf(*ticket->result()));
    return 1;
}

void FacadeCall::setService(const QString &host, unsigned short port, int timeoutS)
{
    service() = {host, port, timeoutS};
}
} // namespace VASK
