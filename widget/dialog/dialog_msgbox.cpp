#include "widget/dialog/dialog_msgbox.h"

#include "framework/input/keydispatcher.h"
#include "framework/input/keypadevent.h"
#include "framework/ui/language.h"
#include "menu/keycodes.h"
#include "menu/menutypes.h"
#include "widget/dialog/ui_dialog_msgbox.h"
#include "widget/look.h"

#include <QDebug>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTimer>

using namespace VASK;

namespace
{
constexpr QRect boxOnScreen(QPoint(34, 17), QPoint(283, 222)); ///< pixels, as all below
constexpr QRect textAlone(QPoint(10, 16), QPoint(239, 191));
constexpr QRect textAboveButtons(QPoint(10, 16), QPoint(239, 151));

enum Answer { REFUSED = 0, CONFIRMED = 1, LEFT = 2 };

/// What a kind of box shows, null for a button that it does not have, and what ESC means in it.
struct BoxKind {
    const char *yes;
    const char *no;
    Answer onEsc;
};

BoxKind kindOf(ENUM_MsgBoxBtnType type)
{
    switch (type) {
    case MSGBOX_CHECK:
        return {"Check", nullptr, CONFIRMED};
    case MSGBOX_NO:
        return {nullptr, "No", REFUSED};
    case MSGBOX_CHECK_CANCEL:
        return {"Check", nullptr, LEFT};
    case MSGBOX_YES_NO:
        return {"Yes", "No", REFUSED};
    case MSGBOX_NONE:
    case MSGBOX_TIMED:
        break;
    }
    return {nullptr, nullptr, LEFT};
}

void showButton(QPushButton *button, const char *key)
{
    button->setVisible(key != nullptr);
    if (key)
        button->setText(translated(QLatin1String(key)));
}
} // namespace

dialog_msgBox::dialog_msgBox(QWidget *parent, const QString &message, ENUM_MsgBoxBtnType type,
                             unsigned int timeMs, const QString &extra)
    : KeyDialog(parent), ui(std::make_unique<Ui_dialog_msgBox>()), strMessage(message), strExtra(extra),
      m_type(type), m_timeMs(timeMs)
{
    ui->setupUi(this);
    ui->lab_Info->setGeometry(takesAnswers() ? textAboveButtons : textAlone);
    ui->horizontalLayoutWidget->setVisible(takesAnswers());
    placeBox(boxOnScreen);
    ui->centerWidget->setGeometry(rect());
    setDialogStyleSheet();
    initBtns();
}

dialog_msgBox::~dialog_msgBox() = default;

void dialog_msgBox::setDialogStyleSheet()
{
    const QString family = englishChosen() ? QStringLiteral("arial") : fontFamily();
    setStyleSheet(look::sheet("*{font-family:\"%1\";font-size:18px;color:$text;background-color:#031442;}"
                              "QPushButton{background-color:rgba(0,0,0,0);color:$text;"
                              "border:1px solid $focus;border-radius:2px;outline:none}"
                              "QPushButton:focus{background-color:$focus;color:$text;border:none;"
                              "border-radius:2px;outline:none}")
                      .arg(family));
}

void dialog_msgBox::showTexts()
{
    QString text = translated(strMessage);
    text.replace(QLatin1String("\\r\\n"), QLatin1String("\r\n"));
    text += strExtra;
    ui->lab_Info->setText(text);
    qDebug() << "str:" << text;

    const BoxKind kind = kindOf(m_type);
    showButton(ui->btnYes, kind.yes);
    showButton(ui->btnNo, kind.no);
}

void dialog_msgBox::initBtns()
{
    showTexts();
    const BoxKind kind = kindOf(m_type);
    // A question is answered with yes on purpose only: "No" has the focus first.
    if (kind.no)
        ui->btnNo->setFocus(Qt::OtherFocusReason);
    else if (kind.yes)
        ui->btnYes->setFocus(Qt::OtherFocusReason);
}

void dialog_msgBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setDialogStyleSheet();
        showTexts();
    }
    KeyDialog::changeEvent(event);
}

int dialog_msgBox::exec()
{
    if (m_type == MSGBOX_TIMED)
        // A timer of this length that is not precise comes up to a twentieth early.
        QTimer::singleShot(int(m_timeMs), Qt::PreciseTimer, this, &dialog_msgBox::slot_CloseDialog);
    return KeyDialog::exec();
}

void dialog_msgBox::slot_CloseDialog()
{
    qDebug() << "slot_CloseDialog:";
    ExitDialog();
}

bool dialog_msgBox::takesAnswers() const
{
    return m_type != MSGBOX_NONE && m_type != MSGBOX_TIMED;
}

void dialog_msgBox::finishDialog()
{
    const QWidget *chosen = focusWidget();
    done(chosen == ui->btnYes ? CONFIRMED : chosen == ui->btnNo ? REFUSED : LEFT);
}

void dialog_msgBox::ExitDialog()
{
    done(kindOf(m_type).onEsc);
}

void dialog_msgBox::handleKey(const KeypadEvent &event)
{
    const bool answers = event.type() != KEY_PRESSED && takesAnswers();
    switch (event.key()) {
    case KEY_KNOB_LEFT:
        focusNextPrevChild(false);
        break;
    case KEY_KNOB_RIGHT:
        focusNextPrevChild(true);
        break;
    case KEY_OK:
        if (answers)
            finishDialog();
        break;
    case KEY_ESC:
        if (answers)
            ExitDialog();
        break;
    default:
        qDebug() << "dialog no this handle!";
    }
}

void dialog_msgBox::hideEvent(QHideEvent *event)
{
    if (!takesAnswers())
        KeyDispatcher::forgetTyped();
    KeyDialog::hideEvent(event);
}

void dialog_msgBox::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
