#include "widget/row/typeipadjust.h"

#include "framework/engine/modes.h"
#include "framework/engine/paraprocess.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/elidinglabel.h"
#include "widget/look.h"
#include "widget/row/framedrow.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QRegExp>
#include <QStyle>

namespace VASK
{
namespace
{
constexpr int largestFirst = 223; ///< first number of a host address
constexpr int largest = 255;
constexpr int noNumber = -1;

const QRegExp &m_regFirstIp()
{
    static const QRegExp expression("(2[0-5]{2}|2[0-4][0-9]|1+[0-9]{0,2}|[1-9]{1}[0-9]{0,1})");
    return expression;
}

const QRegExp &m_regOtherIp()
{
    static const QRegExp expression("(2[0-5]{2}|2[0-4][0-9]|1?[0-9]{1,2})");
    return expression;
}
} // namespace

void typeipadjust::CreatEntry()
{
    constexpr QSize iconSize(20, 24); // pixels, as all below
    constexpr QSize rightSize(8, 16);
    m_icon = createRowIcon(this, iconSize.width(), iconSize.height());
    m_name = new ElidingLabel(this);
    m_rightIcon = createRowIcon(this, rightSize.width(), rightSize.height());

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 8, 0);
    layout->addSpacing(8);
    layout->addWidget(m_icon);
    layout->addWidget(m_name);
    layout->addStretch();
    layout->addSpacing(4);
    // The smaller digits stand on the line of the name.
    auto *lower = new QVBoxLayout;
    lower->setContentsMargins(0, 4, 0, 0);
    addNumbers(lower);
    layout->addLayout(lower);
    layout->addSpacing(4);
    layout->addWidget(m_rightIcon);
    setTypeStyleSheet();
}

void typeipadjust::addNumbers(QBoxLayout *layout)
{
    constexpr QSize numberSize(32, 27); // pixels, as all below
    constexpr QSize dotSize(3, 24);
    auto *inner = new QHBoxLayout;
    inner->setSpacing(2);
    inner->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < numberCount; ++i) {
        if (i > 0) {
            auto *dot = new QLabel(QStringLiteral("."), this);
            dot->setObjectName(QStringLiteral("ipDot"));
            dot->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
            dot->setFixedSize(dotSize);
            inner->addSpacing(3);
            inner->addWidget(dot);
            inner->addSpacing(3);
        }
        auto *label = new QLabel(this);
        label->setObjectName(QStringLiteral("ipLineEdit"));
        label->setFixedSize(numberSize);
        label->setAlignment(Qt::AlignCenter);
        label->installEventFilter(this);
        label->setProperty("edit", false);
        m_numbers[i] = label;
        inner->addWidget(label);
    }
    layout->addLayout(inner);
}

void typeipadjust::setTypeStyleSheet()
{
    static const QString form =
        look::sheet("*{color:%1;}#ipLineEditDot{border-radius:1px; background-color:%1;border:1px solid %1;}"
                    "#ipLineEdit[edit=false]:disabled,#ipLineEdit[edit=true]:disabled{border: 0px solid %1;}"
                    "#ipLineEdit[edit=false]:enabled{border:1px solid $focus;}"
                    "#ipLineEdit[edit=true]:enabled{border:1px solid $focus;color:$edited;}"
                    // Three digits have to fit their box, and the dot its gap.
                    "#ipLineEdit{font-size:16px;}#ipDot{font-size:11px;}");
    m_styledEnabled = m_item.enable;
    setStyleSheet(form.arg(look::ofText(m_item.enable)));
}

void typeipadjust::setItemEdit(int number)
{
    for (int i = 0; i < numberCount; ++i) {
        m_numbers[i]->setProperty("edit", i == number);
        m_numbers[i]->style()->unpolish(m_numbers[i]);
        m_numbers[i]->style()->polish(m_numbers[i]);
    }
}

void typeipadjust::setModifyStatus(bool on)
{
    for (QLabel *label : m_numbers)
        label->setEnabled(true);
    setItemEdit(on ? m_currentItem : noNumber);
}

bool typeipadjust::isTextValid(const QString &text)
{
    static const QRegExp expression("^(2[0-5]{2}|2[0-4][0-9]|1+[0-9]{0,2}|[1-9]{1}[0-9]{0,1})."
                                    "([1]?\\d\\d?|2[0-4]\\d|25[0-5]).([1]?\\d\\d?|2[0-4]\\d|25[0-5])."
                                    "([1]?\\d\\d?|2[0-4]\\d|25[0-5])$");
    QRegExp whole(expression); // matching changes the expression
    return !text.isEmpty() && whole.exactMatch(text) && text.count(QLatin1Char('.')) == numberCount - 1;
}

QString typeipadjust::getIpText() const
{
    QStringList parts;
    for (const QLabel *label : m_numbers)
        parts << label->text();
    return parts.join(QLatin1Char('.'));
}

void typeipadjust::setIpText(const QString &text)
{
    showParts(isTextValid(text) ? text : QStringLiteral("127.0.0.1"));
}

