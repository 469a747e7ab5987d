// Numbers under the knob: steps, limits, decimals, and what ESC and a report do to them.

#include "menu/menutypes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/rowbench.h"
#include "widget/row/typefloatadjust.h"
#include "widget/row/typeintadjust.h"

using namespace VASK;

namespace
{
// A whole number and a decimal that no rule of the engine limits.
constexpr ENUM_MenuIndex whole = MENU_HDMI1_Brightness;
constexpr ENUM_MenuIndex decimal = MENU_Color_Gamma;

void setRange(RowBench &bench, ENUM_MenuIndex index, const QString &value, const QString &min,
              const QString &max, const QString &step)
{
    bench.edit(index, [&](ST_ItemInfo &item) {
        item.value = value;
        item.min = min;
        item.max = max;
        item.step = step;
        item.unit = " mm";
        item.enable = true;
    });
}

void turn(VaskUiObject &row, ENUM_MenuIndex index, int clicks)
{
    unsigned char speed = static_cast<unsigned char>(qAbs(clicks));
    if (clicks < 0)
        row.UpEntry(index, speed);
    else
        row.DownEntry(index, speed);
}
} // namespace

class TestNumberRows : public RowTest
{
    Q_OBJECT
private slots:
    void wholeSteps_data()
    {
        const DataRows<QString, int, QString> row{"start", "clicks", "end"};
        row("one up", "50", 1, "60");
        row("fast up", "50", 3, "80");
        row("fast down", "50", -3, "20");
        row("onto the maximum, not beside it", "95", 2, "97");
        row("onto the minimum, not beside it", "-5", -8, "-13");
        row("through zero", "5", -1, "-5");
        row("at the maximum", "97", 1, "97");
        row("by one too many", "88", 1, "97");
        row("by one too few", "-4", -1, "-13");
    }
    void wholeSteps()
    {
        const auto [start, clicks] = fetched<QString, int>({"start", "clicks"});
        setRange(*m_bench, whole, start, "-13", "97", "10");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        turn(row, whole, clicks);
        QTEST(m_bench->value(whole), "end");
        QFETCH(QString, end);
        QVERIFY(shows(row, end + " mm"));
        QCOMPARE(RowBench::takeApplied(), QList<int>{whole});
    }

    void decimalSteps_data()
    {
        const DataRows<QString, int, QString> row{"step", "clicks", "end"};
        row("one decimal", "0.1", 1, "2.6");
        row("fast", "0.1", -5, "2.0");
        row("two decimals", "0.05", 1, "2.55");
        row("a step without a point keeps one", "1", 1, "3.5");
        row("maximum", "0.1", 50, "4.0");
        row("minimum", "0.1", -50, "1.0");
    }
    void decimalSteps()
    {
        const auto [step, clicks] = fetched<QString, int>({"step", "clicks"});
        setRange(*m_bench, decimal, "2.5", "1.0", "4.0", step);
        Seen<typefloatadjust> row(decimal, ENUM_OBJECT_END);
        turn(row, decimal, clicks);
        QTEST(m_bench->value(decimal), "end");
    }

    void typedDigits_data()
    {
        const DataRows<QString, QString, QString> row{"digits", "max", "end"};
        row("one", "7", "1920", "7");
        row("one above the maximum", "7", "5", "5");
        row("behind the first", "19", "1920", "19");
        row("beyond the maximum", "55", "30", "30");
        row("a third begins anew", "192", "1920", "2");
    }
    void typedDigits()
    {
        const auto [digits, max] = fetched<QString, QString>({"digits", "max"});
        setRange(*m_bench, whole, "50", "0", max, "1");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        for (QChar digit : digits)
            row.NumberEntry(whole, static_cast<unsigned char>(digit.digitValue()));
        QCOMPARE(RowBench::takeApplied(), QList<int>{});
        row.EnterEntry(whole, 1, 1);
        QTEST(m_bench->value(whole), "end");
    }

