// The window with the list of the device's health values: opened from the menu, and by the production test
// when its self test has failed; then it cannot be left. What a report brings in while it is open is shown at
// once, under the cursor as it stands. GUI thread.
#pragma once

#include "framework/productiontest/selfchecklist.h"
#include "widget/factory/testscreen.h"

#include <QMutex>
#include <QVector>

class QListWidget;

class DevCheckWin : public TestScreen
{
    Q_OBJECT
public:
    static constexpr int ITEM_HEIGHT = 36; ///< pixels

    explicit DevCheckWin(QWidget *parent = nullptr);

    /// Asks the panel's own board, then fills the list; test: on behalf of the production test.
    void InitDefaultItems(bool test);
    /// Adds a row at the end.
    void AddMenuItem(VASK::ListItemInfo const &item);

    bool event(QEvent *event) override;

    /// The window came from the production test: ESC cannot leave it.
    static bool test_flg;

signals:
    /// ESC left the window.
    void signal_devchk_end();

private:
    struct Row {
        QLabel *name;
        QLabel *value;
    };

    /// Shows the list as it is now; the cursor stays.
    void showRows();
    void moveCursor(int step);
    void leave();

    QListWidget *m_list;
    QVector<Row> m_rows;
    QMutex m_mutex; ///< held while a row is added
};