void typeipadjust::showParts(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    for (int i = 0; i < numberCount; ++i)
        m_numbers[i]->setText(parts.value(i));
}

bool typeipadjust::firstNumberLocked(ENUM_MenuIndex index) const
{
    return index == MENU_Net_SubnetMask && m_currentItem == 0;
}

bool typeipadjust::matches(const QString &number) const
{
    QRegExp expression(m_currentItem == 0 ? m_regFirstIp() : m_regOtherIp());
    return expression.exactMatch(number) && number.toInt() <= largest;
}

void typeipadjust::modifyIpAddress(bool up)
{
    int value = m_numbers[m_currentItem]->text().toInt() + (up ? 1 : -1);
    if (ownIndex() == MENU_Net_IPAddress && m_currentItem == 0)
        value = qMin(value, largestFirst);
    const QString number = QString::number(value);
    if (matches(number))
        m_numbers[m_currentItem]->setText(number);
    else
        m_bModified = false;
}

void typeipadjust::modifyIpAddress(int digit, bool)
{
    const int old = m_numbers[m_currentItem]->text().toInt();
    const int limit = ownIndex() == MENU_Net_IPAddress && m_currentItem == 0 ? largestFirst : largest;
    int value = (old == largest ? 0 : old) * 10 + digit;
    if (value > limit) {
        value = limit;
        m_bModified = false;
    }
    const QString number = QString::number(qMax(value, 0));
    if (matches(number))
        m_numbers[m_currentItem]->setText(number);
}

void typeipadjust::NumberEntry(ENUM_MenuIndex index, unsigned char digit)
{
    if (firstNumberLocked(index))
        return;
    ensureBuilt();
    if (!m_bModified) {
        m_numbers[m_currentItem]->setText(QStringLiteral("0"));
        m_bModified = true;
    }
    modifyIpAddress(digit, false);
    m_item.value = getIpText();
}

/// The address of a host must not read as that of a network or as a broadcast.
void typeipadjust::repairAddress(ENUM_MenuIndex index)
{
    if (index != MENU_Net_IPAddress)
        return;
    const QStringList parts = m_item.value.split(QLatin1Char('.'));
    if (parts.size() != numberCount)
        return;
    const QStringList host = parts.mid(1);
    if (host == QStringList{"255", "255", "255"})
        m_item.value = parts.first() + QStringLiteral(".255.255.1");
    else if (host == QStringList{"0", "0", "0"})
        m_item.value = parts.first() + QStringLiteral(".0.0.1");
    else
        return;
    showParts(m_item.value);
}

void typeipadjust::commit(ENUM_MenuIndex index)
{
    const QString value = limited(m_item.value, index);
    m_item.value = value;
    apply(value, index);
}

void typeipadjust::turn(ENUM_MenuIndex index, bool up)
{
    if (firstNumberLocked(index))
        return;
    ensureBuilt();
    modifyIpAddress(up);
    m_item.value = getIpText();
    repairAddress(index);
    commit(index);
}

void typeipadjust::UpEntry(ENUM_MenuIndex index, unsigned char &)
{
    qDebug() << "UpEntry";
    turn(index, false);
}

void typeipadjust::DownEntry(ENUM_MenuIndex index, unsigned char &)
{
    qDebug() << "DownEntry";
    turn(index, true);
}

void typeipadjust::EnterEntry(ENUM_MenuIndex index)
{
    qDebug() << "EnterEntry == " << m_currentItem;
    ensureBuilt();
    m_item.value = getIpText();
    repairAddress(index);
    commit(index);
    if (m_currentItem == numberCount - 1) {
        m_currentItem = 0;
        m_started = false;
    }
    if (m_started)
        ++m_currentItem;
    m_bModified = false;
    setModifyStatus(true);
    m_started = true;
}

void typeipadjust::EscEntry(ENUM_MenuIndex index, unsigned char)
{
    qDebug() << "EscEntry";
    ensureBuilt();
    if (m_bModified) {
        m_item.value = getIpText();
        commit(index);
    }
    setModifyStatus(false);
    m_currentItem = 0;
    m_started = false;
    m_bModified = false;
}

void typeipadjust::draw()
{
    m_icon->setVisible(!m_item.icon.isEmpty());
    m_icon->setPixmap(QPixmap(m_item.icon));
    m_rightIcon->setPixmap(QPixmap(m_item.iconRight));
    m_name->setText(translated(m_item.tag));
    if (m_styledEnabled != m_item.enable)
        setTypeStyleSheet();
    const auto *engine = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    const bool automatic = engine && engine->GetParaFromIndex(MENU_Net_NetMode) == automaticAddress;
    if (automatic && m_item.value.isEmpty())
        showParts(QStringLiteral(" . . . "));
    else
        setIpText(m_item.value);
}

void typeipadjust::takeValue(ENUM_MenuIndex, const QString &value, ENUM_MODE_SET_XML)
{
    if (!value.isEmpty())
        m_item.value = value;
    redraw();
}
} // namespace VASK
