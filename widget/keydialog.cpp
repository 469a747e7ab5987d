#include "widget/keydialog.h"

#include "framework/globaltimer.h"
#include "framework/keypadevent.h"

using namespace VASK;

bool KeyDialog::event(QEvent *event)
{
    if (!event || event->type() != KeypadEvent::eventType)
        return QDialog::event(event);
    GlobalTimer::getInstance()->ResetReturnToMain();
    handleKey(static_cast<const KeypadEvent &>(*event));
    return true;
}
