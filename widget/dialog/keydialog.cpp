#include "widget/dialog/keydialog.h"

#include "framework/input/keypadevent.h"
#include "framework/object/globaltimer.h"

using namespace VASK;

void KeyDialog::placeBox(const QRect &onScreen)
{
    setWindowOpacity(0.0);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setGeometry(onScreen);
}

bool KeyDialog::event(QEvent *event)
{
    if (!event || event->type() != KeypadEvent::eventType)
        return QDialog::event(event);
    GlobalTimer::getInstance()->ResetReturnToMain();
    handleKey(static_cast<const KeypadEvent &>(*event));
    return true;
}
