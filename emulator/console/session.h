// A client of the console with the one request that is being answered. Where its lines go is for whoever
// derives from it: a socket, a page. Main thread.
#pragma once

#include <QObject>
#include <QStringList>
#include <memory>
#include <optional>

class Arguments;
class Emulator;
class QJsonDocument;
class QJsonObject;

enum class Failure { none, refused, usage, timeout };

class Session : public QObject
{
    Q_OBJECT
public:
    /// Folder: where relative file names start from; nothing for a client that may name no file.
    Session(Emulator &emulator, std::optional<QString> folder, QObject *parent = nullptr);

    Emulator &emulator;

    /// One line of the answer, or several.
    void print(const QString &text);
    /// As a line of JSON.
    void print(const QJsonDocument &document);
    /// As text or, if the request is for that, as a line of JSON.
    void tell(const QString &text, const QJsonObject &object);
    /// Whether the request is for JSON.
    /// @{
    void setJson(bool json) { m_json = json; }
    bool isJson() const { return m_json; }
    /// @}

    /// Ends the answer.
    void ok() { finish(Failure::none, QString()); }
    void fail(const QString &reason) { fail(Failure::refused, reason); }
    void fail(Failure failure, const QString &reason) { finish(failure, reason); }

    /// False if an argument is wrong or one too many: the request has failed then, with how the word is used.
    bool accepts(const Arguments &arguments);
    /// How the word that is being answered is used.
    void setUsage(const QString &usage) { m_usage = usage; }

    /// Lives as long as the request that is being answered; what is connected to it ends with it.
    QObject *request() { return m_request.get(); }

    /// Where the file or folder lies that a client names. Empty if this one may name none: the request has
    /// failed then. There is no other way from a name to a file.
    QString takePath(const QString &name);
    void setFolder(const QString &folder) { m_folder = folder; }

protected:
    /// A request begins; its word may answer it at once or later.
    void handle(const QStringList &words);
    /// The client has gone: what is being done for it ends.
    void abandon();
    bool isAnswering() const { return m_request != nullptr; }

    virtual void sendLine(const QString &line) = 0;
    virtual void sendEnd(Failure failure, const QString &reason) = 0;

private:
    void finish(Failure failure, const QString &reason);

    std::optional<QString> m_folder;
    QString m_usage;
    bool m_json = false;
    std::unique_ptr<QObject> m_request;
};
