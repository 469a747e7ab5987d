// The small enumerations that rows, messages, pages and engine share.
#pragma once

namespace VASK
{
/// Kind of a row, which selects its widget.
enum ENUM_ControlType : int {
    TYPE_BUTTON = 0,
    TYPE_INFORMATION = 1,
    TYPE_APPLY = 2,
    TYPE_STRINGCOMBOX = 3,
    TYPE_ICOCOMBOX = 4,
    TYPE_INTADJUST = 5,
    TYPE_IPADJUST = 6,
    TYPE_FLOATADJUST = 7,
    TYPE_CHECKITEM = 9,
    TYPE_MAINBUTTON = 15,
    TYPE_TIP = 17,
    TYPE_MOSAIC = 22,
    TYPE_APPLYRESET = 23,
    TYPE_TWOSTRINGCOMBOX = 24,
    TYPE_FOURPIC = 25,
    TYPE_SUBPAGE = 26, ///< the builder makes the page and a TYPE_MAINBUTTON entry
};

/// Where a value comes from.
enum ENUM_MODE_SET_XML : int {
    SET_XML_DEVICE = 0, ///< the device or the start-up image: stored and shown, not sent
    SET_XML_USER = 1,   ///< the user: stored, shown and sent
    SET_XML_STORE = 2,  ///< stored and redrawn only
};

/// Which protocol object serves an item.
enum ENUM_ProtocolType : int { ENUM_PROTOCOL_3RD = 0, ENUM_PROTOCOL_4RD = 1 };

/// The two source labels of a mosaic arrangement.
enum ENUM_SOURCELABLEINDEX : int { SOURCELABLE_FIRST = 0, SOURCELABLE_SECOND = 1 };

/// Buttons of a message box and what OK and ESC make of them.
enum ENUM_MsgBoxBtnType : int {
    MSGBOX_NONE = 0,         ///< no button, closed by its owner
    MSGBOX_CHECK = 1,        ///< "Check": both keys give 1
    MSGBOX_NO = 2,           ///< "No": both keys give 0
    MSGBOX_CHECK_CANCEL = 3, ///< "Check": OK gives 1, ESC 2
    MSGBOX_YES_NO = 4,       ///< "Yes" and "No", focus on "No"
    MSGBOX_TIMED = 5,        ///< no button, closes by itself with 2
};
} // namespace VASK
