// One call of a facade: resource, placeholder and body go in, and it is sent. A call with an answer waits for
// it, no longer than a time-out and with all keys held back; a call without one returns at once. GUI thread.
#pragma once

#include "framework/communication/http/resultset.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>

namespace VASK
{
using VariantMap = QMap<QString, QVariant>;
using VariantList = QList<QVariant>;

class FacadeCall
{
public:
    using Success = std::function<void(const PResultSet &)>;

    /// The operation's name tells the method: get reads, post posts, all others put.
    FacadeCall(const char *operation, const char *key);

    FacadeCall &holder(const QString &name, const QString &value);
    FacadeCall &query(const QMap<QString, QString> &parameters);
    /// The JSON of the request; in a get, which has none, the values of a map are the query.
    /// @{
    FacadeCall &body(const VariantMap &values);
    FacadeCall &body(const VariantList &values);
    /// @}
    /// Called when the request has succeeded.
    FacadeCall &onSuccess(Success function);

    /// Sends, and returns at once. 0.
    int send() const;
    /// Sends and waits. The answer is the "data" of the service's, or all of it if there is none; without
    /// success it stays as it was. 0.
    /// @{
    int ask(VariantMap &answer) const;
    int ask(VariantList &answer) const;
    /// @}
    /// The same call for each id, one answer an id that succeeded, in the order of the ids. 1.
    int askGroup(const QStringList &ids, VariantList &answers) const;

    /// Where the service is and how long a call may wait, for programs other than the panel. The panel's own
    /// service and 3 s otherwise.
    static void setService(const QString &host, unsigned short port, int timeoutS);

private:
    PResultSet wait() const;

    QString m_method;
    QString m_key;
    QMap<QString, QString> m_holders;
    QMap<QString, QString> m_query;
    QByteArray m_body;
    Success m_onSuccess;
};

/// A node of an answer as a value: lists are QVariantList, objects QVariantMap.
QVariant toVariant(const ResultSet &node);
/// What an answer of the service tells: its "data", or all of it if there is none.
QVariant dataOf(const ResultSet &answer);
} // namespace VASK
