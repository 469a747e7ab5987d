// What a page shows: its title above a table of rows. Knows which rows there are, which widget each has, and
// how all of it looks in the present language. Title and table are made when the page is seen for the first
// time; until then it only remembers what they are to show. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"
#include "widget/menulook.h"

#include <QPointer>
#include <QSet>
#include <QVector>

class QLabel;
class QTableWidget;

namespace VASK
{
class PageRow;

/// A row of a page and the widget that shows it.
struct ShownRow {
    st_MenuItemInfo info;
    VaskUiObject *widget = nullptr;
    /// The same widget, as the page asks it; both null if the row has none.
    PageRow *kind = nullptr;

    explicit operator bool() const { return widget && kind; }
};

class PageTable
{
public:
    explicit PageTable(QWidget *page) : m_page(page) {}

    /// False if title or style is empty. An empty English style stands for the common one.
    bool setTitle(short width, signed char rowCount, const QString &title, const QString &style,
                  const QString &englishStyle);
    void setRows(const QMap<int, st_MenuItemInfo> &rows) { m_rows = rows; }
    /// Gives each row its widget; false if one is not in the pool.
    bool placeRows(ENUM_ConfigIndex config);
    /// Makes title and table, unless they are there.
    void build();
    /// The language has changed.
    void followLanguage();

    /// The rows that are in use.
    int rowCount() const { return m_rowCount; }
    void setRowCount(int count);
    const QMap<int, st_MenuItemInfo> &rows() const { return m_rows; }
    ShownRow row(int number) const;
    /// The widget in the page; before it has one, the widget in the pool.
    VaskUiObject *widgetOf(const st_MenuItemInfo &row) const;
    /// The row that leads to a page; -1 if none does.
    int rowOfPage(ENUM_ObjectIndex page) const;
    bool isFocusable(int row) const;
    void setHidden(int row, bool hidden);
    void select(int row);

private:
    void layOut();
    void setLanguageStyle();

    QWidget *m_page;
    QLabel *m_titleLabel = nullptr;
    QTableWidget *m_table = nullptr;
    /// The widgets of the first rows, from above.
    QVector<QPointer<VaskUiObject>> m_placed;
    QSet<int> m_hidden;
    int m_selected = 0;
    int m_titlePixels = menulook::firstTitlePixels;
    signed char m_rowCount = 0;
    QMap<int, st_MenuItemInfo> m_rows;
    short m_width = 0;
    QString m_title;
    QString m_style;
    QString m_englishStyle;
};
} // namespace VASK
