#include "widget/row/typestringcombox.h"

#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/valuelabel.h"

#include <QDebug>

namespace VASK
{
void typestringcombox::CreatEntry()
{
    createFrame(createValueLabel());
}

QString typestringcombox::valueText() const
{
    return translated(m_item.params.value(m_item.value));
}

void typestringcombox::EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char)
{
    if (edit != 0) {
        takeChoice(index);
        return;
    }
    if (isRateList(index)) {
        limited(QString(), index);
        UpdataEntry(index);
    }
    m_dropDown.open(std::make_unique<stringcomboxtable>(index, objectIndex(), m_item), page);
    qDebug() << "typestringcombox::EnterEntry: strCurValue=" << m_item.value;
}

void typestringcombox::takeChoice(ENUM_MenuIndex index)
{
    if (!m_dropDown.isOpen())
        return;
    const QString old = m_item.value;
    QString value = m_dropDown.table()->chosenKey();
    m_item.value = value;
    if (value != old) {
        value = limited(value, index);
        m_item.value = value;
        apply(value, index);
    }
    m_dropDown.close();
    showValue(valueText());
}
} // namespace VASK
