#include "widget/page/pagetable.h"

#include "framework/ui/language.h"
#include "widget/look.h"
#include "widget/menulook.h"
#include "widget/row/pagerow.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <algorithm>

namespace VASK
{
namespace
{
const QString commonEnglishStyle =
    look::sheet("*{font-family: \"Arial\";font-size: 20px;color: $text;background-color:rgba(0,0,0,0);}"
                "QTableWidget::item:selected{background:rgba(39,25,99);}");
} // namespace

bool PageTable::setTitle(short width, signed char rowCount, const QString &title, const QString &style,
                         const QString &englishStyle)
{
    if (title.isEmpty() || style.isEmpty())
        return false;
    m_width = width;
    m_rowCount = rowCount;
    m_title = title;
    m_style = style;
    m_englishStyle = englishStyle.isEmpty() ? commonEnglishStyle : englishStyle;
    return true;
}

void PageTable::build()
{
    if (m_table)
        return;
    m_titleLabel = new QLabel(m_page);
    m_table = new QTableWidget(m_page);
    layOut();
    for (int position = 0; position < m_placed.size(); ++position) {
        const ENUM_MenuIndex item = m_rows.value(position).menuIndex;
        m_table->setRowHeight(position, int(g_MenuXmlConfig.value(item).rowHeight));
        m_table->setCellWidget(position, 0, m_placed.at(position));
        m_table->setRowHidden(position, m_hidden.contains(position));
    }
    m_table->setCurrentCell(m_selected, 0);
}

void PageTable::layOut()
{
    m_titleLabel->setGeometry(0, 0, m_width, menulook::titleHeight);
    m_titleLabel->setContentsMargins(menulook::titleMargin, 0, 0, 0);

    m_table->setGeometry(menulook::below);
    m_table->setColumnCount(1);
    m_table->setRowCount(m_placed.size());
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->verticalHeader()->setMinimumSectionSize(1);
    m_table->setShowGrid(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->verticalScrollBar()->setStyleSheet(menuScrollBarStyle());
    setLanguageStyle();
}

void PageTable::setLanguageStyle()
{
    const bool english = englishChosen();
    m_titleLabel->setText(translated(m_title));
    setNoteLook(*m_titleLabel, english, m_titlePixels);
    const bool asSheet = std::any_of(m_placed.cbegin(), m_placed.cend(), [](VaskUiObject *widget) {
        const auto *row = dynamic_cast<PageRow *>(widget);
        return row && row->needsSheet();
    });
    setRowsLook(*m_table, english ? m_englishStyle : m_style, asSheet);
}

void PageTable::followLanguage()
{
    m_titlePixels = menulook::titlePixels;
    if (m_table)
        setLanguageStyle();
}

bool PageTable::placeRows(ENUM_ConfigIndex config)
{
    m_placed.clear();
    for (const st_MenuItemInfo &row : qAsConst(m_rows)) {
        auto *widget = poolObject<VaskUiObject>(row.itemObject);
        if (!widget) {
            qDebug() << "no widget for row" << m_placed.size() << "of page" << int(config);
            return false;
        }
        if (m_placed.size() < m_rowCount)
            m_placed << widget;
    }
    return true;
}

void PageTable::setRowCount(int count)
{
    m_rowCount = static_cast<signed char>(qBound(0, count, m_rows.size()));
}

ShownRow PageTable::row(int number) const
{
    const auto found = m_rows.constFind(number);
    if (found == m_rows.constEnd())
        return {};
    VaskUiObject *widget = widgetOf(*found);
    return {*found, widget, dynamic_cast<PageRow *>(widget)};
}

VaskUiObject *PageTable::widgetOf(const st_MenuItemInfo &row) const
{
    for (auto it = m_rows.cbegin(); it != m_rows.cend(); ++it)
        if (it->itemObject == row.itemObject)
            if (VaskUiObject *placed = m_placed.value(it.key()))
                return placed;
    return poolObject<VaskUiObject>(row.itemObject);
}

int PageTable::rowOfPage(ENUM_ObjectIndex page) const
{
    for (auto it = m_rows.cbegin(); it != m_rows.cend(); ++it)
        if (it->controlType == TYPE_SUBPAGE && it->pageObject == page)
            return it.key();
    return -1;
}

bool PageTable::isFocusable(int row) const
{
    const auto found = m_rows.constFind(row);
    return found != m_rows.constEnd() && g_MenuXmlConfig.value(found->menuIndex).focusable &&
           !m_hidden.contains(row);
}

void PageTable::setHidden(int row, bool hidden)
{
    if (hidden)
        m_hidden << row;
    else
        m_hidden.remove(row);
    if (m_table)
        m_table->setRowHidden(row, hidden);
}

void PageTable::select(int row)
{
    m_selected = row;
    if (m_table)
        m_table->setCurrentCell(row, 0);
}
} // namespace VASK
