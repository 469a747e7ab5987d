// The menu as data: pages, items and messages, filled before main runs. All texts are translation keys or
// literal values; nothing here is shown without going through the translator. Read from any thread; only the
// engine changes rows of g_dialogConfig, on the GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"

#include <QMap>
#include <QString>

namespace VASK
{
/// One row of a page.
struct st_MenuItemInfo {
    ENUM_ObjectIndex itemObject; ///< the row's widget
    ENUM_ObjectIndex pageObject; ///< the sub-page, ENUM_OBJECT_END if the row has none
    ENUM_ControlType controlType;
    ENUM_MenuIndex menuIndex; ///< the item that the row shows
    ENUM_ConfigIndex subPage; ///< page to build for TYPE_SUBPAGE, else CONFIG_END
};

/// One page.
struct ST_MenuConfig {
    ST_MenuConfig() = default;
    ST_MenuConfig(ENUM_ObjectIndex pageObject, short pageWidth, signed char rowCount, QString titleKey,
                  QString chineseStyle, QMap<int, st_MenuItemInfo> pageRows, QString english);

    ENUM_ObjectIndex object = ENUM_OBJECT_END;
    short width = 0;      ///< pixels, always 320
    signed char rows = 0; ///< rows of the table; may be fewer than the map has
    QString title;        ///< translation key
    QString styleSheet;   ///< style of the table for Chinese text
    QMap<int, st_MenuItemInfo> rowsMap;
    QString englishStyleSheet; ///< empty: the common English style
};

/// One item. A value is always text; the row kind gives its form.
struct ST_ItemInfo {
    ST_ItemInfo() = default;
    ST_ItemInfo(QString icon, QString tag, ENUM_MenuIndex index, bool enable, QString iconRight,
                QString value, int col, int row, QString max, QString min, QString perBase, QString pixValue,
                QString step, QString unit, QString choice, bool enableSelect, QMap<QString, QString> params,
                QMap<QString, QString> params1, unsigned int rowHeight, bool focusable);

    QString icon; ///< resource path of the left picture
    QString tag;  ///< translation key of the label
    ENUM_MenuIndex index = MENU_END;
    QString value;     ///< number, option key, version text
    QString iconRight; ///< resource path of the right picture
    int col = 0;       ///< columns of the picture table of an icon list
    int row = 0;       ///< always 0
    QString max = "0";
    QString min = "0";
    QString perBase = "1920";  ///< extra value of the mosaic row; row number of a cabinet file
    QString pixValue = "1920"; ///< extra value of the mosaic and the four-picture row
    QString step = "0";        ///< increment of one knob click
    QString unit;              ///< shown behind the value
    QString choice;            ///< check rows: SELECTED or UNSELECTED
    bool enable = false;       ///< false: dimmed, OK does nothing
    bool enableSelect = false;
    QMap<QString, QString> params;  ///< option key to translation key or picture path
    QMap<QString, QString> params1; ///< option key to "Enable" or "Disable"
    unsigned int rowHeight = 36;    ///< pixels; not stored
    bool focusable = true;          ///< false: the cursor skips the row; not stored
};

/// All fields alike, also the two that are not stored.
bool operator==(const ST_ItemInfo &a, const ST_ItemInfo &b);

/// One message.
struct ST_DialogInfo {
    int type = 2;
    QString text;       ///< translation key
    QString secondText; ///< empty in all rows
    ENUM_MsgBoxBtnType buttonType = MSGBOX_NONE;
    bool enabled = false;
    int timeMs = 0; ///< MSGBOX_TIMED: milliseconds until it closes itself
};

extern QMap<ENUM_ConfigIndex, ST_MenuConfig> g_config;
/// The items with the factory defaults.
extern QMap<ENUM_MenuIndex, ST_ItemInfo> g_MenuXmlConfig;
extern QMap<ENUM_MenuIndex, ST_DialogInfo> g_dialogConfig;
/// Which protocol serves an item; an item without a row counts as the third generation. Empty in this model.
extern QMap<ENUM_MenuIndex, ENUM_ProtocolType> g_protocolType;

inline const QString imgPath = ":/resource/image/";
inline const QString CN = "ChineseLanguage";
inline const QString EN = "EnglishLanguage";
inline const QString strdmpPath = "/root/.local/share/Vaskline/fpdlogs/dmp";
inline const QString strLogPath = "/root/.local/share/Vaskline/fpdlogs/log";
inline const QString SELECTED_TAG = "SELECTED";
inline const QString UNSELECTED_TAG = "";
inline const QString SELECTED = "1";
inline const QString UNSELECTED = "0";
inline const QString DESPORTNAME = "@local";

/// What an entry of params1 says of its option.
inline const QString optionEnable = "Enable";
inline const QString optionDisable = "Disable";
} // namespace VASK
