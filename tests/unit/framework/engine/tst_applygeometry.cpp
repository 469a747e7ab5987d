// How a layer is scaled, where it stands, and which part of its input it shows. The three layers are one:
// each rule stands for one of them, and each kind of item comes with more than one layer.

#include "caseline.h"
#include "layerrig.h"
#include "tests/testprogram.h"

using namespace VASK;

class TestApplyGeometry : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { m_rig = new LayerRig; }
    void cleanupTestCase() { delete m_rig; }
    void init() { m_rig->start(); }

    void valueIsApplied_data();
    void valueIsApplied();

private:
    LayerRig *m_rig = nullptr;
};

namespace
{
const QString free = " 2103+ 2104+ 2105+ 2106+", locked = " 2103- 2104- 2105- 2106-";
const QString memory = "3139=700 3140=500 3141=-30 3142=40 ";
const CaseLines scalingLines{
    {"pixels", "2105=11 2106=12 2103+ 2104+ 2105- 2106- 1007=0", "user 2102=1",
     "sends 2104=720 2102=1; leaves 2103=1280 2104=720 2105=11 2106=12 1007=2 2103- 2104- 2105+ 2106+"},
    {"pixels of a crop", "3006=1 3007=400 3008=300 1007=0", "user 2112=1",
     "sends 2114=300 2112=1; leaves 2113=400 2114=300 1007=2 2113- 2114- 2115+ 2116+"},
    {"pixels, PIP 2", "3012=0 3013=400", "user 2122=1",
     "sends 2124=720 2122=1; leaves 2123=1280 2123- 2126+"},
    {"pixels without a size", "2111=2 2112=1 1007=0", "user 2112=1",
     "sends 2114=1080 2112=1; leaves 2113=1920 2114=1080 1007=0"},
    {"full screen", "2100=1 2107=0 3392=9 2105=3" + free, "user 2102=0",
     "sends 2106=0 2102=0; leaves 3392=0 2103=1920 2104=1080 2105=0 2106=0" + locked},
    {"full screen, PIP 2", "3147=123", "user 2122=0",
     "sends 2126=0 2122=0; leaves 2123=1920 3147=123 2123- 2126-"},
    {"custom", memory + "2102=0" + locked, "user 2102=2",
     "sends 2106=40 2102=2; leaves 2103=700 2104=500 2105=-30 2106=40" + free},
    {"custom, PIP 1", "2112=0 3143=701 3146=41", "user 2112=2",
     "sends 2116=41 2112=2; leaves 2113=701 2113+"},
    // A sending card has no size of its own to give.
    {"custom of a card", memory + "2102=0 3210=2 2103=1920 2104=1080" + locked, "user 2102=2",
     "sends 2106=40 2102=2; leaves 2103=1920 2104=1080 2105=-30 2106=40 2103- 2104- 2105+ 2106+"},
    {"custom already", memory + "2103=900 2106=2", "user 2102=2", "sends 2102=2; leaves 2103=900 2106=2"},
    {"custom", memory + "2103=900 2106=2" + locked, "device 2102=2",
     "tells 2102=2; leaves 2103=900 2106=2" + free},
    {"custom of a card", "3210=2" + locked, "device 2102=2", "tells 2102=2; leaves 2103- 2104- 2105+ 2106+"},
    {"custom, PIP 2", "2123- 2126-", "device 2122=2", "tells 2122=2; leaves 2123+ 2126+"},
};

const CaseLines windowLines{
    {"width", "3139=111 1007=1", "user 2103=333", "sends 2103=333; leaves 2102=2 3139=333 1007=2"},
    {"height, PIP 1", "1007=1", "user 2114=333", "sends 2114=333; leaves 3144=333 1007=2"},
    {"x, PIP 2", "1007=1", "user 2125=333", "sends 2125=333; leaves 3149=333 1007=2"},
    {"y", "1007=1", "user 2106=333", "sends 2106=333; leaves 3142=333 1007=2"},
    {"start, pixel for pixel", "2102=1 3141=111 1007=1", "user 2105=333",
     "sends 2105=333; leaves 2102=1 3141=111 1007=2"},
    {"size, pixel for pixel", "2112=1 3143=111", "user 2113=333", "sends 2113=333; leaves 2112=1 3143=111"},

    // A start may be moved pixel for pixel; only a size leaves that.
    {"size, full screen", "2102=0 3139=111" + locked, "device 2103=640",
     "tells 2103=640; leaves 2102=2 3139=640" + free},
    {"start, full screen", "2112=0 3145=111 2113-", "device 2115=640",
     "tells 2115=640; leaves 2112=2 3145=640 2113+"},
    {"size, pixel for pixel", "2122=1 3148=111 2125-", "device 2124=640",
     "tells 2124=640; leaves 2122=2 3148=640 2125+"},
    {"x, pixel for pixel", "2112=1 3145=111 2113-", "device 2115=640",
     "tells 2115=640; leaves 2112=1 3145=111 2113-"},
    {"y, pixel for pixel", "2102=1 3142=111" + locked, "device 2106=640",
     "tells 2106=640; leaves 2102=1 3142=111" + locked},
    {"y, custom", "2106-", "device 2106=640", "tells 2106=640; leaves 2102=2 3142=640 2106-"},
    // What the device tells is the user's own window from then on, number by number, moved or not.
    {"size as it stands", memory + "2102=0 2103=1920 1007=1" + locked, "device 2103=1920",
     "tells 2103=1920; leaves 2102=2 3139=1920 3140=500 3141=-30 3142=40 1007=2" + free},
    {"start as it stands", memory + "2112=0 2115=0 1007=0 2113-", "device 2115=0",
     "tells 2115=0; leaves 2112=2 3145=0 1007=2 2113+"},

    {"spliced", "1040=1", "user 2103=3200", "sends 2103=3200; leaves 1041=3200"},
    {"spliced", "1040=1", "device 2104=2100", "tells 2104=2100; leaves 1042=2100"},
    {"spliced, PIP", "1040=1 1041=77", "user 2113=900", "sends 2113=900; leaves 1041=77"},
    {"not spliced", "1041=77", "user 2103=3200", "sends 2103=3200; leaves 1041=77"},
    {"sending card", "3210=2", "user 2105=5", "sends 3398= 2105=5"},
    {"sending card", "3210=2", "user 2106=6", "sends 3399= 2106=6"},
    {"sending card, size", "3210=2", "user 2103=700", "sends 2103=700"},
    {"sending card, PIP", "3210=2", "user 2115=7", "sends 2115=7"},
};

const CaseLines cropLines{
    {"on", "2112=1 3007=400 3008=300", "user 3006=1", "sends 2114=300 3006=1; leaves 2113=400 2114=300"},
    {"width while off", "2112=1 2113=900", "user 3007=400", "sends 3007=400; leaves 2113=900"},
    {"width", "2102=1 3000=1", "user 3001=400", "sends 2103=400 3001=400; leaves 2103=400"},
    // 2000 x 1624 = 3248000 pixels are the most that a PIP scales, 3250000 are too many.
    {"the last that fits", "3006=1 3007=2000 2112/1-", "user 3008=1624", "sends 3008=1624; leaves 2112/1+"},
    {"the first too large", "3006=1 3007=2000 2112/0+ 2112/1+", "user 3008=1625",
     "sends 3008=1625; leaves 2112/0+ 2112/1-"},
    {"fits, but spliced", "1040=1 3006=1 3007=2000 2112/1-", "user 3008=1624",
     "sends 3008=1624; leaves 2112/1-"},
    {"on, fits", "3013=2000 3014=1624 2122/1-", "user 3012=1", "sends 3012=1; leaves 2122/1+"},
    {"on, too large", "3013=2000 3014=1625 2122/1+", "user 3012=1", "sends 3012=1; leaves 2122/1-"},
    {"off, however large the input", "2121=3 3012=1 2122/1-", "user 3012=0", "sends 3012=0; leaves 2122/1+"},
    {"off, but spliced", "1040=1 3012=1 2122/1-", "user 3012=0", "sends 3012=0; leaves 2122/1-"},
};

const CaseLines &allLines()
{
    static const CaseLines lines = scalingLines + windowLines + cropLines;
    return lines;
}
} // namespace

void TestApplyGeometry::valueIsApplied_data()
{
    addCaseLines(allLines());
}

void TestApplyGeometry::valueIsApplied()
{
    QFETCH(int, row);
    runCaseLine(*m_rig, allLines().at(row));
}

FPD_TEST(TestApplyGeometry)
#include "tst_applygeometry.moc"
