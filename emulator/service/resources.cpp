#include "emulator/service/resources.h"

#include "emulator/service/meanings.h"
#include "emulator/service/paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace rest
{
namespace
{
enum Status : int { done = 200, badBody = 400, notFound = 404, badMethod = 405, noRoom = 507 };
constexpr qint64 mostKept = 64 * 1024 * 1024; ///< bytes of paths and bodies

Answer failure(Status status, const char *message)
{
    return {status, QString(R"({"code":%1,"message":"%2"})").arg(status).arg(message).toUtf8()};
}

Answer success(const QByteArray &data)
{
    return {done, R"({"code":0,"data":)" + data + '}'};
}

/// Any JSON value, which QJsonDocument takes only inside another one.
std::optional<QJsonValue> parsed(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonArray holder = QJsonDocument::fromJson('[' + json + ']', &error).array();
    if (error.error != QJsonParseError::NoError || holder.size() != 1)
        return std::nullopt;
    return holder.first();
}

QByteArray text(const QJsonValue &value)
{
    const QByteArray holder = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return holder.mid(1, holder.size() - 2);
}
} // namespace

Answer Resources::answer(const Request &request)
{
    const QString resource = paths::resourceOf(request.path);
    if (resource.isEmpty())
        return failure(notFound, "no such resource");
    if (request.method == "GET")
        return read(resource, request.path);
    if (request.method == "PUT" || request.method == "POST")
        return change(resource, request);
    if (request.method != "DELETE")
        return failure(badMethod, "no such method");
    m_keptBytes -= m_kept.take(request.path).size();
    return success("null");
}

bool Resources::set(const QString &path, const QByteArray &json)
{
    if (!parsed(json))
        return false;
    m_keptBytes += json.size() - m_kept.value(path).size();
    m_kept.insert(path, json);
    return true;
}

Answer Resources::read(const QString &resource, const QString &path) const
{
    // What was put there by the console goes before what the device holds.
    const auto kept = m_kept.constFind(path);
    if (kept != m_kept.cend())
        return success(*kept);
    const Meaning *meaning = meaningOf(resource);
    return success(meaning && meaning->read ? text(meaning->read(m_device.registers())) : "null");
}

Answer Resources::change(const QString &resource, const Request &request)
{
    const auto body = parsed(request.body);
    const Meaning *meaning = meaningOf(resource);
    if (meaning) {
        const auto change = body ? meaning->change(*body) : std::nullopt;
        if (!change)
            return failure(badBody, "the device does not take that");
        m_device.change(*change);
        m_keptBytes -= m_kept.take(request.path).size(); // of the console
    }
    // What is no JSON, a form of parts, is taken and not given back.
    const bool isKept = body && !(meaning && meaning->read);
    if (isKept && m_keptBytes + request.body.size() > mostKept)
        return failure(noRoom, "the device has no room left");
    if (isKept)
        set(request.path, request.body);
    return success(isKept || body ? request.body : "null");
}
} // namespace rest
