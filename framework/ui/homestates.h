// What the home screen can show, as numbers that cross the signals of the engine and the protocols.
#pragma once

enum ENUM_MainWindowLayerIndex : int { LAYER_MAIN = 0, LAYER_PIP1 = 1, LAYER_PIP2 = 2, LAYER_COUNT = 3 };

enum ENUM_MainWindowWindowIndex : int { WINDOW_MAIN = 0, WINDOW_PIP1 = 1, WINDOW_PIP2 = 2 };

enum ENUM_CommonState : int { COMMON_ON = 0, COMMON_OFF = 1 };

enum ENUM_MainWindowLayerState : int { LAYER_ON = 0, LAYER_NO_SIGNAL = 1 };

enum ENUM_MainWindowSynState : int { SYN_ON = 0, SYN_OFF = 1, SYN_WAITING = 2, SYN_FAILED = 3 };

enum ENUM_MainWindowConnectState : int {
    CONNECT_NETWORK = 0,
    CONNECT_USB_LOOP = 1,
    CONNECT_NONE = 2,
    CONNECT_USB = 3,
};

enum ENUM_MainWindowTESTMode : int {
    TESTMODE_NORMAL = 0,
    TESTMODE_TEST = 1,
    TESTMODE_FREEZE = 2,
    TESTMODE_BLACK = 3
};

enum ENUM_MainWindowNetIndex : int {
    NET_PORT1 = 0,
    NET_PORT2 = 1,
    NET_PORT3 = 2,
    NET_PORT4 = 3,
    NET_PORT5 = 4,
    NET_PORT6 = 5,
    NET_PORT_COUNT = 6,
};

enum ENUM_MainWindowNetState : int {
    NET_DISABLED = 0,
    NET_ENABLED = 1,
    NET_BACKUP = 2,
    NET_BACKUP_BLINKING = 3, ///< the backup is in use
    NET_STATE_NONE = 4,      ///< nothing shown yet
};

enum ENUM_MainWindowLockState : int { PANEL_LOCK = 0, PANEL_UNLOCK = 1 };

enum ENUM_MainWindowOPTWorkMode : int { OPT_COPY = 0, OPT_BACKUP = 1 };
