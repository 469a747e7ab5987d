// What the device's parameter flash holds is what the panel shows after a start: every field of the memory
// map, in three images of the flash that differ in all of them.
#include "client/lcdtext.h"
#include "menu/menutypes.h"
#include "tests/system/systemtest.h"
#include "tests/testprogram.h"

using namespace VASK;

namespace
{
constexpr int imageCount = 3;
constexpr int rowsOfTheLcd = 6;

/// Bytes of a field in an image, and what the panel makes of them; no bytes: the field is as it was.
struct State {
    QByteArray bytes;
    QString value;
};

struct Field {
    QString what;
    quint32 address;
    ENUM_MenuIndex item;
    State states[imageCount];
    QString field = "Value";
};

/// Little-endian.
QByteArray bytes(qint64 value, int width)
{
    QByteArray result;
    for (int i = 0; i < width; ++i)
        result += char(value >> 8 * i);
    return result;
}
/// Text: what the panel shows, if not the number itself.
State number(int value, int width, const QString &text)
{
    return {bytes(value, width), text.isNull() ? QString::number(value) : text};
}
State u8(int value, const QString &text = {})
{
    return number(value, 1, text);
}
State u16(int value, const QString &text = {})
{
    return number(value, 2, text);
}
State i32(int value)
{
    return {bytes(value, 4), QString::number(value)};
}
State delay(int us)
{
    return {bytes(qint64(us) * 125, 3), QString::number(us)};
}
/// An address of four numbers of that many bytes each; text: what the panel shows, if not that.
State address(const QString &dotted, int width, const QString &text = QString())
{
    State state{{}, text.isEmpty() ? dotted : text};
    for (const QString &number : dotted.split('.'))
        state.bytes += bytes(number.toInt(), width);
    return state;
}
/// Bytes that this image does not hold, and the value that the item has nevertheless.
State kept(const QString &text)
{
    return {{}, text};
}
ENUM_MenuIndex raised(ENUM_MenuIndex first, int distance)
{
    return ENUM_MenuIndex(first + distance);
}
Field field(const QString &what, quint32 address, ENUM_MenuIndex item, const State &first,
            const State &second, const State &third)
{
    return {what, address, item, {first, second, third}};
}

QVector<Field> deviceBlock()
{
    return {
        field("transition", 0x2001, MENU_MainLayerTransition, u8(0, "1"), u8(1, "0"), u8(255, "1")),
        field("transition time", 0x2002, MENU_TransitionDuration, u16(120, "1.2"), u16(70, "0.7"),
              u16(200, "2.0")),
        field("pure colour", 0x2005, MENU_Test_PureColor, u8(0x03, "3"), kept("5"), kept("5")),
        field("grid", 0x2005, MENU_Test_Grid, kept("0"), u8(0x12, "2"), kept("0")),
        field("gradient", 0x2005, MENU_Test_Gradient, kept("0"), kept("0"), u8(0x24, "4")),
        field("DHCP", 0x201A, MENU_Net_NetMode, u8(0, "0"), u8(168, "0"), u8(1, "0")),
        field("address", 0x2006, MENU_Net_IPAddress, address("10.1.2.200", 2),
              address("10.9.9.9", 2, "10.1.2.200"), address("172.16.9.33", 2)),
        field("mask", 0x200E, MENU_Net_SubnetMask, address("255.255.0.0", 2),
              address("255.0.0.0", 2, "255.255.0.0"), address("255.255.240.0", 2)),
        field("gateway", 0x2016, MENU_Net_Gateway, address("10.1.2.3", 1), address("10.9.9.1", 1, "10.1.2.3"),
              address("172.16.9.1", 1)),
        field("FTB time", 0x2033, MENU_FTBDuration, u16(130, "1.3"), u16(40, "0.4"), u16(0, "0.0")),
        field("test brightness", 0x2042, MENU_Test_Brightness, u8(2), u8(1), u8(4)),
        field("test spacing", 0x2043, MENU_Test_Spacing, u8(7), u8(2), u8(8)),
        field("test speed", 0x2044, MENU_Test_Speed, u8(1), u8(2), u8(4)),
        field("audio output", 0x209E, MENU_Audio_AudioOutput, u8(2), u8(240, "4"), u8(3)),
        field("volume", 0x209F, MENU_Audio_Volume, u8(33), u8(0), u8(100)),
    };
}

/// The area keeps what it was while splicing is off.
QVector<Field> splicing()
{
    return {
        field("splicing", 0x2053, MENU_ImageMosaic_Status, u8(0), u8(168, "1"), u8(1, "0")),
        field("total width", 0xE810 + 13, MENU_ImageMosaic_TotalHPixels, kept("128"), i32(3840),
              kept("3840")),
        field("total height", 0xE810 + 17, MENU_ImageMosaic_TotalVPixels, kept("128"), i32(2160),
              kept("2160")),
        field("area width", 0x12618, MENU_ImageMosaic_LoadAreaWidth, u16(700, "128"), u16(800),
              u16(900, "800")),
        field("area height", 0x1261A, MENU_ImageMosaic_LoadAreaHeight, u16(500, "128"), u16(600),
              u16(700, "600")),
        field("area X", 0x12610, MENU_ImageMosaic_LoadAreaInitialX, kept("0"), i32(5), kept("5")),
        field("area Y", 0x12614, MENU_ImageMosaic_LoadAreaInitialY, kept("0"), i32(6), kept("6")),
    };
}

QVector<Field> stereo()
{
    return {
        field("3D", 0x2400, MENU_Mode3D_Status, u8(0), u8(1, "0"), u8(168, "1")),
        field("eye priority", 0x2401, MENU_Mode3D_EyePriority, u8(50, "1"), u8(100, "0"), u8(50, "1")),
        field("3D format", 0x2402, MENU_Mode3D_Format, u8(8, "1"), u8(24, "2"), u8(40, "0")),
        field("start side by side", 0x2403, MENU_RightEyeStartSide, u16(1000), u16(1010), u16(1020)),
        field("start top and bottom", 0x2405, MENU_RightEyeStartTop, u16(1100), u16(1110), u16(1120)),
        field("start in force", 0x2403, MENU_Mode3D_RightEyeStart, kept("1100"), kept("1100"), u16(1020)),
        field("emitter", 0x2407, MENU_Mode3D_ThirdPartyEmitter, u8(1), u8(0), u8(1)),
        field("signal delay", 0x2408, MENU_Mode3D_SignalDelayTime, delay(8000), delay(65535), delay(900)),
    };
}

/// The output's own size and rate are seen at home; here what the lists make of both outputs.
QVector<Field> output()
{
    return {
        field("output mode", 0x2F00, MENU_OutputMode, u8(0), u8(1), u8(0)),
        field("width", 0xF603, MENU_END, u16(1280), u16(1920), u16(1440)),
        field("height", 0xF605, MENU_END, u16(720), u16(1080), u16(900)),
        field("rate", 0xF607, MENU_OutputFrameRate, u16(5994, "8"), u16(5000, "7"), u16(3000, "4")),
        field("software's width", 0xF60A, MENU_Output_Resolution, u16(1024, "0"), u16(1366, "3"),
              u16(1600, "5")),
        field("software's height", 0xF60C, MENU_Output_Resolution, u16(768, "0"), u16(768, "3"),
              u16(1200, "5")),
        field("software's rate", 0xF60E, MENU_Output_FrameRate, u16(7500, "4"), u16(5994, "1"),
              u16(4800, "0")),
    };
}

/// No two of them change alike.
QVector<Field> inputs()
{
    QVector<Field> fields{
        field("backup", 0x10600, MENU_InputBackup_Status, u8(0x5B, "1"), u8(0x5A, "0"), u8(0x5B, "1")),
        field("backup of HDMI", 0x10612, MENU_InputBackup_HDMI1, u8(254, "1"), u8(255, "0"), u8(0, "1")),
        field("backup of DVI", 0x10616, MENU_InputBackup_DVI1, u8(255, "0"), u8(254, "1"), u8(0, "1")),
        field("backup of the mosaic", 0x1061A, MENU_InputBackup_Mosaic, u8(3, "1"), u8(254, "1"),
              u8(255, "0")),
        field("HDCP", 0x15630, MENU_HDCP, u8(0, "1"), u8(1, "0"), u8(2, "1")),
    };
    for (int input = 0; input < 8; ++input) {
        // HDMI brings its own sound with the 1, the others bring none with the 0.
        const bool hdmi = input < 2;
        Field audio{QString("audio of input %1").arg(input),
                    0x15631 + 2u * quint32(input),
                    raised(MENU_AudioInput_HDMI1, input),
                    {}};
        for (int image = 0; image < imageCount; ++image)
            audio.states[image] =
                input >> image & 1 ? u8(hdmi ? 9 * image : 1 + input, "1") : u8(hdmi ? 1 : 0, "0");
        fields << audio;
    }
    return fields;
}

QVector<Field> pictures()
{
    QVector<Field> fields;
    for (int input = 0; input < 5; ++input) {
        const QString name = QString(" of input %1").arg(input);
        const quint32 record = 0xEA00 + 20u * quint32(input);
        const auto bit = [input](int image) { return (input + 1) >> image & 1; };
        const ENUM_MenuIndex first =
            input == 4 ? MENU_SDI_Brightness : raised(MENU_HDMI1_Brightness, input * STRIDE_InputPicture);
        fields
            << field("brightness" + name, record + 1, first, u8(10 + input), u8(30 + input), u8(100))
            << field("contrast" + name, record + 2, raised(first, 1), u8(15 + input), u8(35 + input), u8(0))
            << field("saturation" + name, record + 4, raised(first, 2), u8(20 + input), u8(40 + input), u8(1))
            << field("hue" + name, record + 5, raised(first, 3), u16(90 + input), u16(-90 - input), u16(180));
        if (input < 4)
            fields << field("full range" + name, record + 19,
                            raised(MENU_HDMI1_LimitedtoFull, input * STRIDE_Input), u8(bit(0)), u8(bit(1)),
                            u8(bit(2)));
    }
    return fields;
}

/// Every layer shows another input in every image; the crop is that of the layer's own input.
QVector<Field> crops()
{
    QVector<Field> fields;
    for (int layer = 0; layer < 3; ++layer) {
        const ENUM_MenuIndex first = raised(MENU_MainLayerCrop_Status, layer * STRIDE_Crop);
        Field source{
            QString("input of layer %1").arg(layer), 0xE810 + 48u * quint32(layer) + 2, MENU_END, {}};
        for (int image = 0; image < imageCount; ++image) {
            const int input = (image + layer) % 4;
            source.states[image] = u8(input);
            const auto add = [&](const char *what, int offset, int item, const State &state) {
                Field field{QString("crop %1 of layer %2").arg(what).arg(layer),
                            0xEE14 + quint32(132 * layer + 16 * input + offset),
                            raised(first, item),
                            {}};
                field.states[image] = state;
                fields << field;
            };
            const int own = 10 * layer + image;
            add("status", 2, 0, u8((image + layer + 1) % 2));
            add("X", 3, 3, u16(100 + own));
            add("Y", 5, 4, u16(200 + own));
            add("width", 7, 1, u16(800 + own));
            add("height", 9, 2, u16(600 + own));
        }
        fields << source;
    }
    return fields;
}

/// Each preset is full in one image at least and empty in one.
QVector<Field> presets()
{
    QVector<Field> fields{{"preset in use", 0x2F10, MENU_END, {u8(3), u8(255), u8(0)}}};
    for (int preset = 0; preset < 10; ++preset) {
        const quint32 record = 0x3000 + 0x1200u * quint32(preset);
        const ENUM_MenuIndex item = raised(MENU_Preset1, preset);
        Field stored{QString("preset %1").arg(preset + 1), record + 10, item, {}};
        Field name{QString("name of preset %1").arg(preset + 1), record + 512, item, {}, "Tag"};
        for (int image = 0; image < imageCount; ++image) {
            const bool full = (preset + image) % 2 == 1;
            const bool used = (image == 0 && preset == 3) || (image == 2 && preset == 0);
            const QString text = QString("%1-%2 show").arg(preset + 1).arg(image + 1);
            stored.states[image] = u8(full ? 168 : 0, used ? "Used" : full ? "Saved" : "Blank");
            name.states[image] = {text.toLatin1() + QByteArray(19 - text.size(), '\0'),
                                  full ? text : QString("Preset%1").arg(preset + 1)};
        }
        fields << stored << name;
    }
    return fields;
}

QVector<Field> deviceName()
{
    const QString names[imageCount] = {"Hidden", "Hall 7", QString::fromUtf8("大厅屏幕")};
    Field mark{"device has a name", 0xD14000, MENU_END, {u8(0), u8(154), u8(154)}};
    Field name{"name of the device", 0xD14100, MENU_END, {}};
    for (int image = 0; image < imageCount; ++image)
        for (int i = 0; i < 32; ++i)
            name.states[image].bytes += bytes(names[image].data()[qMin(i, names[image].size())].unicode(), 2);
    return {mark, name};
}

const QVector<Field> &fields()
{
    static const QVector<Field> all = deviceBlock() + splicing() + stereo() + output() + inputs() +
                                      pictures() + crops() + presets() + deviceName();
    return all;
}
} // namespace

