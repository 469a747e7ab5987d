#include "framework/store/storetext.h"

#include <QTextCodec>
#include <QXmlStreamReader>
#include <algorithm>

namespace VASK
{
namespace
{
/// Ten times what a store has. A tree costs far more memory than its text, and is freed element in element.
constexpr int elementLimit = 100000;
constexpr int depthLimit = 16;
constexpr int itemDepth = 2;
constexpr int fieldDepth = 3;
constexpr int paramDepth = 4;

/// No document may hold it; the two readers of this one do not agree about that.
bool isForbidden(QChar c)
{
    return (c < ' ' && c != '\t' && c != '\n' && c != '\r') || c.unicode() >= 0xFFFE;
}

/// The text if it is UTF-8 throughout. Whatever encoding a document says it has, it is read as this.
bool decode(const QByteArray &bytes, QString &text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 &&
           std::none_of(text.cbegin(), text.cend(), isForbidden);
}

class Scan
{
public:
    explicit Scan(StoreText &result) : m_result(result), m_reader(result.text) {}

    void run()
    {
        m_result.isTidy = true;
        while (!m_reader.atEnd()) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            if (token == QXmlStreamReader::Characters) {
                characters();
                continue;
            }
            endText();
            switch (token) {
            case QXmlStreamReader::DTD:
                m_reader.raiseError("a document type");
                break;
            case QXmlStreamReader::StartElement:
                startElement();
                break;
            case QXmlStreamReader::EndElement:
                endElement();
                break;
            default:
                break;
            }
        }
        if (m_reader.hasError())
            fail();
        if (!m_result.isTidy)
            m_result.records.clear();
    }

private:
    void startElement()
    {
        if (++m_depth > depthLimit || ++m_elements > elementLimit)
            m_reader.raiseError("more elements than a store has");
        const QStringRef name = m_reader.qualifiedName();
        if (m_depth == 1)
            m_isList = name == QLatin1String(menuXmlRoot);
        else if (m_isList && name == m_itemTag)
            startItem();
        else if (m_isInItem)
            startPart(name);
    }

    void startItem()
    {
        ++m_result.elements;
        const QString number = m_reader.attributes().value(m_names[XML_INDEX]).toString();
        ENUM_MenuIndex index = MENU_END;
        if (!isItemNumber(number, index)) {
            m_result.complaints.append({"no item of that number:", number});
            return;
        }
        m_result.isTidy &= m_depth == itemDepth && !m_result.items.contains(index);
        m_result.items.insert(index);
        m_isInItem = true;
        m_item = ST_ItemInfo();
        m_item.index = index;
    }

    void startPart(const QStringRef &name)
    {
        if (m_depth == fieldDepth) {
            m_field = {name.toString(), {}, {}};
        } else if (m_depth == paramDepth) {
            m_param = name == m_paramTag ? m_reader.attributes().value(m_names[XML_PARAMNAME]).toString()
                                         : QString();
            m_paramBegin = m_field.text.size();
        }
    }

    void endElement()
    {
        if (m_isInItem && m_depth == paramDepth && !m_param.isEmpty())
            m_field.params.insert(m_param, m_field.text.mid(m_paramBegin));
        else if (m_isInItem && m_depth == fieldDepth)
            takeXmlField(m_field, m_names, m_item, m_result.complaints);
        else if (m_isInItem && m_depth == itemDepth) {
            m_result.records.insert(m_item.index, m_item);
            m_isInItem = false;
        }
        --m_depth;
    }

    /// A text ends with the next tag; of blanks alone it is none, unless they are marked as text.
    void characters()
    {
        if (!m_isInItem || m_depth < fieldDepth)
            return;
        if (m_reader.isCDATA()) {
            endText();
            m_field.text += m_reader.text();
        } else {
            m_text += m_reader.text();
        }
    }

    void endText()
    {
        if (m_text.isEmpty())
            return;
        if (std::any_of(m_text.cbegin(), m_text.cend(), [](QChar c) { return !c.isSpace(); }))
            m_field.text += m_text;
        m_text.clear();
    }

    void fail()
    {
        m_result.error = m_reader.errorString();
        m_result.line = m_reader.lineNumber();
        m_result.column = m_reader.columnNumber();
        m_result.text.clear();
        m_result.items.clear();
        m_result.isTidy = false;
    }

    StoreText &m_result;
    QXmlStreamReader m_reader;
    const XmlNames m_names = menuXmlNames();
    const QString m_itemTag = m_names[XML_ITEMS];
    const QString m_paramTag = m_names[XML_PARAM];
    bool m_isInItem = false; ///< one with a number
    ST_ItemInfo m_item;
    XmlField m_field;
    QString m_param; ///< the key of the entry that is being read, empty for none
    int m_paramBegin = 0;
    QString m_text; ///< since the last tag
    int m_depth = 0;
    int m_elements = 0;
    bool m_isList = false;
};
} // namespace

StoreText readStoreText(const QByteArray &bytes)
{
    StoreText result;
    if (bytes.size() >= storeSizeLimit || !decode(bytes, result.text)) {
        result.text.clear();
        result.error = "no text of a store's length and characters";
        return result;
    }
    Scan(result).run();
    return result;
}
} // namespace VASK
