// The menu as data: what the builder, the store and the rows rely on.

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"
#include "tests/testprogram.h"

#include <QSet>
#include <QtTest>

using namespace VASK;

namespace
{
const QList<ENUM_ConfigIndex> roots{CONFIG_MainMenu, CONFIG_UserHiddenMenu, CONFIG_ProductHiddenMenu};

bool hasOptions(ENUM_ControlType type)
{
    return type == TYPE_STRINGCOMBOX || type == TYPE_ICOCOMBOX;
}

/// All pages that the builder makes from the roots.
QList<ENUM_ConfigIndex> builtPages()
{
    QList<ENUM_ConfigIndex> pages = roots;
    for (int i = 0; i < pages.size(); ++i)
        for (const st_MenuItemInfo &row : g_config[pages[i]].rowsMap)
            if (row.controlType == TYPE_SUBPAGE)
                pages << row.subPage;
    return pages;
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
                QVERIFY2(g_MenuXmlConfig.contains(row.menuIndex), qPrintable(QString::number(row.menuIndex)));
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

    /// By these numbers other parts of the program know their rows and pages.
    void quotedObjects()
    {
        const struct {
            int object;
            ENUM_MenuIndex item;
            int count; ///< of such rows, one behind the other
        } runs[] = {{45, MENU_SavetoRVCard, 1},
                    {72, MENU_Preset1, 10},
                    {102, MENU_Normal, 3},
                    {125, MENU_HDCP, 1},
                    {131, MENU_SelfTest, 1},
                    {151, MENU_CabinetFile1, 8},
                    {164, MENU_OutputFrameRate, 1},
                    {165, MENU_MainLayer_Status, 3},
                    {176, MENU_PIP1_Status, 3},
                    {187, MENU_PIP2_Status, 3},
                    {260, MENU_Net_SubnetMask, 2},
                    {312, MENU_HDMI1_EDIDCustomRate, 1},
                    {334, MENU_HDMI2_EDIDCustomRate, 1},
                    {356, MENU_DVI_EDIDCustomRate, 1},
                    {378, MENU_DVI2_EDIDCustomRate, 1},
                    {400, MENU_Mosaic_Arrangement, 1}};
        const QMap<int, ENUM_ConfigIndex> pages{
            {23, CONFIG_PresetSettings}, {24, CONFIG_PresetCopyTo},   {44, CONFIG_LoadCabFiles},
            {49, CONFIG_MainLayer},      {51, CONFIG_PIP1},           {53, CONFIG_PIP2},
            {107, CONFIG_TestPattern},   {109, CONFIG_TestPureColor}, {134, CONFIG_AboutUs},
            {174, CONFIG_MainLayerCrop}, {185, CONFIG_PIP1Crop},      {196, CONFIG_PIP2Crop},
            {297, CONFIG_HDMI1_EDID},    {319, CONFIG_HDMI2_EDID},    {341, CONFIG_DVI_EDID},
            {363, CONFIG_DVI2_EDID},     {387, CONFIG_SDI_Attributes}};
        QMap<int, int> itemOf;
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap)
                itemOf[row.itemObject] = row.menuIndex;
        for (const auto &run : runs)
            for (int i = 0; i < run.count; ++i)
                QCOMPARE(itemOf.value(run.object + i), run.item + i);
        for (auto page = pages.cbegin(); page != pages.cend(); ++page)
            QCOMPARE(int(g_config[page.value()].object), page.key());
    }

    void valuesLieWithinTheirLimits()
    {
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap) {
                const ST_ItemInfo &item = g_MenuXmlConfig[row.menuIndex];
                const QByteArray name = QByteArray::number(item.index);
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
