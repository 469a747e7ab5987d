// The text of a store's file: no byte of it may end the panel, and what is taken of it is written so that it
// is read as the same again.

#include "framework/store/menuxml.h"
#include "framework/store/storetext.h"
#include "tests/fuzz/fuzztarget.h"

using namespace VASK;

namespace
{
QMap<ENUM_MenuIndex, ST_ItemInfo> itemsOf(const QString &text)
{
    QDomDocument document;
    document.setContent(text);
    QMap<ENUM_MenuIndex, ST_ItemInfo> items;
    const XmlNames names = menuXmlNames();
    const QDomNodeList elements = document.documentElement().elementsByTagName(names[XML_ITEMS]);
    for (int i = 0; i < elements.count(); ++i) {
        ST_ItemInfo item;
        if (!isItemNumber(elements.at(i).toElement().attribute(names[XML_INDEX]), item.index))
            continue;
        menuItemFromXml(elements.at(i).toElement(), names, item);
        items.insert(item.index, item);
    }
    return items;
}

void feed(const QByteArray &input)
{
    const StoreText read = readStoreText(input);
    REQUIRE(read.isWellFormed() || read.items.isEmpty());
    // What only one of the two readers takes is neither loaded nor copied over another file.
    if (!read.isStore() || !QDomDocument().setContent(read.text))
        return;
    const QMap<ENUM_MenuIndex, ST_ItemInfo> items = itemsOf(read.text);
    REQUIRE(items.size() == read.items.size());
    QDomDocument document = emptyMenuDocument();
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        document.documentElement().appendChild(
            CreateMenuItemConfig(document, menuXmlNames(), item.key(), item.value()));
    const QByteArray written = menuDocumentText(document);
    const StoreText again = readStoreText(written);
    REQUIRE(again.isStore() && again.isTidy && again.items == read.items);
    // A blank text is gone after the first time; from then on nothing changes any more.
    QDomDocument second = emptyMenuDocument();
    const QMap<ENUM_MenuIndex, ST_ItemInfo> kept = itemsOf(again.text);
    for (auto item = kept.cbegin(); item != kept.cend(); ++item)
        second.documentElement().appendChild(
            CreateMenuItemConfig(second, menuXmlNames(), item.key(), item.value()));
    REQUIRE(menuDocumentText(second) == written);
}
} // namespace

FPD_FUZZ_TARGET(store, feed, 4096)
