// The texts of a language from their file. Qt follows the offsets and lengths of such a file wherever they
// point, so it is read into memory and looked through first: a damaged one is refused as a missing one is,
// and one that is replaced or cut while the panel runs changes nothing. GUI thread.
#pragma once

#include <QByteArray>
#include <QTranslator>

namespace VASK
{
class TextFile : public QTranslator
{
    Q_OBJECT
public:
    using QTranslator::QTranslator;
    ~TextFile() override;

    /// False, with a log line that tells why, if the file cannot be had.
    bool loadFile(const QString &file);

private:
    QByteArray m_content; ///< the texts lie in it
};

/// True if no look-up in such a file reaches beyond it. Files in the compressed form and those that name
/// other files are none of ours.
bool isSoundTextFile(const QByteArray &content);
} // namespace VASK
