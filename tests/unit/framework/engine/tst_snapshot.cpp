// What the flash snapshot says at start where its fields hold something unusual or can not be read, and what
// the home screen makes of it.

#include "framework/engine/presets.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/caseline.h"

using namespace VASK;

namespace
{
QString field(const char *address, int value)
{
    return QString("flash %1 %2%3")
        .arg(address)
        .arg(value & 0xff, 2, 16, QChar('0'))
        .arg(value >> 8, 2, 16, QChar('0'));
}
/// Output and inputs as they come to the home screen.
const QString signalsAre = "ScreenBrightness=42 Sync_Source=1 MainLayer_InputSource=0; " +
                           field("f603", 1920) + "; " + field("f605", 1080) + "; " + field("f607", 5994) +
                           "; input 0 97 3 1920 1080 40000 1; input 1 98 3 1920 1080 16667; "
                           "input 8 254 3 1920 1080 20000; ";
const QString isThere = "of Layout:; bright 42%; sync HDMI2; screen ";
/// One that the device keeps, from 1, with a name of these bytes.
QString preset(int number, const QByteArray &name)
{
    const int record = 0x3000 + 0x1200 * (number - 1);
    return QString("flash %1 a8; flash %2 %3; ")
        .arg(record + 10, 0, 16)
        .arg(record + 512, 0, 16)
        .arg(QString(name.toHex()));
}
const QString meetingRoom = QString::fromUtf8("会议室");
const QString icon = "/Icon=:/resource/image/sceneSetting/";

const CaseLines table{
    {"unknown pattern is a colour", "", "flash 2005 33; start",
     "of Layout:; leaves TestPatternFamily=0 Test_PureColor=5"},
    {"kept HDCP is not overwritten", "HDCPMemory=0 HDCP=0", "flash 15630 00; start",
     "of Layout:; leaves HDCP=0"},
    {"frame sequential is not doubled", signalsAre + "flash 2400 a8; flash 2402 18; Sync_Status=0", "start",
     isThere + "1920x1080@59.94; leaves OutputRate=5994"},
    {"follows its source", signalsAre + "Sync_Status=1", "start",
     isThere + "1920x1080@60; leaves OutputRate=6000"},
    {"sending card, free", signalsAre + "flash 2400 a8; flash 2402 28; Sync_Status=0 WorkMode=2", "start",
     isThere + "1920x1080i@25; leaves OutputRate=2500"},
    {"sending card, synchronised", signalsAre + "Sync_Status=1 WorkMode=2", "start",
     isThere + "1920x1080@50; leaves OutputRate=5000"},
    {"layers",
     "MainLayer_{Status=1 InputSource=1} PIP1_Status=0 PIP2_{Status=1 InputSource=2}; "
     "input 1 98 3 1920 1080 20000; input 2 105 1 800 600 16667",
     "flash 0 00; start",
     "of Layout:; name HDMI2; picture 1920x1080@50; visible labWindowOffDisplay_2; name3 DVI; picture3 No "
     "Signal"},
    // The copy of the first was never ended.
    {"presets", "Preset1-",
     preset(1, "Evening") + preset(3, QByteArray::fromHex("bbe1d2e9cad2")) + preset(5, QByteArray(40, 'x')) +
         preset(10, "") + "flash 2f10 02; start",
     "of Layout:; leaves PresetInUse=2 Preset1+ Preset1=Saved Preset1/Tag=Evening Preset1" + icon +
         "sceneunused.png Preset2=Blank Preset2/Tag=Preset2 Preset3=Used Preset3/Tag=" + meetingRoom +
         " Preset3" + icon + "sceneused.png Preset5=Saved Preset5/Tag=" + QString(19, 'x') +
         " Preset10=Saved Preset10/Tag=Preset10"},
    // Three tries for the first block.
    {"unreadable block keeps what was read", "flash 209f 21; start; fault 3",
     "flash 209f 2c; flash 2f10 07; start", "of Layout:; leaves Audio_Volume=33 PresetInUse=7"},
};
} // namespace

class TestSnapshot : public CaseTest
{
    Q_OBJECT
    CaseLines lines() const override { return table; }

private slots:
    /// Presets, address and name are read from the flash anew: of one that ends too early they stay as they
    /// are.
    void cutImageTakesNothingAway()
    {
        put(0x2F10, 3, 1); // another one is in use
        put(0x3000 + 10, 168, 1);
        for (int part : {0, 1, 2, 3})
            put(0x2006 + 2 * part, part == 0 ? 10 : part, 2);
        put(0xD14000, 154, 1);
        put(0xD14100, 'n', 2);
        start();
        const QString preset = m_rig->value(MENU_Preset1);
        QCOMPARE(preset, QString("Saved"));
        const QString address = m_rig->value(MENU_Net_IPAddress);
        QCOMPARE(address, QString("10.1.2.3"));

        QVERIFY(QFile::resize(m_rig->statePath(hostlink::flashFile), 0x2010));
        start();
        m_rig->set(MENU_Net_IPAddress, "10.9.9.9");
        m_rig->engine->UpdateIp();
        QCOMPARE(m_rig->value(MENU_Preset1), preset);
        QVERIFY(m_rig->engine->presets().isNamed(0));
        QCOMPARE(m_rig->value(MENU_Net_IPAddress), address);
        QCOMPARE(m_rig->home->deviceName(), QString("n"));
    }

    void deviceName_data()
    {
        addColumns<QString, QString>({"name", "shown"});
        addRow("beyond the first plane", QString::fromUtf8("𠀋屏"), QString::fromUtf8("𠀋屏"));
        addRow("full field", QString(40, 'n'), QString(32, 'n'));
    }
    void deviceName()
    {
        QFETCH(QString, name);
        put(0xD14000, 154, 1);
        for (int i = 0; i < qMin(name.size(), 32); ++i)
            put(0xD14100 + 2 * i, name.at(i).unicode(), 2);
        start();
        QTEST(m_rig->home->deviceName(), "shown");
    }

private:
    /// Little-endian bytes at an address of the image.
    void put(int address, int value, int width)
    {
        QByteArray bytes;
        for (int i = 0; i < width; ++i)
            bytes += char(value >> 8 * i);
        m_rig->writeFlash(address, bytes);
    }
    void start()
    {
        m_rig->engine->InitReadParaFrom20M();
        m_rig->engine->InitializeMainWindow();
        m_rig->settle();
    }
};

FPD_TEST(TestSnapshot)
#include "tst_snapshot.moc"