class TestStorySnapshot : public SystemTest
{
    Q_OBJECT
protected:
    void begin() override
    {
        QVERIFY(m_panel.powerDevice());
        QVERIFY(m_panel.ask({"reports", "off"}).ok);
        m_walk.speak("fpd_ZH");
    }

    void leave() override { m_panel.ask({"panel", "stop"}); }

private slots:
    void panelComesUpWithTheDevicesState_data()
    {
        const DataRows<int, QString, QString, QString> row{"image", "name", "resolution", "pattern"};
        row("own output, no name", 0, "10.1.2.200", "1280x720@59.94", "03");
        row("output of the software, named", 1, "Hall 7", "1366x768@59.94", "12");
        row("3D, which doubles the rate", 2, "大厅屏幕", "1440x900@60", "24");
    }
    void panelComesUpWithTheDevicesState()
    {
        const auto [image, name, resolution] =
            fetched<int, QString, QString>({"image", "name", "resolution"});
        QFETCH(QString, pattern);
        QVERIFY(startOn(image));
        QStringList wrong = wrongItems(image);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QCOMPARE(m_panel.writes(), QStringList()); // what fits is not corrected
        QVERIFY(m_panel.waitFor(name, QRect(160, 0, 160, 26)));
        QVERIFY(m_panel.waitFor(resolution, QRect(56, 136, 180, 28)));

        // The key starts the device's own pattern; the page would do it, too.
        QVERIFY(m_walk.press(keys::Test));
        QTRY_COMPARE_WITH_TIMEOUT(m_panel.writes().filter("13000004").value(0), "13000004 00 06" + pattern,
                                  5000);
        QVERIFY(m_walk.home());

        // Each page is looked at in one of the images.
        const QList<QList<ENUM_MenuIndex>> pages{
            {MENU_DisplayControl},
            {MENU_DisplayControl, MENU_TestPattern},
            {MENU_PresetSettings},
            {MENU_InputSettings, MENU_HDMI1},
            {MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_InputColor},
            {MENU_InputSettings, MENU_HDMI2, MENU_HDMI2_InputColor},
            {MENU_InputSettings, MENU_DVI, MENU_DVI_InputColor},
            {MENU_InputSettings, MENU_SDI, MENU_SDI_InputColor},
            {MENU_AdvancedSetting},
            {MENU_AdvancedSetting, MENU_HDMIOutput},
            {MENU_AdvancedSetting, MENU_ScreenSetting, MENU_MoreSettings},
            {MENU_AdvancedSetting, MENU_Audio},
            {MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Inputs},
            {MENU_CommunicationSettings, MENU_NetworkSettings},
        };
        for (int page = image; page < pages.size(); page += imageCount)
            wrong += wrongRows(image, pages.at(page));
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }

