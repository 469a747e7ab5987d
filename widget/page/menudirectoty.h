// One screen of the menu, as the rest of the panel knows it: a title line above a table of rows, with a
// cursor that the keys move, act on and edit. What it does stands in the classes behind it: PageTable what it
// shows, PageCursor where the cursor is, PageKeys what the keys do, OpenPage which page is open. All pages
// exist for the whole run; walking the menu hides one and shows another. GUI thread, but for what says
// otherwise.
#pragma once

#include "framework/input/keypadevent.h"
#include "framework/ui/page.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"

#include <QDialog>
#include <QPointer>
#include <QStringList>
#include <memory>

namespace VASK
{
class PageCursor;
class PageKeys;
class PageTable;

class MenuDirectory : public Page
{
    Q_OBJECT
public:
    /// Rows of the file list.
    static constexpr int fileRowCount = 8;

    explicit MenuDirectory(ENUM_ObjectIndex index);
    ~MenuDirectory() override;
    int BuildHandshake(VaskObject const *peer, QMap<QString, QString> connections) override;

    /// Building, by the builder of the page tree, in this order; what is seen of it is made at the first
    /// showing.
    /// @{
    /// False if title or style is empty. An empty English style stands for the common one.
    bool SetTitleInfo(short width, signed char rowCount, QString title, QString style, QString englishStyle);
    void InsertMenuItem(QMap<int, st_MenuItemInfo> rows);
    /// Gives each row its widget; false if one is not in the pool.
    bool BuildMenuDirectory(ENUM_ConfigIndex config);
    /// @}
    /// Makes title and table; only the first call does.
    void initialize();

    /// The language has changed: title and styles again. From any thread.
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) override;
    /// The message of an item with this page as parent, or null. The caller runs and destroys it.
    QDialog *CreateDialog(ENUM_MenuIndex index);
    /// False if the user was asked for the item and did not say yes.
    bool confirms(ENUM_MenuIndex index);

    /// Keys. A null event stands for a made-up key; it turns nothing.
    /// @{
    void keypadRotateLeftEvent(KeypadEvent *event);
    void keypadRotateRightEvent(KeypadEvent *event);
    void keypadOkEvent(KeypadEvent *event);
    void keypadEScEvent(KeypadEvent *event) override;
    /// A key with a digit, while a row is edited: no row of this model takes digits.
    void keypadNumEvent(KeypadEvent *) {}
    /// Leaves the menu altogether.
    void ReturnToMainWindows(KeypadEvent *event);
    /// @}

    const PageTable &table() const { return *m_table; }
    /// The rows that are in use; the cursor stays among them.
    int rowCount() const;
    void setRowCount(int count);
    int currentRow() const;
    void setCurrentRow(int row) override;
    /// The row of this page that leads to a page; -1 if none does.
    int rowOfPage(ENUM_ObjectIndex page) const;
    bool isEditing() const;
    void setRowHidden(int row, bool hidden);
    /// The page that was left to this one last.
    void noteChild(MenuDirectory *page) { m_child = page; }

    void reloadFiles() override;

    /// The names of the cabinet files on the device; false if there are none.
    static bool GetCabCfgFileName(QStringList &names);
    /// The layer whose page is open blinks, the others show whether they are on. From any thread.
    static void UpdateLayerLedStatus(unsigned char layer);
    /// Every source shows its signal, and blinks while a layer that is on uses it. From any thread.
    static void UpdateSourceLedStatus();

    bool event(QEvent *event) override;

    void setParentScreen(QWidget *screen) override { m_pparerentdirectory = screen; }
    QWidget *parentScreen() const { return m_pparerentdirectory; }

public slots:
    /// The self-check window was left by ESC: that ESC must not leave the page too.
    void slot_devchk_end();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<PageTable> m_table;
    std::unique_ptr<PageCursor> m_cursor;
    std::unique_ptr<PageKeys> m_keys;
    QPointer<MenuDirectory> m_child;
    QWidget *m_pparerentdirectory = nullptr;
};
} // namespace VASK
