#include "emulator/console/session.h"

#include "emulator/console/words.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

Session::Session(Emulator &theEmulator, std::optional<QString> folder, QObject *parent)
    : QObject(parent), emulator(theEmulator), m_folder(std::move(folder))
{
}

void Session::print(const QString &text)
{
    for (const QString &line : text.split('\n')) {
        if (m_request) // else the answer has ended
            sendLine(line);
    }
}

void Session::print(const QJsonDocument &document)
{
    print(QString::fromUtf8(document.toJson(QJsonDocument::Compact)));
}

void Session::tell(const QString &text, const QJsonObject &object)
{
    if (m_json)
        print(QJsonDocument(object));
    else
        print(text);
}

bool Session::accepts(const Arguments &arguments)
{
    const QString fault = arguments.fault();
    if (!fault.isEmpty())
        fail(Failure::usage, m_usage + ": " + fault);
    return fault.isEmpty();
}

QString Session::takePath(const QString &name)
{
    if (m_folder)
        return QDir::cleanPath(QDir(*m_folder).absoluteFilePath(name));
    fail("files are named at the machine itself, with fpdctl");
    return QString();
}

void Session::handle(const QStringList &words)
{
    m_request = std::make_unique<QObject>();
    m_json = false;
    if (words.isEmpty())
        ok();
    else
        handleWord(*this, words.first(), words.mid(1));
}

void Session::abandon()
{
    if (m_request)
        m_request.release()->deleteLater();
}

void Session::finish(Failure failure, const QString &reason)
{
    if (!m_request)
        return;
    m_request.release()->deleteLater();
    sendEnd(failure, QString(reason).replace('\n', ' '));
}
