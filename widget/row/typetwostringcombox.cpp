#include "widget/row/typetwostringcombox.h"

#include "framework/thread/handover.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace VASK
{
namespace
{
constexpr int rightPart = 2;
}

QPushButton *typetwostringcombox::createPart(const QString &name, QLabel *&label, const QString &labelName,
                                             QLabel *&icon)
{
    constexpr QSize partSize(140, 26); // pixels
    auto *part = new QPushButton(this);
    part->setObjectName(name);
    part->setFlat(true);
    part->setFixedSize(partSize);
    label = new QLabel(part);
    label->setObjectName(labelName);
    label->setGeometry(QRect(QPoint(8, 0), QPoint(117, 25)));
    icon = new QLabel(part);
    icon->setGeometry(QRect(QPoint(120, 0), QPoint(129, 25)));
    icon->setAlignment(Qt::AlignCenter);
    return part;
}

void typetwostringcombox::CreatEntry()
{
    constexpr QSize pictureSize(31, 10); // pixels, as all below
    m_left = createPart(QStringLiteral("disableBtn"), m_leftText, QStringLiteral("disableLabel"), m_leftIcon);
    m_left->setEnabled(false);
    m_right = createPart(QStringLiteral("Btn"), m_rightText, QStringLiteral("Label"), m_rightIcon);
    m_picture = new QLabel(this);
    m_picture->setFixedSize(pictureSize);

    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignVCenter);
    layout->addStretch();
    layout->addWidget(m_left);
    layout->addSpacing(15);
    layout->addWidget(m_picture);
    layout->addSpacing(10);
    layout->addWidget(m_right);
    layout->addStretch();
    setParts({m_left, m_right});
    drawPicture(false);
}

void typetwostringcombox::drawPicture(bool available)
{
    const QPixmap picture(
        imgPath + (available ? "mainWindow/hotbackup_available.png" : "mainWindow/hotbackup_normal.png"));
    if (picture.isNull())
        qDebug() << "load image fail";
    m_picture->setPixmap(picture);
}

void typetwostringcombox::setTwoArrow(bool available)
{
    runOnGui(this, [=] {
        ensureBuilt();
        drawPicture(available);
    });
}

void typetwostringcombox::SetRightTextEnable(bool enabled)
{
    runOnGui(this, [=] {
        ensureBuilt();
        m_rightText->setStyleSheet(enabled ? QStringLiteral("color: #FCFCFC;")
                                           : look::sheet("color: $disabled;"));
    });
}

void typetwostringcombox::draw()
{
    const QString colour = QStringLiteral("color: %1;").arg(look::ofText(m_item.enable));
    m_leftText->setText(translated(m_item.tag));
    m_leftIcon->setPixmap(QPixmap(m_item.icon));
    m_rightText->setText(translated(m_item.params.value(m_item.value)));
    m_rightIcon->setPixmap(QPixmap(imgPath + "mainMenu/drop_down.png"));
    for (QLabel *label : {m_leftText, m_rightText})
        label->setStyleSheet(colour);
}

/// As if the choice were the only part: the cursor comes in on it, and the next step leaves.
void typetwostringcombox::step(unsigned char &speed, bool end)
{
    if (m_currentItem == rightPart && !end) {
        m_currentItem = 0;
        setfocus(0);
        return;
    }
    if (m_currentItem != rightPart) {
        m_currentItem = rightPart;
        setfocus(rightPart);
    }
    speed = 0;
}

void typetwostringcombox::UpEntry(ENUM_MenuIndex, unsigned char &speed, bool first)
{
    step(speed, first);
}

void typetwostringcombox::DownEntry(ENUM_MenuIndex, unsigned char &speed, bool last)
{
    step(speed, last);
}

void typetwostringcombox::EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char)
{
    if (edit == 0) {
        if (isRateList(index)) {
            limited(QString(), index);
            UpdataEntry(index);
        }
        m_dropDown.open(std::make_unique<stringcomboxtable>(index, objectIndex(), m_item), page);
        return;
    }
    if (!m_dropDown.isOpen())
        return;
    const QString value = limited(m_dropDown.table()->chosenKey(), index);
    m_item.value = value;
    apply(value, index);
    m_dropDown.close();
    redraw();
}
} // namespace VASK
