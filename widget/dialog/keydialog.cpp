#include "widget/dialog/keydialog.h"

#include "framework/input/keypadevent.h"
#include "framework/object/globaltimer.h"

using namespace VASK;

bool KeyDialog::event(QEvent *event)
{
    if (!event || event->type() != KeypadEvent::eventType)
        return QDialog::event(event);
    GlobalTimer::getInstance()->ResetReturnToMain();
    handleKey(static_cast<const KeypadEvent &>(*event));
    return true;
}
