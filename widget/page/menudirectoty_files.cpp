// The list of cabinet files.

#include "widget/page/menudirectoty.h"

#include "boardio.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDir>

namespace VASK
{
namespace
{
const QString cabinetFolder = QStringLiteral("/usr/vask/etc/fpd/cabCfg");
const QString indexFile = QStringLiteral("/AllCabCfgFileName");
/// The index holds one field a file: UTF-16 text that ends with a zero word.
constexpr int nameFieldBytes = 64;

QString nameInField(const QByteArray &index, int number)
{
    const QByteArray field = index.mid(number * nameFieldBytes, nameFieldBytes);
    QString name;
    for (int i = 0; i + 1 < field.size(); i += 2) {
        const auto unit = ushort(uchar(field[i]) | uchar(field[i + 1]) << 8);
        if (!unit)
            break;
        name.append(QChar(unit));
    }
    return name;
}

void storeFile(MenuAnalysis &store, int number, const QString &name, bool present)
{
    const auto item = ENUM_MenuIndex(MENU_CabinetFile1 + number);
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

bool MenuDirectory::GetCabCfgFileName(QStringList &names)
{
    names.clear();
    const QDir folder(board::filePath(cabinetFolder));
    if (!folder.exists())
        return false;
    // The index itself is one of the files.
    const int count = folder.entryList(QDir::Files | QDir::Hidden).size() - 1;
    QFile file(board::filePath(cabinetFolder + indexFile));
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "cannot read the index of the cabinet files" << file.fileName() << file.errorString();
        return false;
    }
    const QByteArray index = file.readAll();
    for (int i = 0; i < count && i * nameFieldBytes < index.size(); ++i)
        names.append(nameInField(index, i));
    return !names.isEmpty();
}

bool MenuDirectory::prepareFiles(MenuDirectory *page)
{
    QStringList names;
    if (!GetCabCfgFileName(names)) {
        runMessage(MSG_NoFiles);
        return false;
    }
    page->showFiles(names);
    return true;
}

void MenuDirectory::showFiles(const QStringList &names)
{
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        return;
    if (names.size() > fileRowCount)
        qDebug() << "too many file";
    const int count = qMin(names.size(), fileRowCount);
    for (int i = 0; i < fileRowCount; ++i) {
        const bool present = i < count;
        const auto item = ENUM_MenuIndex(MENU_CabinetFile1 + i);
        storeFile(*store, i, names.value(i), present);
        auto *row = poolObject<VaskUiObject>(ENUM_ObjectIndex(ENUM_ROW_CabinetFile1 + i));
        if (present && row) {
            row->SetParaEntry(item, QString(), SET_XML_STORE); // brings the stored tag, too
            row->UpdateTagName(item, names.at(i));
        }
        setRowHidden(i, !present);
    }
    setRowCount(count);
}
} // namespace VASK
