// One screen of the menu: a title line above a table of rows. The page owns the cursor and the edit mode and
// turns keys into calls on the row under the cursor; the panel's dedicated keys work from here as from the
// home screen (panelkeys.h). All pages exist for the whole run; walking the menu hides one and shows another.
// GUI thread, but for what says otherwise.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"

#include <QDialog>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <atomic>

class DevCheckWin;
class Factory;
class QLabel;
class QTableWidget;

namespace VASK
{
class MenuDirectory : public VaskUiObject
{
    Q_OBJECT
public:
    /// m_currentLayer when the page of no layer is open.
    static constexpr unsigned char noLayer = 255;
    /// Rows of the file list.
    static constexpr int fileRowCount = 8;

    explicit MenuDirectory(ENUM_ObjectIndex index);
    int BuildHandshake(VaskObject const *peer, QMap<QString, QString> connections) override;

    /// Building, by the builder of the page tree, in this order.
    /// @{
    /// False if title or style is empty. An empty English style stands for the common one.
    bool SetTitleInfo(short width, signed char rowCount, QString title, QString style, QString englishStyle);
    void initialize();
    void InsertMenuItem(QMap<int, st_MenuItemInfo> rows);
    /// Puts the row widgets into the table; false if one is not in the pool.
    bool BuildMenuDirectory(ENUM_ConfigIndex config);
    /// @}

    /// The language has changed: title and styles again. From any thread.
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) override;
    /// The message of an item with this page as parent, or null. The caller runs and destroys it.
    QDialog *CreateDialog(ENUM_MenuIndex index);

    /// Keys. A null event stands for a made-up key.
    /// @{
    void keypadRotateLeftEvent(KeypadEvent *event);
    void keypadRotateRightEvent(KeypadEvent *event);
    void keypadOkEvent(KeypadEvent *event);
    /// Ends the edit of the row, or leaves the page for its parent.
    void keypadEScEvent(KeypadEvent *event);
    /// A key with a digit, while a row is edited: no row of this model takes digits.
    void keypadNumEvent(KeypadEvent *) {}
    /// Leaves the menu altogether.
    void ReturnToMainWindows(KeypadEvent *event);
    /// @}

    /// The rows that are in use; the cursor stays among them.
    int rowCount() const { return m_rowCount; }
    void setRowCount(int count);
    int currentRow() const { return m_currentRow; }
    /// Puts the cursor on a row; a row outside the page changes nothing.
    void setCurrentRow(int row);
    /// The row of this page that leads to a page; -1 if none does.
    int rowOfPage(ENUM_ObjectIndex page) const;
    bool isEditing() const { return m_edit; }
    void setRowHidden(int row, bool hidden);
    /// The page that was left to this one last, null if none.
    MenuDirectory *child() const { return m_child; }

    /// Shows the names of the files in this page, the file list, and hides the other rows.
    void showFiles(const QStringList &names);

    /// The names of the cabinet files on the device; false if there are none.
    static bool GetCabCfgFileName(QStringList &names);
    /// The layer whose page is open blinks, the others show whether they are on. From any thread.
    static void UpdateLayerLedStatus(unsigned char layer);
    /// Every source shows its signal, and blinks while a layer that is on uses it. From any thread.
    static void UpdateSourceLedStatus();
    /// Notes which page is open; the blinking layer LED follows.
    static void setCurrentPage(ENUM_ObjectIndex page);
    /// The panel goes home from wherever it is: no page is open, no layer LED blinks for one.
    static void setNoPage();
    /// Gives back the preset row that a copy had disabled.
    static void enableCopiedPreset();
    /// The page that is visible; null if there is none.
    static MenuDirectory *shownPage();
    static void hideAllPages();
    /// Brings up a new self-check window in the place of another window; test: on behalf of the production
    /// test, for good.
    static DevCheckWin *showSelfCheck(QWidget *instead, bool test);
    /// The home screen comes up by itself: a self-check window from the menu must not stay below it.
    static void closeSelfCheck();

    bool event(QEvent *event) override;

    /// The screen to return to; set by whoever opens this page.
    QWidget *m_pparerentdirectory = nullptr;

    /// The page last opened.
    static ENUM_ObjectIndex m_currentObj;
    /// The layer whose page is open, 0 to 2, or noLayer.
    static std::atomic<unsigned char> m_currentLayer;
    /// True while the knob changes a value.
    static std::atomic<bool> RotateFlg;
    /// True while the screen brightness is in edit mode.
    static bool bSetScreenBrightness;
    /// The self-check window and the window of the production test; null before they are first needed.
    static QPointer<DevCheckWin> m_win;
    static QPointer<Factory> m_factory;

public slots:
    /// The self-check window was left by ESC: that ESC must not leave the page too.
    void slot_devchk_end();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct PageKey;
    static const QVector<PageKey> &pageKeys();
    void keyEvent(KeypadEvent *event);
    void escPressed(KeypadEvent *event);
    void escKey(KeypadEvent *event);
    void lockPanel(KeypadEvent *event);
    void rotate(KeypadEvent *event, bool left);
    void turnValue(const st_MenuItemInfo &row, unsigned char speed, bool left);
    bool moveInsideRow(const st_MenuItemInfo &row, unsigned char &speed, bool left, bool atEnd);
    int landingRow(int row, int speed, bool left) const;
    int lastFileRow(int row) const;
    void land(int row, bool left, bool blocked);
    void selectRow(int row);
    void unmarkApply();
    bool isFocusable(int row) const;

    bool askBeforeActing(ENUM_MenuIndex index);
    void openSubPage(const st_MenuItemInfo &row);
    MenuDirectory *subPage(const st_MenuItemInfo &row);
    MenuDirectory *aboutPage();
    bool prepareFiles(MenuDirectory *page);
    void toggleNumberEdit(const st_MenuItemInfo &row);
    void toggleListEdit(const st_MenuItemInfo &row);
    void pressButton(const st_MenuItemInfo &row);
    void startIpEdit(const st_MenuItemInfo &row);
    void endEdit(const st_MenuItemInfo &row);
    void leave();
    void saveBrightness();
    void runMessage(ENUM_MenuIndex index);
    bool currentRowInfo(st_MenuItemInfo &info) const;
    VaskUiObject *rowWidget(const st_MenuItemInfo &row) const;
    void setLanguageStyle(int titlePixels);

    QPointer<MenuDirectory> m_child;
    QTableWidget *m_table = nullptr;
    QLabel *m_titleLabel = nullptr;
    signed char m_rowCount = 0;
    unsigned char m_currentRow = 0;
    bool m_edit = false;
    /// Set between the OK that starts and the OK that ends the edit of a number.
    bool m_entered = false;
    static constexpr int noApply = 255;
    /// Row of the apply button that is drawn selected.
    int m_markedApply = noApply;
    QMap<int, st_MenuItemInfo> m_rows;
    short m_width = 0;
    QString m_title;
    QString m_style;
    QString m_englishStyle;
    bool m_skipNextEsc = false;
};
} // namespace VASK
