#include "widget/dialog/ui_dialog_msgbox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{
// Pixels inside the box.
constexpr QRect buttonRow(10, 158, 230, 36);
constexpr int buttonHeight = 30;
constexpr int buttonSpace = 16;

QPushButton *createButton(QWidget *parent, const QString &name, const QString &text)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setFixedHeight(buttonHeight);
    return button;
}
} // namespace

void Ui_dialog_msgBox::setupUi(QWidget *dialog)
{
    dialog->setObjectName(QStringLiteral("dialog_msgBox"));
    dialog->setFont(QFont(QStringLiteral("Arial")));
    centerWidget = new QWidget(dialog);
    centerWidget->setObjectName(QStringLiteral("centerWidget"));

    lab_Info = new QLabel(centerWidget);
    lab_Info->setObjectName(QStringLiteral("lab_Info"));
    lab_Info->setAlignment(Qt::AlignCenter);
    lab_Info->setWordWrap(true);

    horizontalLayoutWidget = new QWidget(centerWidget);
    horizontalLayoutWidget->setObjectName(QStringLiteral("horizontalLayoutWidget"));
    horizontalLayoutWidget->setGeometry(buttonRow);
    horizontalLayout = new QHBoxLayout(horizontalLayoutWidget);
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->setContentsMargins(0, 0, 0, 0);
    horizontalLayout->setSpacing(buttonSpace);
    btnYes = createButton(horizontalLayoutWidget, QStringLiteral("btnYes"), QStringLiteral("是"));
    btnNo = createButton(horizontalLayoutWidget, QStringLiteral("btnNo"), QStringLiteral("否"));
    horizontalLayout->addWidget(btnYes);
    horizontalLayout->addWidget(btnNo);
}
