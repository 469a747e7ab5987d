#include "widget/page/cabinetfiles.h"

#include "boardio.h"
#include "framework/protocol/link/cabinetnames.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/dialogs.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/page/menudirectoty.h"

#include <QDir>

namespace VASK
{
namespace
{
const QString cabinetFolder = QStringLiteral("/usr/vask/etc/fpd/cabCfg");

void storeFile(MenuAnalysis &store, int number, const QString &name, bool present)
{
    const auto item = nth(MENU_CabinetFile1, number);
    store.changeItem(item, [&](ST_ItemInfo &info) {
        if (present) {
            info.value = name;
            info.perBase = QString::number(number);
            info.enable = true; // an earlier list may have been shorter
        }
        info.enableSelect = present;
    });
}
} // namespace

bool cabinetFileNames(QStringList &names)
{
    names.clear();
    const QDir folder(board::filePath(cabinetFolder));
    if (!folder.exists())
        return false;
    // The index itself is one of the files.
    const int count = folder.entryList(QDir::Files | QDir::Hidden).size() - 1;
    QByteArray index;
    if (!readCabinetIndex(index))
        return false;
    for (int i = 0; i < qMin(count, cabinetRecords(index)); ++i)
        names.append(cabinetNameAt(index, i));
    return !names.isEmpty();
}

bool prepareCabinetFiles(MenuDirectory &above, MenuDirectory &page)
{
    QStringList names;
    if (!cabinetFileNames(names)) {
        runMessage(&above, MSG_NoFiles);
        return false;
    }
    showCabinetFiles(page, names);
    return true;
}

/// Without any file the page is left without rows.
void reloadCabinetFiles(MenuDirectory &page)
{
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return;
    QStringList names;
    cabinetFileNames(names);
    for (int row = 0; row < MenuDirectory::fileRowCount; ++row)
        store->UpdataItemEnable(nth(MENU_CabinetFile1, row), row < names.size());
    showCabinetFiles(page, names);
}

void showCabinetFiles(MenuDirectory &page, const QStringList &names)
{
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return;
    if (names.size() > MenuDirectory::fileRowCount)
        qDebug() << "too many file";
    const int count = qMin(names.size(), MenuDirectory::fileRowCount);
    for (int i = 0; i < MenuDirectory::fileRowCount; ++i) {
        const bool present = i < count;
        const auto item = nth(MENU_CabinetFile1, i);
        storeFile(*store, i, names.value(i), present);
        auto *row = poolObject<VaskUiObject>(nth(ENUM_ROW_CabinetFile1, i));
        if (present && row) {
            row->SetParaEntry(item, QString(), SET_XML_STORE); // brings the stored tag, too
            row->UpdateTagName(item, names.at(i));
        }
        page.setRowHidden(i, !present);
    }
    page.setRowCount(count);
}
} // namespace VASK
