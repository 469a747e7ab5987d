// The mosaic of two inputs: side by side or one above the other, of which size, and which inputs. Each layout
// remembers its own.

#include "framework/engine/layers.h"

#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"

#include <QFileInfo>

namespace VASK
{
namespace
{
bool isSideBySide(const ParaChange &change)
{
    return change.item(MENU_Mosaic_Layout) == mosaicBeside;
}

bool isOneAbove(const ParaChange &change)
{
    return change.item(MENU_Mosaic_Layout) == mosaicAbove;
}

QString twice(const QString &pixels)
{
    return QString::number(2 * pixels.toInt());
}

QStringList totalSize(const ParaChange &change)
{
    QStringList size = change.info(MENU_Mosaic_Arrangement).pixValue.split('x');
    while (size.size() < 2)
        size << QString();
    return size;
}

void keepTotalSize(ParaChange &change, const QString &size)
{
    change.store.changeItem(MENU_Mosaic_Arrangement, [&size](ST_ItemInfo &item) { item.pixValue = size; });
}

void setAndRefresh(ParaChange &change, ENUM_MenuIndex item, const QString &value)
{
    change.set(item, value);
    change.refresh(item);
}

void applyLayout(ParaChange &change)
{
    qDebug() << "MOSAIC_SPLICE_MODEL" << QFileInfo(__FILE__).fileName();
    const bool wide = change.value == mosaicBeside;
    const QString width = change.item(wide ? MENU_MosaicLayout0_Width : MENU_MosaicLayout1_Width);
    const QString height = change.item(wide ? MENU_MosaicLayout0_Height : MENU_MosaicLayout1_Height);
    const QString size = wide ? twice(width) + 'x' + height : width + 'x' + twice(height);
    setAndRefresh(change, MENU_Mosaic_Width, width);
    setAndRefresh(change, MENU_Mosaic_Height, height);
    keepTotalSize(change, size);
    change.eachWidget(MENU_Mosaic_Arrangement, [&](VaskUiObject &widget) {
        widget.updateSplite(change.value);
        widget.updatePixValue(size);
    });
    qDebug() << "mosaic_source.strPixValue" << size;
    change.tail();
}

/// The sizes are sent with the apply row only.
void takeSize(ParaChange &change, ENUM_MenuIndex memory, const QString &size)
{
    change.set(memory, change.value);
    keepTotalSize(change, size);
    change.refresh(MENU_Mosaic_Arrangement);
    if (change.fromDevice())
        change.refresh(change.index);
}

void applyWidth(ParaChange &change)
{
    const QString height = totalSize(change).at(1);
    if (isSideBySide(change))
        takeSize(change, MENU_MosaicLayout0_Width, twice(change.value) + 'x' + height);
    else
        takeSize(change, MENU_MosaicLayout1_Width, change.value + 'x' + height);
}

void applyHeight(ParaChange &change)
{
    const QString width = totalSize(change).at(0);
    if (isOneAbove(change))
        takeSize(change, MENU_MosaicLayout1_Height, width + 'x' + twice(change.value));
    else
        takeSize(change, MENU_MosaicLayout0_Height, width + 'x' + change.value);
}

/// The inputs go in pairs; empty for one that is in none.
QString partnerOf(const QString &input)
{
    constexpr int pairedInputs = 6;
    bool isNumber = false;
    const int number = input.toInt(&isNumber);
    if (!isNumber || number < 0 || number >= pairedInputs)
        return QString();
    return QString::number(number % 2 == 0 ? number + 1 : number - 1);
}

/// The user chooses one of a pair; the device tells both.
void applyArrangement(ParaChange &change)
{
    QString first = change.value;
    QString second = partnerOf(first);
    if (change.fromDevice()) {
        first = change.value.section('/', 0, 0);
        second = change.value.section('/', 1, 1);
        qDebug() << "mosaic_source.strCurValue" << first;
        qDebug() << "mosaic_source.strPerBase" << second;
    }
    change.store.changeItem(MENU_Mosaic_Arrangement, [&](ST_ItemInfo &item) {
        item.value = first;
        item.perBase = second;
    });
    const bool above = isOneAbove(change);
    change.set(above ? MENU_MosaicLayout0_Source : MENU_MosaicLayout1_Source, first);
    qDebug() << (above ? "mosaic mode0" : "mosaic mode1");
    change.refresh(MENU_Mosaic_Arrangement);
}

/// The device is told whether it shows the mosaic now.
void applyMosaic(ParaChange &change)
{
    change.dialog(MSG_Waiting);
    change.value = mainShowsMosaic(change) ? "1" : "0";
    change.tail();
}

void resetMosaic(ParaChange &change)
{
    const QString width = QStringLiteral("1920");
    const QString height = QStringLiteral("1080");
    const QString input = QStringLiteral("2");
    change.show(MENU_Mosaic_Layout, mosaicBeside);
    setAndRefresh(change, MENU_Mosaic_Width, width);
    change.set(MENU_MosaicLayout0_Width, width);
    change.set(MENU_MosaicLayout1_Width, width);
    setAndRefresh(change, MENU_Mosaic_Height, height);
    change.set(MENU_MosaicLayout0_Height, height);
    change.set(MENU_MosaicLayout1_Height, height);
    change.store.changeItem(MENU_Mosaic_Arrangement, [&](ST_ItemInfo &item) {
        item.pixValue = twice(width) + 'x' + height;
        item.perBase = partnerOf(input);
    });
    change.show(MENU_Mosaic_Arrangement, input);
    change.set(MENU_MosaicLayout0_Source, input);
    change.set(MENU_MosaicLayout1_Source, input);
    change.eachWidget(MENU_Mosaic_Arrangement,
                      [](VaskUiObject &widget) { widget.updateSplite(mosaicBeside); });
}

constexpr ApplyCase cases[] = {
    {MENU_Mosaic_Layout, applyLayout}, {MENU_Mosaic_Width, applyWidth},
    {MENU_Mosaic_Height, applyHeight}, {MENU_Mosaic_Arrangement, applyArrangement},
    {MENU_Mosaic_Apply, applyMosaic},  {MENU_Mosaic_Reset, resetMosaic},
};
} // namespace

Table<ApplyCase> mosaicCases()
{
    return cases;
}
} // namespace VASK
