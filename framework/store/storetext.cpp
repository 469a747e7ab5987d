#include "framework/store/storetext.h"

#include "framework/store/menuxml.h"
#include "menu/itemindex.h"

#include <QTextCodec>
#include <QXmlStreamReader>

namespace VASK
{
namespace
{
/// Ten times what a store has. A tree costs far more memory than its text, and is freed element in element.
constexpr int elementLimit = 100000;
constexpr int depthLimit = 16;
constexpr int itemDepth = 2;

/// The text if it is UTF-8 throughout. Whatever encoding a document says it has, it is read as this.
bool decode(const QByteArray &bytes, QString &text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

class Scan
{
public:
    explicit Scan(StoreText &result) : m_result(result), m_reader(result.text) {}

    void run()
    {
        m_result.isTidy = true;
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::DTD:
                m_reader.raiseError("a document type");
                break;
            case QXmlStreamReader::StartElement:
                startElement();
                break;
            case QXmlStreamReader::EndElement:
                --m_depth;
                break;
            default:
                break;
            }
        }
        if (m_reader.hasError())
            fail();
    }

private:
    void startElement()
    {
        if (++m_depth > depthLimit || ++m_elements > elementLimit)
            m_reader.raiseError("more elements than a store has");
        const QString name = m_reader.qualifiedName().toString();
        if (m_depth == 1)
            m_isList = name == QLatin1String(menuXmlRoot);
        if (m_depth == 1 || name != m_names[XML_ITEMS] || !m_isList)
            return;
        ENUM_MenuIndex index = MENU_END;
        if (!isItemNumber(m_reader.attributes().value(m_names[XML_INDEX]).toString(), index))
            return;
        m_result.isTidy &= m_depth == itemDepth && !m_result.items.contains(index);
        m_result.items.insert(index);
    }

    void fail()
    {
        m_result.error = m_reader.errorString();
        m_result.line = m_reader.lineNumber();
        m_result.column = m_reader.columnNumber();
        m_result.text.clear();
        m_result.items.clear();
    }

    StoreText &m_result;
    QXmlStreamReader m_reader;
    const XmlNames m_names = menuXmlNames();
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
        result.error = "no text of a store's length";
        return result;
    }
    Scan(result).run();
    return result;
}
} // namespace VASK
