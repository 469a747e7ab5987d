// The address row: number by number, the limits of each, the repair of an address, OK and ESC.

#include "menu/menutypes.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/rowbench.h"
#include "widget/row/typeipadjust.h"

using namespace VASK;

class TestIpAddressRow : public RowTest
{
    Q_OBJECT
private slots:
    void turning_data()
    {
        addColumns<int, QString, int, int, QString>({"index", "start", "number", "clicks", "end"});
        const auto row = [](const char *name, const char *start, int number, int clicks, const char *end,
                            int index = MENU_Net_IPAddress) {
            QTest::newRow(name) << index << start << number << clicks << end;
        };
        row("one unit a click", "192.168.0.20", 3, 1, "192.168.0.21");
        row("first stops at 223", "222.1.1.1", 0, 5, "223.1.1.1");
        row("first never 0", "2.1.1.1", 0, -5, "1.1.1.1");
        row("last stops at 255", "192.168.0.254", 3, 3, "192.168.0.255");
        row("last stops at 0", "192.168.0.1", 3, -3, "192.168.0.0");
        row("broadcast", "10.255.255.254", 3, 1, "10.255.255.1");
        row("network", "10.0.0.1", 3, -1, "10.0.0.1");
        row("first of a mask stays", "255.255.0.0", 0, -2, "255.255.0.0", MENU_Net_SubnetMask);
        row("second of a mask turns", "255.255.0.0", 1, -1, "255.254.0.0", MENU_Net_SubnetMask);
        row("gateway is not repaired", "10.0.0.1", 3, -1, "10.0.0.0", MENU_Net_Gateway);
    }
    void turning()
    {
        const auto [index, start, number, clicks] =
            fetched<int, QString, int, int>({"index", "start", "number", "clicks"});
        const auto item = ENUM_MenuIndex(index);
        prepare(item, start);
        Seen<typeipadjust> row(item, ENUM_OBJECT_END);
        for (int ok = 0; ok <= number; ++ok)
            row.EnterEntry(item);
        unsigned char fast = 8;
        for (int i = 0; i < qAbs(clicks); ++i)
            clicks < 0 ? row.UpEntry(item, fast) : row.DownEntry(item, fast);
        QTEST(m_bench->value(item), "end");
        QTEST(shown(row), "end");
    }

    void typing_data()
    {
        const DataRows<int, int, QString, QString> row{"index", "number", "digits", "end"};
        row("the first digit clears the number", MENU_Net_IPAddress, 0, "99", "99.168.0.20");
        row("a host's first stops at 223", MENU_Net_IPAddress, 0, "224", "223.168.0.20");
        row("others stop at 255", MENU_Net_IPAddress, 3, "256", "192.168.0.255");
        row("first of a mask stays", MENU_Net_SubnetMask, 0, "128", "192.168.0.20");
    }
    void typing()
    {
        const auto [index, number, digits] = fetched<int, int, QString>({"index", "number", "digits"});
        const auto item = ENUM_MenuIndex(index);
        prepare(item, "192.168.0.20");
        Seen<typeipadjust> row(item, ENUM_OBJECT_END);
        for (int ok = 0; ok <= number; ++ok)
            row.EnterEntry(item);
        RowBench::takeApplied();
        for (QChar digit : digits)
            row.NumberEntry(item, static_cast<unsigned char>(digit.digitValue()));
        QCOMPARE(RowBench::takeApplied(), QList<int>{});
        QTEST(shown(row), "end");
    }

    void okGoesRoundAndEscStartsOver()
    {
        prepare(MENU_Net_IPAddress, "192.168.0.20");
        Seen<typeipadjust> row(MENU_Net_IPAddress, ENUM_OBJECT_END);
        QCOMPARE(marked(row), -1);
        for (int expected : {0, 1, 2, 3, 0, 1}) {
            row.EnterEntry(MENU_Net_IPAddress);
            QCOMPARE(marked(row), expected);
        }
        row.EscEntry(MENU_Net_IPAddress, 1);
        QCOMPARE(marked(row), -1);
        row.EnterEntry(MENU_Net_IPAddress);
        QCOMPARE(marked(row), 0);
    }

    void whatIsShown_data()
    {
        const DataRows<QString, QString, QString> row{"stored", "automatic", "text"};
        row("legal", "10.0.0.7", "0", "10.0.0.7");
        row("first 0", "0.0.0.7", "0", "127.0.0.1");
        row("too large", "10.0.0.256", "0", "127.0.0.1");
        row("three numbers", "10.0.0", "0", "127.0.0.1");
        row("other separator", "10-0-0-7", "0", "127.0.0.1");
        row("automatic, known", "10.0.0.7", "1", "10.0.0.7");
        row("automatic, not known yet", "", "1", " . . . ");
        row("empty by hand", "", "0", "127.0.0.1");
    }
    void whatIsShown()
    {
        const auto [stored, automatic] = fetched<QString, QString>({"stored", "automatic"});
        prepare(MENU_Net_Gateway, stored);
        m_bench->store().UpdataItemCurValue(MENU_Net_NetMode, automatic);
        Seen<typeipadjust> row(MENU_Net_Gateway, ENUM_OBJECT_END);
        row.SetParaEntry(MENU_OWN, "", SET_XML_STORE);
        QTEST(shown(row), "text");
    }

private:
    void prepare(ENUM_MenuIndex index, const QString &address)
    {
        m_bench->edit(index, [&](ST_ItemInfo &item) {
            item.value = address;
            item.enable = true;
        });
    }
    static QList<QLabel *> numbers(const QWidget &row) { return row.findChildren<QLabel *>("ipLineEdit"); }
    static QString shown(const QWidget &row)
    {
        QStringList parts;
        for (const QLabel *label : numbers(row))
            parts << label->text();
        return parts.join('.');
    }
    static int marked(const QWidget &row)
    {
        int at = -1;
        for (int i = 0; i < numbers(row).size(); ++i)
            if (numbers(row).at(i)->property("edit").toBool())
                at = at < 0 ? i : 99;
        return at;
    }
};

FPD_TEST(TestIpAddressRow)
#include "tst_ipaddressrow.moc"
