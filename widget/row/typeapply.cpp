#include "widget/row/typeapply.h"

#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace VASK
{
namespace
{
QString buttonStyle(bool enabled)
{
    return look::sheet("QPushButton{border-style: inset;border-radius:4px;color: %1; "
                       "border: 1px solid $focus;}"
                       "QPushButton:focus{background:$focus; color: %1;outline: none;}")
        .arg(look::ofText(enabled));
}
} // namespace

void typeapply::CreatEntry()
{
    constexpr QSize size(128, 32); // pixels
    setStyleSheet(QStringLiteral("background-color: rgba(0, 0, 0, 0);"));
    m_button = new QPushButton(this);
    m_button->setObjectName(m_item.tag);
    m_button->setFixedSize(size);
    // Only the page's cursor gives it the focus, never the opening of the page.
    m_button->setFocusPolicy(Qt::NoFocus);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_button);
    layout->addStretch();
    markButton();
}

void typeapply::markButton()
{
    if (m_marked)
        m_button->setFocus();
    else
        m_button->clearFocus();
}

void typeapply::ChangeStyleEntry(ENUM_MenuIndex, unsigned char on)
{
    m_marked = on != 0;
    if (isBuilt())
        markButton();
}

/// A disabled button has lost the focus, though the cursor may stand on it still.
void typeapply::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && isEnabled() && isBuilt() && m_marked)
        markButton();
    MenuRow::changeEvent(event);
}

void typeapply::draw()
{
    m_button->setText(translated(m_item.tag));
    m_button->setStyleSheet(buttonStyle(m_item.enable));
}

void typeapply::takeValue(ENUM_MenuIndex, const QString &, ENUM_MODE_SET_XML)
{
    redraw();
}
} // namespace VASK
