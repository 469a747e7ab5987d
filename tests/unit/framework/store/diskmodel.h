// A disk under a cache, as a journalling file system keeps it: what was not synced may be on the disk or not
// when the power goes, file by file, page by page and name by name, in any order that no sync forbids.
#pragma once

#include "platform/host/diskwatch.h"

#include <QList>
#include <QMap>
#include <QString>

class DiskModel
{
public:
    using Files = QMap<QString, QByteArray>;

    /// The files of a folder, all on the disk.
    explicit DiskModel(const Files &files = {});

    /// Makes a change to a file of the folder.
    void apply(const host::DiskStep &step);

    /// What a program finds that starts now.
    Files cached() const;

    /// How many states a power cut may leave now; each has a number below that.
    qint64 states() const;
    Files state(qint64 number) const;
    QString describe(qint64 number) const;

    /// A step as the disk sees it: a copy cuts and writes, and what is written comes in parts.
    static QList<host::DiskStep> split(const host::DiskStep &step);

private:
    /// The first is on the disk, each of the others begins with the file being cut to nothing.
    using Contents = QList<QByteArray>;
    struct NameChange {
        QString from; ///< no name from now on, if there is one
        QString to;   ///< the file's name from now on, if there is one
        int file;
    };
    /// Which names and which of a file's contents have come to the disk.
    struct Choice {
        int names;         ///< a bit a change
        QMap<int, int> of; ///< the number of a variant, by file
    };

    int fileOf(const QString &name);
    Choice choice(qint64 number) const;
    static int variants(const Contents &contents);
    static QByteArray variant(const Contents &contents, int number, QString *description = nullptr);
    static void change(QMap<QString, int> &names, const NameChange &step);

    QList<Contents> m_files;
    QMap<QString, int> m_cachedNames;
    QMap<QString, int> m_namesOnDisk;
    QList<NameChange> m_nameChanges; ///< in the cache alone
};
