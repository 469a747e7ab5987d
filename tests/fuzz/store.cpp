// The text of a store's file: no byte of it may end the panel, and what is taken of it is written so that it
// is read as the same again.

#include "framework/store/menuxml.h"
#include "framework/store/storetext.h"
#include "tests/fuzz/fuzztarget.h"

using namespace VASK;

namespace
{
QByteArray textOf(const QMap<ENUM_MenuIndex, ST_ItemInfo> &items)
{
    QDomDocument document = emptyMenuDocument();
    for (auto item = items.cbegin(); item != items.cend(); ++item)
        document.documentElement().appendChild(
            CreateMenuItemConfig(document, menuXmlNames(), item.key(), item.value()));
    return menuDocumentText(document);
}

void feed(const QByteArray &input)
{
    const StoreText read = readStoreText(input);
    REQUIRE(read.isWellFormed() || read.items.isEmpty());
    // What only one of the two readers takes is neither loaded nor copied over another file.
    if (!read.isStore() || !QDomDocument().setContent(read.text) || !read.isTidy)
        return;
    REQUIRE(read.records.size() == read.items.size());
    const QByteArray written = textOf(read.records);
    const StoreText again = readStoreText(written);
    REQUIRE(again.isStore() && again.isTidy && again.items == read.items);
    // A blank text is gone after the first time; from then on nothing changes any more.
    REQUIRE(textOf(again.records) == written);
}
} // namespace

FPD_FUZZ_TARGET(store, feed, 4096)
