// The production test of a finished unit. While it runs no other window reacts to keys; which step it stands
// at is read everywhere, also on the report thread.
#pragma once

#include <atomic>

enum _en_factory_step : int {
    FACTORY_STEP_NONE = 0,
    FACTORY_STEP_SELF_TEST = 1,
    FACTORY_STEP_KEYS = 2,
    FACTORY_STEP_IN_OUT = 3,
};

/// The inputs and outputs of the last step.
enum en_inout_test_index : int {
    INOUT_HDMI1 = 0,
    INOUT_HDMI2 = 1,
    INOUT_DVI = 2,
    INOUT_NET1 = 3, ///< the first of six ports
    INOUT_USB_IN = 9,
    INOUT_ETHERNET = 10,
};

enum en_item_state : int { ITEM_UNTESTED = 0, ITEM_PASSED = 1, ITEM_FAILED = 2 };

class Factory
{
public:
    /// The step that runs, an _en_factory_step; FACTORY_STEP_NONE while the test does not run.
    static std::atomic<int> m_cur_step;
    /// The input under test in the last step, an en_inout_test_index.
    static std::atomic<int> InputTestNumCur;
};
