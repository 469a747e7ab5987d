#include "framework/thread/msgthread.h"

namespace VASK
{
void MsgThread::run()
{
    on_BegionRunEvent();
    do {
        emit doInfo(false);
        msleep(static_cast<unsigned long>(qMax(interval(), 0)));
    } while (!stop());
    emit doInfo(true);
}
} // namespace VASK
