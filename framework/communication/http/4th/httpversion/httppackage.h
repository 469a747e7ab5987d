// One HTTP exchange with the device service, as data. Copied by value: the queue to the worker holds copies.
#pragma once

#include "framework/communication/http/package.h"
#include "framework/communication/http/parameters.h"

#include <QByteArray>

namespace Communicator_New
{
namespace Vask4th_New
{
class HttpPackage : public Package
{
public:
    using StringMap = QMap<QString, QString>;

    /// The path in the catalogue, still with its {placeholders}.
    void setUrl(const QString &path) { addAttrib(baseGroup, "uri", path); }
    QString getUrl() const { return value(baseGroup, "uri").toString(); }
    /// "get", "put", "post" or "del".
    void setMethod(const QString &method) { addAttrib(baseGroup, "method", method); }
    QString method() const { return value(baseGroup, "method").toString(); }
    /// http://host:port, set by the tunnel when it sends.
    void setAddress(const QString &address) { addAttrib(baseGroup, "address", address); }
    QString address() const { return value(baseGroup, "address").toString(); }
    /// The body.
    void setRequestData(const QByteArray &data) { addAttrib(responseGroup, "data", data); }
    QByteArray requestData() const { return value(responseGroup, "data").toByteArray(); }

    void addRequestHeader(const QString &key, const QString &text) { addAttrib(headerGroup, key, text); }
    void setRequestHeader(const StringMap &headers) { addTexts(headerGroup, headers); }
    QString requestHeader(const QString &key) const { return value(headerGroup, key).toString(); }
    StringMap requestHeader() const { return texts(headerGroup); }

    /// The query of the URL.
    /// @{
    void addParameters(const QString &key, const QString &text) { addAttrib(parameterGroup, key, text); }
    void setParameters(const StringMap &parameters) { addTexts(parameterGroup, parameters); }
    QString parameters(const QString &key) const { return value(parameterGroup, key).toString(); }
    StringMap parameters() const { return texts(parameterGroup); }
    /// @}

    /// What stands for {key} in the path.
    /// @{
    void addPlaceHolders(const QString &key, const QString &text) { addAttrib(holderGroup, key, text); }
    void setPlaceHolders(const StringMap &holders) { addTexts(holderGroup, holders); }
    QString placeHolders(const QString &key) const { return value(holderGroup, key).toString(); }
    StringMap placeHolders() const { return texts(holderGroup); }
    /// @}

    void addResponseHeader(const QString &key, const QString &text) { addAttrib(responseGroup, key, text); }
    void setResponseHeader(const StringMap &headers) { addTexts(responseGroup, headers); }
    QString responseHeader(const QString &key) const { return value(responseGroup, key).toString(); }
    StringMap responseHeader() const { return texts(responseGroup); }

    /// The parts of a form instead of a body: "file", a list with the one file's name, "text", and "idList",
    /// the ids as decimal texts.
    /// @{
    void setMultiPartParameters(const Parameters &parts) { m_multiPart = parts; }
    Parameters multiPartParameters() const { return m_multiPart; }
    /// @}

    /// How this request is carried: "timeout" in seconds (int), "saveTo", a file for the answer (text).
    Parameters_ options;

private:
    static constexpr const char *baseGroup = "base";
    static constexpr const char *headerGroup = "header";
    static constexpr const char *parameterGroup = "parameter";
    static constexpr const char *holderGroup = "placeholders";
    static constexpr const char *responseGroup = "responseheader";

    void addTexts(const QString &group, const StringMap &values);
    StringMap texts(const QString &group) const;

    Parameters m_multiPart;
};
} // namespace Vask4th_New
} // namespace Communicator_New
