// Gamma curves against tables that were computed apart.

#include "framework/protocol/send/gammacurve.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
struct Golden {
    int tenths;
    quint32 sum;
};

/// The sums of (i + 1) x entry i over the table of each gamma, computed by another program, in another
/// language, from the definition of the curve: depth 12, smoothed bend.
constexpr Golden golden[] = {
    {10, 1436974080u}, {11, 1390760992u}, {12, 1347428400u}, {13, 1306760640u}, {14, 1268461456u},
    {15, 1232377872u}, {16, 1198305264u}, {17, 1166069936u}, {18, 1135556592u}, {19, 1106580832u},
    {20, 1079101120u}, {21, 1052948224u}, {22, 1028029136u}, {23, 1004307936u}, {24, 981673760u},
    {25, 960060368u},  {26, 939403104u},  {27, 919650672u},  {28, 900738832u},  {29, 882637648u},
    {30, 865270448u},  {31, 848613520u},  {32, 832660016u},  {33, 817322816u},  {34, 802563760u},
    {35, 788375360u},  {36, 774794240u},  {37, 761664544u},  {38, 748993232u},  {39, 736823024u},
    {40, 725065072u},
};

quint32 weightedSum(const QVector<int> &table)
{
    quint32 sum = 0;
    for (int i = 0; i < table.size(); ++i)
        sum += quint32(i + 1) * quint32(table[i]);
    return sum;
}

} // namespace

class TestGammaCurve : public QObject
{
    Q_OBJECT
private slots:
    void everyGammaOfTheMenu()
    {
        for (const Golden &g : golden)
            QCOMPARE(weightedSum(CountGammaCurve(g.tenths / 10.0, 12, 1.0, 0)), g.sum);
    }

    void outOfRange()
    {
        const QVector<int> standard = CountGammaCurve(2.8, 12, 1.0, 0);
        QCOMPARE(CountGammaCurve(0.9, 12, 1.0, 0), standard);
        QCOMPARE(CountGammaCurve(4.1, 12, 1.0, 0), standard);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.1, 0), standard);
        QCOMPARE(CountGammaCurve(2.8, 12, -0.5, 0), standard);
    }

    void depthRatioAndLimit()
    {
        QCOMPARE(CountGammaCurve(1.0, 16, 1.0, 0).last(), 65535);
        QCOMPARE(CountGammaCurve(1.0, 16, 1.0, 0)[128], int(65535 * (128 / 255.0) + 0.5));
        QCOMPARE(CountGammaCurve(1.0, 24, 1.0, 0).last(), 65535);
        QCOMPARE(CountGammaCurve(1.0, 20, 1.0, 0).last(), 65535);
        QCOMPARE(CountGammaCurve(1.0, 8, 1.0, 0).last(), 65280);  // 8 bits of 16 are left
        QCOMPARE(CountGammaCurve(1.0, 12, 0.5, 0).last(), 32752); // half, cut to 12 bits
        QCOMPARE(CountGammaCurve(2.2, 12, 1.0, 40000).last(), 40000);
        QCOMPARE(CountGammaCurve(2.2, 12, 1.0, 40000)[100], CountGammaCurve(2.2, 12, 1.0, 0)[100]);
    }

    void firstStepCanBeRaised()
    {
        const QVector<int> flat = CountGammaCurve(2.8, 12, 1.0, 0);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.0, LOWGRAY_Off, GRAY_Plain, 0), flat);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.0, LOWGRAY_Base18, GRAY_Plain, 0)[1], flat[1] + 64);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.0, LOWGRAY_Off, GRAY_Base18, 0)[1], flat[1] + 64);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.0, LOWGRAY_Base19, GRAY_Plain, 0)[1], flat[1] + 128);
        QCOMPARE(CountGammaCurve(2.8, 12, 1.0, LOWGRAY_Base19, GRAY_Plain, 0)[2], flat[2]);
        QCOMPARE(GetGammaBaseParameters(0, LOWGRAY_Base18, GRAY_Plain), 0);
        QCOMPARE(GetGammaBaseParameters(17, LOWGRAY_Base18, GRAY_Plain), 0);
    }
};

FPD_TEST_APPLESS(TestGammaCurve)
#include "tst_gammacurve.moc"
