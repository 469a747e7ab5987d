#include "widget/dialog/dialog_scene.h"

#include "framework/input/keypadevent.h"
#include "framework/ui/language.h"
#include "menu/keycodes.h"
#include "widget/dialog/ui_dialog_scene.h"
#include "widget/elidinglabel.h"
#include "widget/look.h"
#include "widget/picturelabel.h"

#include <QDebug>

using namespace VASK;

namespace
{
constexpr QRect dialogOnScreen(QPoint(17, 25), QPoint(302, 214)); ///< pixels
constexpr int firstAction = 1;
constexpr int focusFallback = 3;
constexpr const char *useEnable = "useEnable"; ///< the style sheet draws a label without it dim
} // namespace

Dialog_scene::Dialog_scene(QWidget *parent, const QString &title, const QString &icon1, const QString &name1,
                           const QString &icon2, const QString &name2, const QString &icon3,
                           const QString &name3, const QString &icon4, const QString &name4, QString disabled,
                           unsigned char first)
    : KeyDialog(parent), ui(std::make_unique<Ui_Dialog_scene>()),
      m_title(title), m_names{name1, name2, name3, name4},
      m_shieldList(disabled.split('.', Qt::SkipEmptyParts))
{
    ui->setupUi(this);
    placeBox(dialogOnScreen);
    showTexts();
    const QString icons[] = {icon1, icon2, icon3, icon4};
    for (size_t i = 0; i < ui->tiles.size(); ++i)
        ui->tiles[i].img->setPixmap(QPixmap(icons[i]));
    setDialogStyleSheet();
    shieldActions();
    m_currentItem = first >= firstAction && first <= actionCount ? first : firstAction;
    setCurrentFocus();
}

Dialog_scene::~Dialog_scene() = default;

void Dialog_scene::setDialogStyleSheet()
{
    setStyleSheet(look::sheet("*{font-family:\"%1\";font-size:20px;color:$text;"
                              "background-color:rgba(0,0,0,0);}#labBg{background-color:#031442; }"
                              "QLabel:focus{background-color:#332280;}"
                              "QLabel[useEnable=false]{color:$disabled}")
                      .arg(fontFamily()));
}

void Dialog_scene::showTexts()
{
    ui->lab_Title->setText(translated(m_title));
    for (size_t i = 0; i < ui->tiles.size(); ++i)
        ui->tiles[i].name->setText(translated(m_names[i]));
}

void Dialog_scene::shieldActions()
{
    for (size_t i = 0; i < ui->tiles.size(); ++i) {
        m_enabled[i] = !m_shieldList.contains(QString::number(i + firstAction));
        if (m_enabled[i])
            continue;
        const Ui_Dialog_scene::Tile &tile = ui->tiles[i];
        tile.bg->setProperty(useEnable, false);
        tile.name->setProperty(useEnable, false);
        tile.img->setEnabled(false);
    }
}

void Dialog_scene::setCurrentFocus()
{
    for (const Ui_Dialog_scene::Tile &tile : ui->tiles)
        tile.bg->clearFocus();
    const bool known = m_currentItem >= firstAction && m_currentItem <= actionCount;
    const int focused = known ? m_currentItem : focusFallback;
    ui->tiles[size_t(focused - firstAction)].bg->setFocus(Qt::OtherFocusReason);
}

int Dialog_scene::exec()
{
    m_result = 0;
    KeyDialog::exec();
    return m_result;
}

void Dialog_scene::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setDialogStyleSheet();
        showTexts();
    }
    KeyDialog::changeEvent(event);
}

void Dialog_scene::handleKey(const KeypadEvent &event)
{
    switch (event.key()) {
    case KEY_KNOB_LEFT:
        keypadRotateLeftEvent(event.KeySpeed());
        break;
    case KEY_KNOB_RIGHT:
        keypadRotateRightEvent(event.KeySpeed());
        break;
    case KEY_OK:
        if (event.type() != KEY_PRESSED)
            finish(m_currentItem);
        break;
    case KEY_ESC:
        if (event.type() != KEY_PRESSED)
            finish(0);
        break;
    default:
        qDebug() << "dialog no this handle!";
    }
}

void Dialog_scene::keypadRotateLeftEvent(int speed)
{
    qDebug() << "Left";
    moveTo(m_currentItem - speed, -1, actionCount);
}

void Dialog_scene::keypadRotateRightEvent(int speed)
{
    qDebug() << "Right";
    moveTo(m_currentItem + speed, 1, firstAction);
}

void Dialog_scene::moveTo(int action, int step, int otherEnd)
{
    for (int tried = 0; tried < actionCount; ++tried, action += step) {
        if (action < firstAction || action > actionCount)
            action = otherEnd;
        if (!isOffered(action))
            continue;
        m_currentItem = action;
        break;
    }
    setCurrentFocus();
}

bool Dialog_scene::isOffered(int action) const
{
    return m_enabled[size_t(action - firstAction)];
}

void Dialog_scene::finish(int result)
{
    m_result = result;
    done(result);
}
