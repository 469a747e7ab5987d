// A page as such: its title, its table, its language.

#include "widget/page/menudirectoty.h"

#include "framework/thread/handover.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "widget/language.h"
#include "widget/look.h"
#include "widget/menulook.h"

#include <QHeaderView>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>

namespace VASK
{
namespace
{
/// Titles are a little larger from the start than after a change of language.
constexpr int firstTitlePixels = 16;

const QString commonEnglishStyle =
    look::sheet("*{font-family: \"Arial\";font-size: 20px;color: $text;background-color:rgba(0,0,0,0);}"
                "QTableWidget::item:selected{background:rgba(39,25,99);}");
} // namespace

ENUM_ObjectIndex MenuDirectory::m_currentObj = ENUM_MAIN_MENU;
std::atomic<unsigned char> MenuDirectory::m_currentLayer{MenuDirectory::noLayer};
std::atomic<bool> MenuDirectory::RotateFlg{false};
bool MenuDirectory::bSetScreenBrightness = false;

MenuDirectory::MenuDirectory(ENUM_ObjectIndex index) : VaskUiObject(index)
{
    setWindowFlags(Qt::FramelessWindowHint);
    setFixedSize(menulook::width, menulook::height);
    m_titleLabel = new QLabel(this);
    m_table = new QTableWidget(this);
}

int MenuDirectory::BuildHandshake(VaskObject const *peer, QMap<QString, QString> connections)
{
    if (!peer)
        return 0;
    for (auto it = connections.cbegin(); it != connections.cend(); ++it)
        QObject::connect(peer, it.key().toLatin1().constData(), this, it.value().toLatin1().constData());
    return 0;
}

bool MenuDirectory::SetTitleInfo(short width, signed char rowCount, QString title, QString style,
                                 QString englishStyle)
{
    if (title.isEmpty() || style.isEmpty())
        return false;
    m_width = width;
    m_rowCount = rowCount;
    m_title = title;
    m_style = style;
    m_englishStyle = englishStyle.isEmpty() ? commonEnglishStyle : englishStyle;
    initialize();
    return true;
}

void MenuDirectory::initialize()
{
    m_titleLabel->setGeometry(0, 0, m_width, menulook::titleHeight);
    m_titleLabel->setContentsMargins(menulook::titleMargin, 0, 0, 0);

    m_table->setGeometry(menulook::below);
    m_table->setColumnCount(1);
    m_table->setRowCount(m_rowCount);
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
    setLanguageStyle(firstTitlePixels);
}

void MenuDirectory::setLanguageStyle(int titlePixels)
{
    const bool english = englishChosen();
    m_titleLabel->setText(translated(m_title));
    m_titleLabel->setStyleSheet(menuTitleStyle(english, titlePixels));
    // A style goes to every widget of the page again: only when it differs.
    const QString &style = english ? m_englishStyle : m_style;
    if (m_table->styleSheet() != style)
        m_table->setStyleSheet(style);
}

void MenuDirectory::InsertMenuItem(QMap<int, st_MenuItemInfo> rows)
{
    m_rows = rows;
}

bool MenuDirectory::BuildMenuDirectory(ENUM_ConfigIndex config)
{
    int position = 0;
    for (const st_MenuItemInfo &row : qAsConst(m_rows)) {
        VaskUiObject *widget = rowWidget(row);
        if (!widget) {
            qDebug() << "no widget for row" << position << "of page" << int(config);
            return false;
        }
        if (position < m_rowCount) {
            m_table->setRowHeight(position, int(g_MenuXmlConfig.value(row.menuIndex).rowHeight));
            m_table->setCellWidget(position, 0, widget);
        }
        ++position;
    }
    selectRow(m_currentRow);
    return true;
}

void MenuDirectory::SetParaEntry(ENUM_MenuIndex, QString, ENUM_MODE_SET_XML)
{
    runOnGui(this, [this] {
        // A page that was never shown would keep the fonts of the first style.
        m_table->ensurePolished();
        setLanguageStyle(menulook::titlePixels);
    });
}

void MenuDirectory::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, menuBackground());
}

void MenuDirectory::setRowCount(int count)
{
    m_rowCount = static_cast<signed char>(qBound(0, count, m_rows.size()));
    if (m_currentRow >= m_rowCount) {
        unmarkApply();
        selectRow(qMax(0, m_rowCount - 1));
    }
}

void MenuDirectory::setRowHidden(int row, bool hidden)
{
    m_table->setRowHidden(row, hidden);
}

int MenuDirectory::rowOfPage(ENUM_ObjectIndex page) const
{
    for (auto it = m_rows.cbegin(); it != m_rows.cend(); ++it)
        if (it->controlType == TYPE_SUBPAGE && it->pageObject == page)
            return it.key();
    return -1;
}

bool MenuDirectory::currentRowInfo(st_MenuItemInfo &info) const
{
    const auto row = m_rows.constFind(m_currentRow);
    if (row == m_rows.constEnd())
        return false;
    info = *row;
    return true;
}

/// The widget in the page; before it has one, the widget in the pool.
VaskUiObject *MenuDirectory::rowWidget(const st_MenuItemInfo &row) const
{
    for (auto it = m_rows.cbegin(); it != m_rows.cend(); ++it)
        if (it->itemObject == row.itemObject)
            if (auto *placed = dynamic_cast<VaskUiObject *>(m_table->cellWidget(it.key(), 0)))
                return placed;
    return poolObject<VaskUiObject>(row.itemObject);
}
} // namespace VASK
