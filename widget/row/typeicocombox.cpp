#include "widget/row/typeicocombox.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDebug>
#include <QLabel>

namespace VASK
{
namespace
{
constexpr int pictureWidth = 36; ///< pixels
constexpr int pictureHeight = 30;

bool isTestPattern(ENUM_MenuIndex index)
{
    return index == MENU_Test_PureColor || index == MENU_Test_Gradient || index == MENU_Test_Grid;
}

bool hasPreview(ENUM_MenuIndex index)
{
    return index == MENU_Quick_FlowWay || isTestPattern(index);
}
} // namespace

void typeicocombox::CreatEntry()
{
    m_picture = createRowIcon(this, pictureWidth, pictureHeight);
    createFrame(m_picture, 0);
}

void typeicocombox::drawPicture()
{
    ensureBuilt();
    m_picture->setPixmap(QPixmap(m_item.params.value(m_item.value)));
}

void typeicocombox::draw()
{
    FramedRow::draw();
    drawPicture();
}

void typeicocombox::use(ENUM_MenuIndex index, const QString &value)
{
    const QString used = limited(value, index);
    m_item.value = used;
    apply(used, index);
    drawPicture();
}

void typeicocombox::EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char)
{
    if (edit == 0) {
        m_oldValue = m_item.value;
        m_dropDown.open(std::make_unique<icocomboxtable>(objectIndex(), m_item), page);
        if (isTestPattern(index))
            use(index, m_item.value);
        return;
    }
    if (!m_dropDown.isOpen())
        return;
    const QString chosen = m_dropDown.table()->chosenKey();
    const QString old = m_item.value;
    m_item.value = chosen;
    if (chosen != old)
        use(index, chosen);
    m_dropDown.close();
    drawPicture();
}

void typeicocombox::EscEntry(ENUM_MenuIndex index)
{
    ListRow::EscEntry(index);
    if (index == MENU_Quick_FlowWay && m_item.value != m_oldValue)
        use(index, m_oldValue);
}

void typeicocombox::preview(ENUM_MenuIndex index)
{
    if (hasPreview(index) && m_dropDown.isOpen())
        use(index, m_dropDown.table()->chosenKey());
}

void typeicocombox::UpEntry(ENUM_MenuIndex index)
{
    ListRow::UpEntry(index);
    preview(index);
}

void typeicocombox::DownEntry(ENUM_MenuIndex index)
{
    ListRow::DownEntry(index);
    preview(index);
}

void typeicocombox::takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
{
    ListRow::takeValue(index, value, mode);
    qDebug() << "mapParams.value(strCurValue): " << m_item.params.value(m_item.value);
}
} // namespace VASK
