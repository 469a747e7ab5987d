#include "emulator/web/websession.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

WebSession::WebSession(Emulator &theEmulator, QObject *parent) : Session(theEmulator, std::nullopt, parent) {}

void WebSession::sendLine(const QString &line)
{
    if (!isJson()) {
        emit said(line);
        return;
    }
    const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8());
    emit said(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
}
