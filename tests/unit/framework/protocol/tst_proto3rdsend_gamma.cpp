// How gamma leaves: the exponent and the table for the receiving cards, the tables of the sending side.

#include "tests/testprogram.h"
#include "tests/unit/rig/sendbench.h"

#include <cmath>

using namespace VASK;

namespace
{
constexpr int gammaItem = MENU_Color_Gamma;

int entry(const QByteArray &table, int i)
{
    return quint8(table[2 * i]) | quint8(table[2 * i + 1]) << 8;
}
} // namespace

class TestProto3rdSendGamma : public QObject
{
    Q_OBJECT
private slots:
    void cardsGetExponentAndTable()
    {
        SendBench bench;
        for (int tenths = 10; tenths <= 40; ++tenths) {
            bench.client.clear();
            QCOMPARE(bench.change(gammaItem, QString::number(tenths / 10.0, 'f', 1)), 0);
            QCOMPARE(bench.client.frames.size(), 2);
            QVERIFY(bench.isFrame(0, 1, 0x02000000, QByteArray(1, char(tenths))));

            const QByteArray &frame = bench.client.frames[1];
            QCOMPARE(frame.size(), 532);
            const QByteArray table = frame.mid(18, 512);
            QVERIFY(bench.isFrame(1, 1, 0x05000000, table));
            const QVector<int> curve = CountGammaCurve(tenths / 10.0, 12, 1.0, 0);
            for (int i = 0; i < 256; ++i)
                QCOMPARE(entry(table, i), curve[i]);
        }
    }

    void sendingSideGetsItsTables_data()
    {
        const DataRows<int, int, int, int, quint32> row{"bits", "type", "entries", "repeats", "low"};
        row("10 bits", 10, 0x5A, 1024, 4, 0x2000u);
        row("12 bits", 12, 0x78, 4096, 1, 0u);
        row("12 bits, plain", 12, 255, 1024, 1, 0u);
    }
    void sendingSideGetsItsTables()
    {
        const auto [bits, type, entries, repeats, low] =
            fetched<int, int, int, int, quint32>({"bits", "type", "entries", "repeats", "low"});
        Proto3rdSend::m_gamma.m_sendCardBit = bits;
        Proto3rdSend::m_gamma.m_HDEnableType = HDEnableType(type);
        SendBench bench;
        const int result = bench.change(gammaItem, "2.2");
        Proto3rdSend::m_gamma = GammaSettings();

        QCOMPARE(result, 0);
        QCOMPARE(bench.client.frames.size(), 5);
        const quint32 high[] = {0x0E00, 0x0E10, 0x0E20};
        for (int channel = 0; channel < 3; ++channel) {
            const QByteArray &frame = bench.client.frames[channel];
            const QByteArray table = frame.mid(18, frame.size() - 20);
            QCOMPARE(table.size(), entries * 2 * repeats);
            QVERIFY(bench.isFrame(channel, 0, high[channel] << 16 | low, table));
            for (int i = 0; i < entries * repeats; ++i)
                QCOMPARE(entry(table, i),
                         int(65535 * std::pow(double(i / repeats) / (entries - 1), 2.2) + 0.5));
        }
        QVERIFY(bench.isFrame(3, 1, 0x02000000, QByteArray(1, char(22))));
    }
};

FPD_TEST(TestProto3rdSendGamma)
#include "tst_proto3rdsend_gamma.moc"
