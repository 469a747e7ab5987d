#include "widget/row/stringcomboxtable.h"

#include "framework/thread/handover.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"
#include "widget/row/focusdelegate.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <algorithm>
#include <iterator>

namespace VASK
{
namespace
{
constexpr int rowHeight = 36;   ///< pixels
constexpr int viewWidth = 190;  ///< pixels
constexpr int viewHeight = 216; ///< pixels, six rows

constexpr ENUM_MenuIndex reversedLists[] = {
    MENU_ImageMosaic_Status,
    MENU_HDCP,
    MENU_LowLatency,
    MENU_Mapping,
    MENU_MainLayer_Status,
    MENU_PIP1_Status,
    MENU_PIP2_Status,
    MENU_HDMI1_LimitedtoFull,
    MENU_HDMI2_LimitedtoFull,
    MENU_DVI_LimitedtoFull,
    MENU_DVI2_LimitedtoFull,
    MENU_InputBackup_Status,
    MENU_Sync_Status,
    MENU_Mode3D_Status,
    MENU_Net_NetMode,
    MENU_Advanced_Status,
    MENU_MainLayerCrop_Status,
    MENU_PIP1Crop_Status,
    MENU_PIP2Crop_Status,
    MENU_HDCPMemory,
    MENU_BootLogo,
    MENU_MakerSign,
};

QString viewStyle()
{
    return look::sheet("QTableView{font-family: \"%1\";font-size: 22px;color:$text;"
                       "background-color: rgb(35,17,82);}"
                       "QTableView::item:disabled{color: $disabled;}"
                       "QTableView::item{border: 0px;padding-left: 15px;}"
                       "QTableView{border:1px solid rgba(1,25,63);border-bottom:0px;border-right:0px;"
                       "border-top:none;margin:0px;padding:0px;}"
                       "QTableView::item:selected{color:$text;background:rgba(62,62,189);}"
                       "QScrollBar:horizontal{height:0px}QScrollBar:vertical{width:0px}")
        .arg(fontFamily());
}
} // namespace

bool isReversedList(ENUM_MenuIndex index)
{
    return std::find(std::begin(reversedLists), std::end(reversedLists), index) != std::end(reversedLists);
}

stringcomboxtable::stringcomboxtable(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex,
                                     const ST_ItemInfo &item)
    : VaskUiObject(objectIndex), m_mapParams(item.params), m_mapParamsEnable(item.params1),
      m_bReversed(isReversedList(menuIndex))
{
    CreatEntry();
    fill(item.value);
    showRow(rowOfKey(item.value));
}

void stringcomboxtable::CreatEntry()
{
    m_view = new QTableView(this);
    m_view->setFixedSize(viewWidth, viewHeight);
    m_view->horizontalHeader()->hide();
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(rowHeight);
    m_view->verticalScrollBar()->hide();
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setItemDelegate(new FocusDelegate(m_view));
    m_view->setShowGrid(false);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->setTextElideMode(Qt::ElideRight);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_view->setStyleSheet(viewStyle());
    m_model = new QStandardItemModel(this);
    m_view->setModel(m_model);
}

void stringcomboxtable::fill(const QString &value)
{
    for (int row = 0; row < m_mapParams.size(); ++row) {
        const QString key = keyOfRow(row);
        auto *option = new QStandardItem;
        option->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        // What is in force can be looked at, even where it could not be chosen again.
        option->setEnabled(getItemEnabled(row) || key == value);
        m_model->appendRow(option);
    }
    showOptions();
    m_view->setColumnWidth(0, viewWidth);
}

void stringcomboxtable::showOptions()
{
    for (int row = 0; row < m_mapParams.size(); ++row)
        m_model->item(row)->setText(translated(m_mapParams.value(keyOfRow(row))));
}

void stringcomboxtable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && m_view) {
        m_view->setStyleSheet(viewStyle());
        showOptions();
    }
    VaskUiObject::changeEvent(event);
}

QString stringcomboxtable::keyOfRow(int row) const
{
    return QString::number(m_bReversed ? 1 - row : row);
}

int stringcomboxtable::rowOfKey(const QString &key) const
{
    const int number = m_mapParams.contains(key) ? key.toInt() : 0;
    return m_bReversed ? 1 - number : number;
}

QString stringcomboxtable::chosenKey() const
{
    return keyOfRow(m_row);
}

bool stringcomboxtable::getItemEnabled(int row) const
{
    return m_mapParamsEnable.value(keyOfRow(row)) != optionDisable;
}

bool stringcomboxtable::CurrentItemEnabled()
{
    return getItemEnabled(m_row);
}

int stringcomboxtable::getNextEnableIndex(int start, int count, bool backwards) const
{
    int row = start;
    for (int tried = 0; tried < count; ++tried) {
        if (getItemEnabled(row))
            return row;
        row = (row + (backwards ? count - 1 : 1)) % count;
    }
    return m_row;
}

void stringcomboxtable::move(bool backwards)
{
    const int count = m_mapParams.size();
    if (count == 0)
        return;
    const int next = (m_row + (backwards ? count - 1 : 1)) % count;
    showRow(getNextEnableIndex(next, count, backwards));
}

void stringcomboxtable::showRow(int row)
{
    m_row = row;
    m_view->setCurrentIndex(m_model->index(row, 0));
}

void stringcomboxtable::UpEntry(ENUM_MenuIndex)
{
    move(true);
}

void stringcomboxtable::DownEntry(ENUM_MenuIndex)
{
    move(false);
}

void stringcomboxtable::SetParaEntry(ENUM_MenuIndex, QString value, ENUM_MODE_SET_XML)
{
    runOnGui(this, [=] { showRow(rowOfKey(value)); });
}
} // namespace VASK
