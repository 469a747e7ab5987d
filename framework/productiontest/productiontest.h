// Where the production test of a finished unit stands. While it runs no other window reacts to keys, so that
// its step is read everywhere; the test window alone writes it. Any thread.
#pragma once

#include <QMetaType>
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
    INOUT_COUNT = 11,
};

enum en_item_state : int { ITEM_UNTESTED = 0, ITEM_PASSED = 1, ITEM_FAILED = 2 };

Q_DECLARE_METATYPE(en_inout_test_index)
Q_DECLARE_METATYPE(en_item_state)

struct ProductionTest {
    /// The step that runs, an _en_factory_step; FACTORY_STEP_NONE while the test does not run.
    static std::atomic<int> m_cur_step;
    /// The input under test in the last step, an en_inout_test_index.
    static std::atomic<int> InputTestNumCur;
    /// That input has been stable for two seconds: from now on it must not lose its signal.
    static std::atomic<bool> InputSoureStable;

    static bool runs() { return m_cur_step != FACTORY_STEP_NONE; }
};
