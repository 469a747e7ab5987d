#include "widget/factory/devcheckwin.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/keypadevent.h"
#include "framework/productiontest/boardcheck.h"
#include "framework/ui/language.h"
#include "menu/keycodes.h"
#include "menu/objectindex.h"
#include "widget/elidinglabel.h"
#include "widget/look.h"
#include "widget/menulook.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>

using namespace VASK;

namespace
{
constexpr QSize nameSize(130, 32); ///< pixels, as all below
constexpr QSize gapSize(20, 30);
constexpr QSize valueSize(150, 32);
constexpr int endSpacing = 8;

const QString goodStyle = look::sheet("*{color:$pass;}");
const QString faultStyle = look::sheet("*{color:$fail;}");

QString listStyle(bool english)
{
    return look::sheet("*{font-family: \"%1\";font-size: %2;color: $text;background-color:rgba(0,0,0,0);}"
                       "QListWidget::item:selected{background:rgba(39,25,99);}")
        .arg(english ? "Arial" : "宋体", english ? "16px" : "20px");
}

/// The longest names need a smaller font than the rest of the list to stand in their column.
void fitFont(QLabel *label)
{
    label->ensurePolished();
    for (int pixels = label->font().pixelSize();
         pixels > 1 && label->fontMetrics().horizontalAdvance(label->text()) > nameSize.width();) {
        label->setStyleSheet(QString("font-size: %1px;").arg(--pixels));
        label->ensurePolished();
    }
}
} // namespace

bool DevCheckWin::test_flg = false;

DevCheckWin::DevCheckWin(QWidget *parent) : TestScreen(parent), m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("DevCheckWin"));
    const bool english = englishChosen();
    setTitle(translated(QStringLiteral("SelfTest")), english);
    m_list->setGeometry(menulook::below);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->verticalScrollBar()->setStyleSheet(menuScrollBarStyle());
    m_list->setStyleSheet(listStyle(english));
    if (auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS))
        connect(engine, &ParaProcess::signal_selfcheck_filled, this, &DevCheckWin::showRows);
}

void DevCheckWin::InitDefaultItems(bool test)
{
    test_flg = test;
    checkBoard();
    showRows();
    m_list->setCurrentRow(0);
}

void DevCheckWin::showRows()
{
    const QVector<ListItemInfo> rows = SelfCheckList::inOrder();
    for (int i = 0; i < rows.size(); ++i) {
        if (i == m_rows.size()) {
            AddMenuItem(rows[i]);
            continue;
        }
        m_rows[i].name->setText(rows[i].name);
        m_rows[i].value->setText(rows[i].text);
        m_rows[i].value->setStyleSheet(rows[i].status == SelfCheckList::normal ? goodStyle : faultStyle);
    }
}

void DevCheckWin::AddMenuItem(ListItemInfo const &item)
{
    QMutexLocker lock(&m_mutex);
    auto *widget = new QWidget;
    auto *name = new QLabel(item.name, widget);
    name->setFixedSize(nameSize);
    // What the device tells has no upper length.
    auto *value = new ElidingLabel(item.text, widget);
    value->setMaximumSize(valueSize);
    value->setMinimumHeight(valueSize.height());
    value->setStyleSheet(item.status == SelfCheckList::normal ? goodStyle : faultStyle);

    auto *layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addSpacing(endSpacing);
    layout->addWidget(name);
    layout->addItem(new QSpacerItem(gapSize.width(), gapSize.height(), QSizePolicy::Fixed));
    layout->addWidget(value);
    layout->addSpacing(endSpacing);

    auto *place = new QListWidgetItem(m_list);
    place->setSizeHint(QSize(0, ITEM_HEIGHT));
    m_list->setItemWidget(place, widget);
    fitFont(name);
    m_rows.append({name, value});
}

bool DevCheckWin::event(QEvent *event)
{
    if (!event)
        return false;
    const auto *key = dynamic_cast<KeypadEvent *>(event);
    if (!key)
        return QWidget::event(event);
    if (key->type() == KEY_RELEASED)
        return true;
    if (key->key() == KEY_KNOB_LEFT)
        moveCursor(-1);
    else if (key->key() == KEY_KNOB_RIGHT)
        moveCursor(1);
    else if (key->key() == KEY_ESC && !test_flg)
        leave();
    return true;
}

void DevCheckWin::moveCursor(int step)
{
    m_list->setCurrentRow(qBound(0, m_list->currentRow() + step, m_list->count() - 1));
}

void DevCheckWin::leave()
{
    qDebug() << "KEYSCANCODE_10-退出";
    // The page comes up first, so that there is a window to hear the next key at any time.
    emit signal_devchk_end();
    hide();
}