    void aThousandSmallStepsDoNotDrift()
    {
        setRange(*m_bench, decimal, "0.0", "0.0", "100.0", "0.1");
        Seen<typefloatadjust> row(decimal, ENUM_OBJECT_END);
        for (int i = 0; i < 1000; ++i)
            turn(row, decimal, 1);
        QCOMPARE(m_bench->value(decimal), QString("100.0"));
    }

    /// No input is known here, so the engine would allow no crop at all.
    void aReportedCropStandsAsItIs_data()
    {
        const DataRows<int, QString, QString> row{"index", "reported", "shown"};
        row("main layer", MENU_MainLayerCrop_HorWidth, "500", "500");
        row("PIP 2", MENU_PIP2Crop_InitialY, "500", "500");
        row("not beyond its own limits", MENU_PIP1Crop_HorWidth, "40000", "0");
        row("any other size is limited", MENU_Mosaic_Width, "40000", "2048");
    }
    void aReportedCropStandsAsItIs()
    {
        const auto [index, reported, shown] = fetched<int, QString, QString>({"index", "reported", "shown"});
        Seen<typeintadjust> row(ENUM_MenuIndex(index), ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN, reported, SET_XML_DEVICE);
        QVERIFY(shows(row, shown));
        QCOMPARE(RowBench::takeApplied(), shown == reported ? QList<int>{} : QList<int>{index});
    }

    void storeModeStoresSilently()
    {
        setRange(*m_bench, whole, "50", "0", "100", "1");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        row.SetParaEntry(whole, "60", SET_XML_STORE);
        QCOMPARE(m_bench->value(whole), QString("60"));
        QCOMPARE(RowBench::takeApplied(), QList<int>{});
    }

    void anEmptyValueReloads()
    {
        setRange(*m_bench, whole, "50", "0", "100", "1");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        setRange(*m_bench, whole, "70", "0", "100", "1");
        m_bench->store().UpdataItemEnable(whole, false);
        row.SetParaEntry(MENU_OWN, "", SET_XML_STORE);
        QVERIFY(shows(row, "70 mm"));
        QVERIFY(!row.isEnabled());
        QCOMPARE(m_bench->value(whole), QString("70"));
    }

    void onlyTheRightEyeCanBeUnknown()
    {
        setRange(*m_bench, MENU_Mode3D_RightEyeStart, "50", "0", "100", "1");
        Seen<typeintadjust> row(MENU_Mode3D_RightEyeStart, ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN, "", SET_XML_DEVICE);
        QCOMPARE(m_bench->value(MENU_Mode3D_RightEyeStart), QString());
    }

    void ownIndexOrNothing()
    {
        setRange(*m_bench, whole, "50", "0", "100", "1");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN_ALT, "30", SET_XML_USER);
        QCOMPARE(m_bench->value(whole), QString("30"));
        RowBench::takeApplied();
        Seen<typeintadjust> nobody(MENU_OWN, ENUM_OBJECT_END);
        nobody.SetParaEntry(MENU_OWN, "31", SET_XML_USER);
        QCOMPARE(RowBench::takeApplied(), QList<int>{});
    }

    void aReportFromAnotherThreadIsDrawnOnThisOne()
    {
        setRange(*m_bench, whole, "50", "0", "100", "1");
        Seen<typeintadjust> row(whole, ENUM_OBJECT_END);
        std::unique_ptr<QThread> reports(QThread::create([&] {
            m_bench->store().UpdataItemCurValue(whole, "61");
            row.SetParaEntry(whole, "61", SET_XML_DEVICE);
        }));
        reports->start();
        QVERIFY(reports->wait()); // posted, not waited for: this thread runs no events meanwhile
        QVERIFY(shows(row, "50 mm"));
        // What the knob has set in the meantime is newer than the report.
        m_bench->store().UpdataItemCurValue(whole, "62");
        QCoreApplication::processEvents();
        QVERIFY(shows(row, "62 mm"));
        QCOMPARE(m_bench->value(whole), QString("62"));
    }
};

FPD_TEST(TestNumberRows)
#include "tst_numberrows.moc"
