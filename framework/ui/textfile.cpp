#include "framework/ui/textfile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace VASK
{
namespace
{
constexpr qint64 largestFile = 4 * 1024 * 1024; ///< bytes; all texts of the panel take 30,000
constexpr int magicLength = 16;
constexpr int hashEntryLength = 8; ///< a hash and the offset of a message

// All numbers of the file are big-endian. A section has a tag and a length before its bytes.
enum SectionTag {
    SECTION_End = 0,
    SECTION_Contexts = 0x2f,
    SECTION_Hashes = 0x42,
    SECTION_Messages = 0x69,
    SECTION_Dependencies = 0x96,
};

/// The parts of a message; all but the first and the obsolete one have a length.
enum PartTag {
    PART_End = 1,
    PART_Translation = 3,
    PART_Obsolete = 5,
    PART_SourceText = 6,
    PART_Context = 7,
    PART_Comment = 8,
};

/// Walks over bytes and never beyond them: what is not there is 0, and the walk has failed.
class Walk
{
public:
    explicit Walk(const QByteArray &bytes, qint64 from = 0) : m_bytes(bytes), m_at(from)
    {
        m_failed = from > bytes.size();
    }

    int u8() { return has(1) ? uchar(m_bytes[int(m_at++)]) : 0; }
    qint64 u32()
    {
        if (!has(sizeof(quint32)))
            return 0;
        const auto number = qFromBigEndian<quint32>(m_bytes.constData() + m_at);
        m_at += int(sizeof(quint32));
        return number;
    }
    void skip(qint64 length) { m_at += has(length) ? length : 0; }
    qint64 at() const { return m_at; }
    bool failed() const { return m_failed; }
    bool atEnd() const { return m_at >= m_bytes.size(); }

private:
    bool has(qint64 length)
    {
        m_failed = m_failed || length > m_bytes.size() - m_at;
        return !m_failed;
    }

    const QByteArray &m_bytes;
    qint64 m_at;
    bool m_failed;
};

bool isSoundMessage(const QByteArray &messages, qint64 offset)
{
    Walk walk(messages, offset);
    while (!walk.failed()) {
        switch (walk.u8()) {
        case PART_End:
            return true;
        case PART_Obsolete:
            walk.skip(sizeof(quint32));
            break;
        case PART_Translation:
        case PART_SourceText:
        case PART_Context:
        case PART_Comment:
            walk.skip(walk.u32());
            break;
        default:
            return false;
        }
    }
    return false;
}
} // namespace

bool isSoundTextFile(const QByteArray &content)
{
    QByteArray hashes;
    QByteArray messages;
    Walk walk(content, magicLength);
    while (!walk.failed() && !walk.atEnd()) {
        const int tag = walk.u8();
        const qint64 length = walk.u32();
        // Qt stops at an empty section, and would have missed what stands behind it.
        if (length == 0 || tag == SECTION_End || tag == SECTION_Contexts || tag == SECTION_Dependencies)
            return false;
        const qint64 from = walk.at();
        walk.skip(length);
        if (tag == SECTION_Hashes)
            hashes = content.mid(int(from), int(length));
        else if (tag == SECTION_Messages)
            messages = content.mid(int(from), int(length));
    }
    if (walk.failed() || hashes.size() % hashEntryLength != 0)
        return false;
    Walk entries(hashes);
    while (!entries.atEnd()) {
        entries.skip(sizeof(quint32));
        if (!isSoundMessage(messages, entries.u32()))
            return false;
    }
    return true;
}

TextFile::~TextFile()
{
    // Nobody may look up a text in what goes next.
    QCoreApplication::removeTranslator(this);
}

bool TextFile::loadFile(const QString &name)
{
    QFile file(name);
    if (!QFileInfo(name).isFile() || file.size() > largestFile || !file.open(QIODevice::ReadOnly)) {
        qDebug() << "cannot read the texts" << name << file.errorString();
        return false;
    }
    const QByteArray content = file.read(largestFile);
    if (!isSoundTextFile(content)) {
        qDebug() << "the texts are damaged:" << name;
        return false;
    }
    m_content = content;
    return load(reinterpret_cast<const uchar *>(m_content.constData()), m_content.size());
}
} // namespace VASK
