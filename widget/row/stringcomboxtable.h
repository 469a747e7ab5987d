// The open drop-down of a list of texts. The row that opened it owns it, moves its cursor and asks what was
// chosen. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"

class QStandardItemModel;
class QTableView;

namespace VASK
{
/// Does the list of that item stand in the opposite order to its keys: "1" in the first row, "0" below?
bool isReversedList(ENUM_MenuIndex index);

class stringcomboxtable : public VaskUiObject
{
    Q_OBJECT
public:
    /// Shows the options of the item, with its value under the cursor.
    stringcomboxtable(ENUM_MenuIndex menuIndex, ENUM_ObjectIndex objectIndex, const ST_ItemInfo &item);

    /// The key of the option under the cursor.
    QString chosenKey() const;
    /// May the option under the cursor be taken?
    bool CurrentItemEnabled() override;

    using VaskUiObject::DownEntry;
    using VaskUiObject::UpEntry;
    void UpEntry(ENUM_MenuIndex index) override;
    void DownEntry(ENUM_MenuIndex index) override;
    /// The value under the cursor changes from outside.
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) override;

protected:
    /// The language has changed: the options again.
    void changeEvent(QEvent *event) override;

private:
    void CreatEntry();
    void showOptions();
    void fill(const QString &value);
    void move(bool backwards);
    void showRow(int row);
    QString keyOfRow(int row) const;
    int rowOfKey(const QString &key) const;
    bool getItemEnabled(int row) const;
    int getNextEnableIndex(int start, int count, bool backwards) const;

    QTableView *m_view = nullptr;
    QStandardItemModel *m_model = nullptr;
    const QMap<QString, QString> m_mapParams;
    const QMap<QString, QString> m_mapParamsEnable;
    const bool m_bReversed;
    int m_row = 0;
};
} // namespace VASK
