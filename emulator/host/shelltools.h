// The board's shell tools as scripts in the state folder, which answer like a healthy device or as told.
#pragma once

#include <QString>

class ShellTools
{
public:
    explicit ShellTools(const QString &stateFolder) : m_stateFolder(stateFolder) {}

    /// Empty, or what went wrong.
    QString install() const;
    /// What a tool prints from now on, whatever it is asked. False if there is no such tool.
    bool setAnswer(const QString &tool, const QString &text) const;
    /// Back to a healthy device's answers.
    bool clearAnswer(const QString &tool) const;

private:
    bool isKnown(const QString &tool) const;
    QString answerFile(const QString &tool) const;

    QString m_stateFolder;
};