    void refusedAddressGivesWayToTheFlash()
    {
        QVERIFY(startOn(0));
        const QList<ENUM_MenuIndex> page{MENU_CommunicationSettings, MENU_NetworkSettings};
        QVERIFY(m_walk.go(page));
        QVERIFY(m_walk.enter(MENU_Net_IPAddress));
        QVERIFY(m_walk.turn(Right, 1)); // 11.1.2.200, which the gateway 10.1.2.3 does not reach
        QVERIFY(m_walk.press(keys::Esc));
        QVERIFY(waitUntilStored(MENU_Net_IPAddress, "11.1.2.200"));
        QVERIFY(clearWrites());
        QVERIFY(m_walk.enter(MENU_Net_Apply));
        QVERIFY(m_walk.asked());
        QVERIFY(waitUntilStored(MENU_Net_IPAddress, "10.1.2.200"));
        QCOMPARE(wrongRows(0, {}), QStringList());
        QCOMPARE(m_panel.writes(), QStringList());
    }

private:
    /// Starts the panel on a flash with this image.
    bool startOn(int image)
    {
        QList<QStringList> writes;
        for (const Field &field : fields())
            if (!field.states[image].bytes.isEmpty())
                writes << QStringList{"flash", "write", QString::number(field.address, 16),
                                      field.states[image].bytes.toHex()};
        bool done = m_panel.askAll(writes) && clearWrites();
        done = done && m_panel.start() && m_panel.ask({"wait", "ready"}).ok;
        // A key has the store written, whole; the volume is another one in every image.
        const QString volume =
            std::find_if(fields().begin(), fields().end(),
                         [](const Field &field) { return field.item == MENU_Audio_Volume; })
                ->states[image]
                .value;
        return done && m_walk.openMenu() && m_walk.home() && waitUntilStored(MENU_Audio_Volume, volume);
    }

