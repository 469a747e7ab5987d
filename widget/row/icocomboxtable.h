// The open drop-down of a list of pictures, several side by side. The row that opened it owns it. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menuconfig_k2860.h"

class QTableWidget;

namespace VASK
{
class icocomboxtable : public VaskUiObject
{
    Q_OBJECT
public:
    icocomboxtable(ENUM_ObjectIndex objectIndex, const ST_ItemInfo &item);

    /// The key of the picture under the cursor.
    QString chosenKey() const { return QString::number(m_cell); }
    bool CurrentItemEnabled() override;

    using VaskUiObject::DownEntry;
    using VaskUiObject::UpEntry;
    void UpEntry(ENUM_MenuIndex index) override;
    void DownEntry(ENUM_MenuIndex index) override;
    void SetParaEntry(ENUM_MenuIndex index, QString value, ENUM_MODE_SET_XML mode) override;

private:
    void CreatEntry();
    QWidget *createCell(const QString &path);
    void move(int by);
    void showCell(int cell);

    QTableWidget *m_table = nullptr;
    const QMap<QString, QString> m_mapParams;
    const QMap<QString, QString> m_mapParamsEnable;
    const int m_columns;
    int m_cell = 0;
};
} // namespace VASK
