// The menu as data: what the builder, the store and the rows rely on.

#include "menuconfig_k2860.h"

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
    void sizes()
    {
        QCOMPARE(g_config.size(), 82);
        QCOMPARE(g_MenuXmlConfig.size(), 408);
        QCOMPARE(g_dialogConfig.size(), 70);
        QVERIFY(g_protocolType.isEmpty());
    }

    void everyRowHasItsItem()
    {
        for (const ST_MenuConfig &page : g_config) {
            QVERIFY2(!page.title.isEmpty() && !page.styleSheet.isEmpty(), qPrintable(page.title));
            QVERIFY2(page.rows <= page.rowsMap.size(), qPrintable(page.title));
            for (const st_MenuItemInfo &row : page.rowsMap) {
                QVERIFY2(g_MenuXmlConfig.contains(row.menuIndex), qPrintable(QString::number(row.menuIndex)));
                const bool opens = row.controlType == TYPE_SUBPAGE;
                QCOMPARE(row.subPage != CONFIG_END, opens);
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

    void quotedObjects_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("object");
        // Numbers that other parts of the program know their rows by.
        const QList<QPair<int, int>> quoted{
            {MENU_SavetoRVCard, 45},
            {MENU_Preset1, 72},
            {MENU_Preset10, 81},
            {MENU_Normal, 102},
            {MENU_Freeze, 103},
            {MENU_FTB, 104},
            {MENU_HDCP, 125},
            {MENU_SelfTest, 131},
            {MENU_CabinetFile1, 151},
            {MENU_CabinetFile8, 158},
            {MENU_OutputFrameRate, 164},
            {MENU_MainLayer_Status, 165},
            {MENU_MainLayer_InputSource, 166},
            {MENU_MainLayer_ScalingMode, 167},
            {MENU_PIP1_Status, 176},
            {MENU_PIP1_InputSource, 177},
            {MENU_PIP1_ScalingMode, 178},
            {MENU_PIP2_Status, 187},
            {MENU_PIP2_InputSource, 188},
            {MENU_PIP2_ScalingMode, 189},
            {MENU_Net_Gateway, 261},
            {MENU_Net_SubnetMask, 260},
            {MENU_HDMI1_EDIDCustomRate, 312},
            {MENU_HDMI2_EDIDCustomRate, 334},
            {MENU_DVI_EDIDCustomRate, 356},
            {MENU_DVI2_EDIDCustomRate, 378},
            {MENU_Mosaic_Arrangement, 400},
            {MENU_Layout, 54},
        };
        for (const auto &pair : quoted)
            QTest::addRow("%d", pair.first) << pair.first << pair.second;
    }

    void quotedObjects()
    {
        QFETCH(int, item);
        QFETCH(int, object);
        bool shown = false;
        for (const ST_MenuConfig &page : g_config)
            for (const st_MenuItemInfo &row : page.rowsMap) {
                shown = shown || row.menuIndex == item;
                if (row.itemObject == object)
                    QCOMPARE(int(row.menuIndex), item);
            }
        QVERIFY(shown || item == MENU_Layout);
    }

    void quotedPages()
    {
        const QList<QPair<ENUM_ConfigIndex, int>> quoted{
            {CONFIG_PresetSettings, 23},
            {CONFIG_PresetCopyTo, 24},
            {CONFIG_LoadCabFiles, 44},
            {CONFIG_MainLayer, 49},
            {CONFIG_PIP1, 51},
            {CONFIG_PIP2, 53},
            {CONFIG_TestPattern, 107},
            {CONFIG_TestPureColor, 109},
            {CONFIG_AboutUs, 134},
            {CONFIG_MainLayerCrop, 174},
            {CONFIG_PIP1Crop, 185},
            {CONFIG_PIP2Crop, 196},
            {CONFIG_HDMI1_EDID, 297},
            {CONFIG_HDMI2_EDID, 319},
            {CONFIG_DVI_EDID, 341},
            {CONFIG_DVI2_EDID, 363},
            {CONFIG_SDI_Attributes, 387},
        };
        for (const auto &pair : quoted)
            QCOMPARE(int(g_config[pair.first].object), pair.second);
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
                if (row.controlType != TYPE_TIP)
                    QVERIFY2(item.focusable, name);
                else
                    QVERIFY2(!item.focusable && item.rowHeight == 72, name);
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

QTEST_GUILESS_MAIN(TestMenuTable)
#include "tst_menutable.moc"
