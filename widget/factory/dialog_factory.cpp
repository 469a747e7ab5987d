#include "widget/factory/dialog_factory.h"

std::atomic<int> Factory::m_cur_step{FACTORY_STEP_NONE};
std::atomic<int> Factory::InputTestNumCur{INOUT_HDMI1};
