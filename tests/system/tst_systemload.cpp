// The panel while the device talks without a break and somebody presses keys: two threads work on one state.
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
QString bytes(std::initializer_list<int> values)
{
    QByteArray data;
    for (int value : values)
        data += char(value);
    return data.toHex();
}

struct Pushed {
    const char *address;
    QString data;
    const char *device = "0";
};

/// A report of every family that reaches the home screen, the rows or the LEDs, with values that change from
/// round to round.
QList<Pushed> reportsOf(int round)
{
    const int bit = round & 1;
    const int byte = round * 37 & 0xFF;
    return {
        // An input record: HDMI1, its signal coming and going.
        {"13010001", bytes({97, 0, 3 * bit, 0x80, 7, 0x38, 4, 0x1A, 0x41}) + QByteArray(32, '0')},
        {"13040003", bytes({0x80, 7, 0x38, 4, 0x70 - bit, 0x17})},
        {"02000001", bytes({byte}), "1"},
        {"0200001F", bytes({byte})},
        {"02000018", bytes({0x80 * bit, 0, 0x80, 0})},
        {"0200001E", bytes({byte})},
        {"020001D7", bytes({bit})},
        {"020001F2", bytes({byte})},
        {"13000006", bytes({192, 0, 168, 0, 0, 0, byte, 0, 255, 0, 255, 0, 255, 0, 0, 0, 192, 168, 0, 1})},
        {"13020010", bytes({bit, 0, round % 4, 0, 0, byte, 0, 0, 0}) + QByteArray(78, '0')},
        {"13020040", bytes({1, 0, round % 3, 1, 0, byte, 0, 0, 0}) + QByteArray(78, '0')},
        {"13024014", bytes({97, 0, bit, byte, 0, 0, 0, 0x80, 2, 0x38, 1})},
        {"13050000", bytes({0, byte % 100, 50, 0, 50, 0, 0})},
        {"1300009F", bytes({byte % 100})},
        {"1300002A", bytes({bit, 1 + round % 3})},
        {"13000004", bytes({3 + bit})},
        {"13411000", bytes({bit, 14, 0, 1}) + QByteArray(72, '0')},
        {"020001F0", bytes({byte, 0, 0, 0, 0, 0, 0, 0})},
        {"0FF00001", bytes({0})},
        {"14000000", bytes({1 + bit})},
    };
}

} // namespace

class TestSystemLoad : public SystemTest
{
    Q_OBJECT
private slots:

    void reportsWhileKeysArePressed()
    {
        constexpr int rounds = 40;
        const QStringList walk{keys::Main,   keys::Ok,   "right",  keys::Ok, "left",
                               keys::Esc,    keys::Pip1, "in1",    keys::Fn, keys::Esc,
                               keys::Preset, keys::Esc,  keys::Esc};
        for (int round = 0; round < rounds; ++round) {
            const QString key = walk[round % walk.size()];
            const QList<Pushed> reports = reportsOf(round);
            for (int i = 0; i < reports.size(); ++i) {
                QVERIFY2(push(reports[i]), reports[i].address);
                if (i % 10 == 5)
                    QVERIFY(key == "right" || key == "left" ? m_panel.turn(key == "left" ? Left : Right)
                                                            : m_panel.press(key));
            }
        }

        // Whatever was folded on the way, what the device said last is what the panel holds and shows.
        QVERIFY(push({"13000004", bytes({3})}));
        QVERIFY(push({"1300009F", bytes({42})}));
        QVERIFY(push({"02000001", bytes({255}), "1"}));
        QVERIFY(m_panel.waitUntil([this] {
            return m_panel.stored(MENU_ScreenBrightness) == "100" &&
                   m_panel.stored(MENU_Audio_Volume) == "42";
        }));
        for (int level = 0; level < 6 && !m_panel.shows("100%"); ++level) {
            QVERIFY(m_panel.press(keys::Esc));
            QTest::qWait(200);
        }
        QVERIFY(m_panel.waitFor("100%"));
    }

private:
    bool push(const Pushed &report)
    {
        return m_panel.ask({"push", report.address, report.data, "--device", report.device}).ok;
    }
};

FPD_TEST(TestSystemLoad)
#include "tst_systemload.moc"
