// The menu as data: what the builder, the store and the rows rely on.

#include "client/names/itemnames.h"
#include "framework/store/menushown.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"
#include "tests/testprogram.h"

#include <QSet>

using namespace VASK;

namespace
{
bool hasOptions(ENUM_ControlType type)
{
    return type == TYPE_STRINGCOMBOX || type == TYPE_ICOCOMBOX;
}
} // namespace

class TestMenuTable : public QObject
{
    Q_OBJECT

private slots:
    void everyRowHasItsItem()
    {
        for (const ST_MenuConfig &page : g_config) {
            QVERIFY2(!page.title.isEmpty() && !page.styleSheet.isEmpty(), qPrintable(page.title));
            QVERIFY2(page.rows <= page.rowsMap.size(), qPrintable(page.title));
            for (const st_MenuItemInfo &row : page.rowsMap) {
                QVERIFY2(g_MenuXmlConfig.contains(row.menuIndex), qPrintable(itemnames::name(row.menuIndex)));
                const bool opens = row.controlType == TYPE_SUBPAGE;
                QCOMPARE(row.subPage != CONFIG_END, opens);
                if (row.menuIndex == MENU_SavetoRVCard)
                    QCOMPARE(row.pageObject, row.itemObject);
                else
                    QCOMPARE(row.pageObject != ENUM_OBJECT_END, opens);
                if (opens)
                    QCOMPARE(g_config[row.subPage].object, row.pageObject);
            }
        }
    }

    void builtObjectsAreUnique()
    {
        const QList<ENUM_ConfigIndex> pages = builtPages();
        QSet<int> objects;
        for (ENUM_ConfigIndex config : pages) {
            QVERIFY2(!objects.contains(g_config[config].object), qPrintable(g_config[config].title));
            objects << g_config[config].object;
            for (const st_MenuItemInfo &row : g_config[config].rowsMap) {
                QVERIFY2(!objects.contains(row.itemObject), qPrintable(QString::number(row.itemObject)));
                objects << row.itemObject;
            }
        }
    }

    void objectsOfDifferentItemsDiffer()
    {
        QMap<int, int> itemOf;
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap) {
                const int known = itemOf.value(row.itemObject, row.menuIndex);
                QVERIFY2(known == row.menuIndex, qPrintable(QString("object %1").arg(row.itemObject)));
                itemOf[row.itemObject] = row.menuIndex;
            }
    }

    void valuesLieWithinTheirLimits()
    {
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap) {
                const ST_ItemInfo &item = g_MenuXmlConfig[row.menuIndex];
                const QByteArray name = itemnames::name(item.index).toUtf8();
                QCOMPARE(item.index, row.menuIndex);
                if (row.controlType == TYPE_INTADJUST || row.controlType == TYPE_FLOATADJUST) {
                    QVERIFY2(item.step.toDouble() > 0, name);
                    QVERIFY2(item.min.toDouble() < item.max.toDouble(), name);
                    QVERIFY2(item.value.toDouble() >= item.min.toDouble(), name);
                    QVERIFY2(item.value.toDouble() <= item.max.toDouble(), name);
                }
                if (hasOptions(row.controlType)) {
                    QVERIFY2(item.params.contains(item.value), name);
                    QCOMPARE(item.params1.keys(), item.params.keys());
                    QCOMPARE(item.col, row.controlType == TYPE_ICOCOMBOX ? 3 : 0);
                }
                if (row.controlType == TYPE_CHECKITEM)
                    QVERIFY2(item.choice == SELECTED || item.choice == UNSELECTED, name);
                QVERIFY2(item.focusable != (row.controlType == TYPE_TIP || row.controlType == TYPE_FOURPIC),
                         name);
                if (row.controlType == TYPE_TIP)
                    QVERIFY2(item.rowHeight == 72, name);
            }
    }

    void rateListsDefaultToSixtyWhereTheyCan()
    {
        for (int i = MENU_Rates_1024x768; i <= MENU_Rates_3840x2160; ++i) {
            const ST_ItemInfo &rates = g_MenuXmlConfig[ENUM_MenuIndex(i)];
            QVERIFY(rates.params.contains(rates.value));
            if (rates.params.values().contains("60"))
                QCOMPARE(rates.params[rates.value], QString("60"));
        }
    }

    void timedMessagesHaveATime()
    {
        for (const ST_DialogInfo &dialog : g_dialogConfig) {
            QCOMPARE(dialog.timeMs > 0, dialog.buttonType == MSGBOX_TIMED);
            QCOMPARE(dialog.enabled, dialog.text != "OPENQuickConfigurationWaring");
        }
    }
};

FPD_TEST_GUILESS(TestMenuTable)
#include "tst_menutable.moc"