    /// What is wrong, a line a thing.
    QStringList wrongItems(int image)
    {
        QStringList wrong;
        for (const Field &field : fields()) {
            const QString wanted = field.states[image].value;
            if (field.item == MENU_END || wanted.isEmpty())
                continue;
            const QString stored = m_panel.stored(field.item, field.field);
            if (stored != wanted)
                wrong << QString("%1 (%2): %3, not %4").arg(field.what).arg(field.item).arg(stored, wanted);
        }
        return wrong;
    }

    /// Of the page at the end of the path, or of the open one.
    QStringList wrongRows(int image, const QList<ENUM_MenuIndex> &path)
    {
        const QString name = path.isEmpty() ? QString("page") : g_MenuXmlConfig.value(path.last()).tag;
        if (!path.isEmpty() && !m_walk.go(path))
            return {"no way to " + name};
        QStringList wrong;
        int seen = 0;
        const ST_MenuConfig page = m_walk.table();
        for (int position = 0; position < page.rows; ++position) {
            const st_MenuItemInfo row = page.rowsMap.value(position);
            for (const Field &field : fields()) {
                if (field.item != row.menuIndex || field.states[image].value.isEmpty() ||
                    row.controlType == TYPE_ICOCOMBOX)
                    continue;
                ++seen;
                const QString text = shownText(field, image);
                if (position >= rowsOfTheLcd)
                    m_walk.moveTo(row.menuIndex);
                // Where one row is wrong the next is not waited for.
                const auto shows = [&] { return rowShows(row, position, text); };
                if (wrong.isEmpty() ? !m_panel.waitUntil(shows) : !shows())
                    wrong << QString("%1, %2: not %3").arg(name, field.what, text);
            }
        }
        if (!seen)
            wrong << name + " has no such row";
        m_walk.home();
        return wrong;
    }

