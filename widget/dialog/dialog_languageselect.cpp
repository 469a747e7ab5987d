#include "widget/dialog/dialog_languageselect.h"

#include "framework/input/keypadevent.h"
#include "menu/keycodes.h"
#include "widget/look.h"

#include <QDebug>
#include <QLabel>
#include <QPushButton>

using namespace VASK;

namespace
{
constexpr QRect wholeScreen(0, 0, 320, 240); ///< pixels, as all below
constexpr QRect textPlace(QPoint(0, 65), QPoint(319, 94));
constexpr QRect chinesePlace(QPoint(37, 142), QPoint(146, 171));
constexpr QRect englishPlace(QPoint(171, 142), QPoint(280, 171));

const QString windowStyle = QStringLiteral("background-color: rgb(0, 0, 0);");
const QString textStyle = QStringLiteral("color: rgb(153, 153, 153); font-size:18px;");
const QString buttonStyle = look::sheet(
    "QPushButton:enabled{background-color:rgba(0, 0, 0, 0); font-size:18px; border:1px solid $focus; "
    "border-radius:4px;color:$text; outline: none;}"
    "QPushButton:focus{background-color:$focus; border:none; outline: none;}");
} // namespace

dialog_languageSelect::dialog_languageSelect(QWidget *parent) : KeyDialog(parent)
{
    setObjectName(QStringLiteral("dialog_languageSelect"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setGeometry(wholeScreen);
    setFont(QFont(QStringLiteral("Arial")));
    setStyleSheet(windowStyle);
    auto *label = new QLabel(QStringLiteral("选择语言/Select Language"), this);
    label->setObjectName(QStringLiteral("label"));
    label->setGeometry(textPlace);
    label->setStyleSheet(textStyle);
    label->setAlignment(Qt::AlignCenter);
    btn_CH = createButton(QStringLiteral("btn_CH"), QStringLiteral("中文"), chinesePlace);
    btn_EN = createButton(QStringLiteral("btn_EN"), QStringLiteral("English"), englishPlace);
    btn_EN->setFocus(Qt::OtherFocusReason);
}

QPushButton *dialog_languageSelect::createButton(const QString &name, const QString &text, const QRect &place)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setGeometry(place);
    button->setStyleSheet(buttonStyle);
    return button;
}

void dialog_languageSelect::handleKey(const KeypadEvent &event)
{
    switch (event.key()) {
    case KEY_KNOB_LEFT:
        focusNextPrevChild(false);
        break;
    case KEY_KNOB_RIGHT:
        focusNextPrevChild(true);
        break;
    case KEY_OK:
        if (event.type() != KEY_PRESSED)
            finishDialog();
        break;
    default:
        qDebug() << "dialog no this handle!";
    }
}

void dialog_languageSelect::finishDialog()
{
    const QWidget *chosen = focusWidget();
    if (chosen == btn_CH)
        done(CHINESE);
    else if (chosen == btn_EN)
        done(ENGLISH);
}
