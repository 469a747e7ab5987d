#include "framework/productiontest/productiontest.h"

std::atomic<int> ProductionTest::m_cur_step{FACTORY_STEP_NONE};
std::atomic<int> ProductionTest::InputTestNumCur{INOUT_HDMI1};
std::atomic<bool> ProductionTest::InputSoureStable{false};