    bool rowShows(const st_MenuItemInfo &row, int position, const QString &text)
    {
        constexpr int rowHeight = 36, titleHeight = 24, width = 320;
        // Behind the last row of the LCD the page has moved, so that the row stands there.
        const QRect area(0, titleHeight + rowHeight * qMin(position, rowsOfTheLcd - 1), width, rowHeight);
        if (row.controlType != TYPE_IPADJUST)
            return m_panel.shows(text, area);
        constexpr int firstNumber = 134, numberWidth = 45;
        QFont font(QString::fromUtf8("宋体"));
        font.setPixelSize(16);
        const QImage lcd = m_panel.screen();
        for (int number = 0; number < 4; ++number) {
            const QRect box(firstNumber + number * numberWidth, area.top(), numberWidth, rowHeight);
            if (lcdtext::find(lcd, text.section('.', number, number), font, box).isEmpty())
                return false;
        }
        return true;
    }

    /// What the row of a page shows: an option's text, or the value itself.
    QString shownText(const Field &field, int image) const
    {
        // The rates are those of the resolution.
        static const QStringList rates{"75", "59.94", "48"};
        if (field.item == MENU_Output_FrameRate)
            return rates.at(image);
        const QString value = field.states[image].value;
        return m_walk.text(g_MenuXmlConfig.value(field.item).params.value(value, value));
    }
};

FPD_TEST(TestStorySnapshot)
#include "tst_storysnapshot.moc"
