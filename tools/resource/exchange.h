// One request of fpd-resource to the REST service, waited for, and its outcome as text and exit status. Main
// thread.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

namespace resourcetool
{
enum Status : int { done = 0, failed = 1, noService = 2 };

struct Options {
    QString host = "127.0.0.1";
    unsigned short port = 0;     ///< of the service
    unsigned short pushPort = 0; ///< of its WebSocket channel
    int timeoutS = 3;
    bool timeoutGiven = false;
    bool json = false;
};

/// Prints the reason on stderr.
int fail(Status status, const QString &reason);
/// Prints a value on stdout: one line with --json, else indented.
void print(const Options &options, const QVariant &value);

/// Is there somebody at the service's address? If not, the program has said so.
bool reachable(const Options &options);
/// Asks for a resource of the catalogue. Names of the values that stand in its path fill it, the others are
/// the query. Prints the answer's data.
int exchange(const Options &options, const QString &method, const QString &key, const QByteArray &body,
             const QMap<QString, QString> &values);
} // namespace resourcetool
