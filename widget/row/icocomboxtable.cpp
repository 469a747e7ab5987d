#include "widget/row/icocomboxtable.h"

#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"
#include "widget/row/focusdelegate.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

namespace VASK
{
namespace
{
constexpr QSize tableSize(190, 216); ///< pixels, as all below
constexpr QSize sectionSize(61, 39);
constexpr QSize cellSize(46, 36);
constexpr QSize pictureSize(36, 30);
} // namespace

icocomboxtable::icocomboxtable(ENUM_ObjectIndex objectIndex, const ST_ItemInfo &item)
    : VaskUiObject(objectIndex), m_mapParams(item.params), m_mapParamsEnable(item.params1),
      m_columns(qMax(item.col, 1))
{
    CreatEntry();
    qDebug() << "strCurValue = " << item.value;
    showCell(m_mapParams.contains(item.value) ? item.value.toInt() : 0);
}

void icocomboxtable::CreatEntry()
{
    const int rows = (m_mapParams.size() + m_columns - 1) / m_columns;
    m_table = new QTableWidget(rows, m_columns, this);
    m_table->setFixedSize(tableSize);
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setDefaultSectionSize(sectionSize.width());
    m_table->verticalHeader()->setDefaultSectionSize(sectionSize.height());
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setItemDelegate(new FocusDelegate(m_table));
    m_table->setShowGrid(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setStyleSheet(look::sheet("QTableWidget{font-family: \"宋体\";font-size:16px;color:$text;"
                                       "background-color: rgb(35,17,82);}"
                                       "QTableWidget::item:selected{background:rgba(62,62,189);}"
                                       "QTableWidget{border:1px solid rgba(51,34,128,66%);}"));
    for (int iLoop = 0; iLoop < m_mapParams.size(); ++iLoop) {
        qDebug() << "QString::number(iLoop) = " << QString::number(iLoop);
        m_table->setItem(iLoop / m_columns, iLoop % m_columns, new QTableWidgetItem);
        m_table->setCellWidget(iLoop / m_columns, iLoop % m_columns,
                               createCell(m_mapParams.value(QString::number(iLoop))));
    }
}

QWidget *icocomboxtable::createCell(const QString &path)
{
    auto *cell = new QWidget(m_table);
    cell->setMinimumSize(cellSize);
    cell->setStyleSheet(QStringLiteral("background-color:rgba(0,0,0,0);"));
    auto *picture = new QLabel(cell);
    picture->setFixedSize(pictureSize);
    picture->setAlignment(Qt::AlignCenter);
    picture->setPixmap(QPixmap(path));
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(picture, 0, Qt::AlignCenter);
    return cell;
}

bool icocomboxtable::CurrentItemEnabled()
{
    return m_mapParamsEnable.value(chosenKey()) != optionDisable;
}

void icocomboxtable::move(int by)
{
    const int count = m_mapParams.size();
    if (count > 0)
        showCell((m_cell + count + by) % count);
}

void icocomboxtable::showCell(int cell)
{
    m_cell = cell;
    m_table->setCurrentCell(cell / m_columns, cell % m_columns);
}

void icocomboxtable::UpEntry(ENUM_MenuIndex)
{
    move(-1);
}

void icocomboxtable::DownEntry(ENUM_MenuIndex)
{
    move(1);
}

void icocomboxtable::SetParaEntry(ENUM_MenuIndex, QString value, ENUM_MODE_SET_XML)
{
    runOnGui(this, [=] { showCell(m_mapParams.contains(value) ? value.toInt() : 0); });
}
} // namespace VASK
