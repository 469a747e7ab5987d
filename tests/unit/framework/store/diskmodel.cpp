#include "tests/unit/framework/store/diskmodel.h"

#include <QFileInfo>

namespace
{
constexpr int pageSize = 4096;
constexpr int partSize = 16 * pageSize;

int pagesOf(const QByteArray &bytes)
{
    return (bytes.size() + pageSize - 1) / pageSize;
}

/// Of a file that was cut and written anew: cut after so many pages (all of them is the whole), zeros from a
/// page on, or a page of zeros.
struct Variant {
    const char *name;
    int (*count)(int pages);
    QByteArray (*make)(QByteArray bytes, int page);
};
const Variant variantKinds[] = {
    {"pages", [](int pages) { return pages + 1; },
     [](QByteArray bytes, int page) { return bytes.left(page * pageSize); }},
    {"zeros from page", [](int pages) { return pages; },
     [](QByteArray bytes, int page) {
         return bytes.left(page * pageSize) + QByteArray(bytes.size() - page * pageSize, '\0');
     }},
    {"zeros in page", [](int pages) { return qMax(0, pages - 1); }, // the last one is among those above
     [](QByteArray bytes, int page) {
         return bytes.replace(page * pageSize, pageSize, QByteArray(pageSize, '\0'));
     }},
};
} // namespace

DiskModel::DiskModel(const Files &files)
{
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        m_cachedNames.insert(file.key(), m_files.size());
        m_files.append(Contents{file.value()});
    }
    m_namesOnDisk = m_cachedNames;
}

int DiskModel::fileOf(const QString &name)
{
    if (!m_cachedNames.contains(name)) {
        const NameChange created{{}, name, m_files.size()};
        m_files.append(Contents{QByteArray()});
        m_nameChanges.append(created);
        change(m_cachedNames, created);
    }
    return m_cachedNames.value(name);
}

void DiskModel::change(QMap<QString, int> &names, const NameChange &step)
{
    if (!step.from.isEmpty() && names.value(step.from, -1) == step.file)
        names.remove(step.from);
    if (!step.to.isEmpty())
        names.insert(step.to, step.file);
}

void DiskModel::apply(const host::DiskStep &step)
{
    const QString name = QFileInfo(step.file).fileName();
    switch (step.kind) {
    case host::DiskStep::Truncate:
        m_files[fileOf(name)].append(QByteArray());
        break;
    case host::DiskStep::Write:
        m_files[fileOf(name)].last() += step.bytes;
        break;
    case host::DiskStep::SyncFile: {
        Contents &contents = m_files[fileOf(name)];
        contents = Contents{contents.last()};
        break;
    }
    case host::DiskStep::Rename:
    case host::DiskStep::Remove:
        m_nameChanges.append({name, QFileInfo(step.target).fileName(), fileOf(name)});
        change(m_cachedNames, m_nameChanges.last());
        break;
    case host::DiskStep::SyncAll:
        for (Contents &contents : m_files)
            contents = Contents{contents.last()};
        [[fallthrough]];
    case host::DiskStep::SyncFolder:
        m_namesOnDisk = m_cachedNames;
        m_nameChanges.clear();
        break;
    case host::DiskStep::Copy:
        for (const host::DiskStep &part : split(step))
            apply(part);
        break;
    }
}

QList<host::DiskStep> DiskModel::split(const host::DiskStep &step)
{
    using host::DiskStep;
    const bool isCopy = step.kind == DiskStep::Copy;
    if (!isCopy && step.kind != DiskStep::Write)
        return {step};
    const QString file = isCopy ? step.target : step.file;
    QList<DiskStep> parts;
    if (isCopy)
        parts << DiskStep{DiskStep::Truncate, file};
    for (int from = 0; from < step.bytes.size(); from += partSize)
        parts << DiskStep{DiskStep::Write, file, {}, step.bytes.mid(from, partSize)};
    return parts;
}

DiskModel::Files DiskModel::cached() const
{
    Files files;
    for (auto name = m_cachedNames.cbegin(); name != m_cachedNames.cend(); ++name)
        files.insert(name.key(), m_files[name.value()].last());
    return files;
}

int DiskModel::variants(const Contents &contents)
{
    int count = 1;
    for (int i = 1; i < contents.size(); ++i)
        for (const Variant &kind : variantKinds)
            count += kind.count(pagesOf(contents[i]));
    return count;
}

QByteArray DiskModel::variant(const Contents &contents, int number, QString *description)
{
    if (description)
        *description = "as it was";
    if (number-- == 0)
        return contents.first();
    for (int i = 1; i < contents.size(); ++i)
        for (const Variant &kind : variantKinds) {
            const int count = kind.count(pagesOf(contents[i]));
            if (number < count) {
                if (description)
                    *description = QString("writing %1, %2 %3 of %4")
                                       .arg(i)
                                       .arg(kind.name)
                                       .arg(number)
                                       .arg(pagesOf(contents[i]));
                return kind.make(contents[i], number);
            }
            number -= count;
        }
    return {};
}

qint64 DiskModel::states() const
{
    qint64 count = qint64(1) << m_nameChanges.size();
    for (const Contents &contents : m_files)
        count *= variants(contents);
    return count;
}

DiskModel::Choice DiskModel::choice(qint64 number) const
{
    Choice result{int(number & ((qint64(1) << m_nameChanges.size()) - 1)), {}};
    number >>= m_nameChanges.size();
    for (int file = 0; file < m_files.size(); ++file) {
        result.of.insert(file, int(number % variants(m_files[file])));
        number /= variants(m_files[file]);
    }
    return result;
}

DiskModel::Files DiskModel::state(qint64 number) const
{
    const Choice chosen = choice(number);
    QMap<QString, int> names = m_namesOnDisk;
    for (int i = 0; i < m_nameChanges.size(); ++i)
        if (chosen.names & 1 << i)
            change(names, m_nameChanges[i]);
    Files files;
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        files.insert(name.key(), variant(m_files[name.value()], chosen.of.value(name.value())));
    return files;
}

QString DiskModel::describe(qint64 number) const
{
    const Choice chosen = choice(number);
    QStringList texts;
    for (int i = 0; i < m_nameChanges.size(); ++i)
        texts << QString("%1%2 -> %3")
                     .arg(chosen.names & 1 << i ? "" : "not ")
                     .arg(m_nameChanges[i].from, m_nameChanges[i].to);
    for (int file = 0; file < m_files.size(); ++file)
        if (m_files[file].size() > 1) {
            QString text;
            variant(m_files[file], chosen.of.value(file), &text);
            texts << QString("file %1 (%2): %3").arg(file).arg(m_cachedNames.key(file)).arg(text);
        }
    return texts.join(", ");
}
