// The state folder: the board's file system as far as the panel knows it, and what the emulator keeps beside
// it. Made with mode 0700 and taken by one emulator at a time.
#pragma once

#include <QLockFile>
#include <QString>

class StateFolder
{
public:
    explicit StateFolder(const QString &path);

    /// The folder that is used without --state.
    static QString defaultPath();

    /// Makes the folder and takes it; a folder with other things in it is left alone. Empty, or what went
    /// wrong.
    QString take();
    /// Puts the board's files there that are not there yet; translations are always renewed. Empty, or what
    /// went wrong.
    QString install();
    /// As after power-on: no flag files, a dark LCD.
    void clearForStart();

    /// The name of a new file in one of its folders, by the time; empty if the folder cannot be made.
    QString newFile(const QString &folder, const QString &suffix) const;

    QString path() const { return m_path; }
    QString file(const char *name) const { return m_path + QLatin1String(name); }

private:
    /// There is something in the folder, and nothing that an emulator has left.
    bool isForeign() const;

    QString m_path;
    QLockFile m_lock;
};
