// What the rows of the inputs send: picture, range, protection, sound.
#include "tests/system/frames/framedrive.h"
#include "tests/testprogram.h"

#include <QElapsedTimer>

using namespace VASK;
using frames::le;
using frames::path;
using frames::twice;

namespace
{
using Path = QList<ENUM_MenuIndex>;

struct Input {
    const char *name;
    ENUM_MenuIndex page;
    ENUM_MenuIndex colour;
    ENUM_MenuIndex brightness; ///< contrast, saturation, hue and reset follow
    int number;                ///< among all inputs: the record of its values
    int record;                ///< of its picture as a whole
    const char *code;
};
constexpr Input inputs[] = {
    {"HDMI 1: ", MENU_HDMI1, MENU_HDMI1_InputColor, MENU_HDMI1_Brightness, 0, 0, "11"},
    {"HDMI 2: ", MENU_HDMI2, MENU_HDMI2_InputColor, MENU_HDMI2_Brightness, 1, 1, "12"},
    {"DVI: ", MENU_DVI, MENU_DVI_InputColor, MENU_DVI_Brightness, 2, 2, "00"},
    {"SDI: ", MENU_SDI, MENU_SDI_InputColor, MENU_SDI_Brightness, 3, 4, "30"},
};

QString picture(int record, int offset, const QString &bytes)
{
    constexpr quint32 firstRecord = 0x13050000;
    constexpr int recordBytes = 20;
    return QString("%1 00 %2").arg(firstRecord + quint32(recordBytes * record + offset), 8, 16).arg(bytes);
}

void addPicture(QVector<NamedFrames> &lines, const Input &input)
{
    const auto add = [&](const char *what, int place, const QString &keys, const QStringList &sent) {
        const Path path = {MENU_InputSettings, input.page, input.colour,
                           ENUM_MenuIndex(input.brightness + place)};
        lines.append({input.name + QByteArray(what), path, keys, sent});
    };
    add("brightness", 0, "R4 ok", twice(picture(input.number, 1, "36")));
    add("contrast", 1, "L5 ok", twice(picture(input.number, 2, "2d")));
    add("saturation", 2, "R50 ok", twice(picture(input.number, 4, "64")));
    add("hue", 3, "L3 esc", twice(picture(input.number, 5, "fdff")));
    add("reset, refused", 4, "no", {});
    add("reset", 4, "yes",
        {picture(input.record, 0, input.code + QString("32320032") + QString("00").repeated(15))});
    add("hue again", 3, "R90 ok", twice(picture(input.number, 5, "5a00")));
}

Path sound(ENUM_MenuIndex row)
{
    return {MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Inputs, row};
}
} // namespace

class TestFramesInputs : public FramesTest
{
    Q_OBJECT
    QVector<NamedFrames> table() const override
    {
        QVector<NamedFrames> lines;
        for (const Input &input : inputs)
            addPicture(lines, input);

        const QVector<NamedFrames> others{
            {"HDMI 1: full range", path(MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_LimitedtoFull), "r1 ok",
             "13050013 00 01"},
            {"HDMI 1: limited", path(MENU_InputSettings, MENU_HDMI1, MENU_HDMI1_LimitedtoFull), "r1 ok",
             "13050013 00 00"},
            {"HDMI 2: full range", path(MENU_InputSettings, MENU_HDMI2, MENU_HDMI2_LimitedtoFull), "r1 ok",
             "13050027 00 01"},
            {"DVI: full range", path(MENU_InputSettings, MENU_DVI, MENU_DVI_LimitedtoFull), "r1 ok",
             "1305003b 00 01"},

            // The registers hold the opposite sense.
            {"protection on", path(MENU_AdvancedSetting, MENU_HDCP), "r1 ok",
             "13019004 00 00, 13019014 00 00, 13019024 00 00, 13019034 00 00"},
            {"protection off", path(MENU_AdvancedSetting, MENU_HDCP), "r1 ok",
             "13019004 00 01, 13019014 00 01, 13019024 00 01, 13019034 00 01"},

            {"sound of PIP 1", path(MENU_AdvancedSetting, MENU_Audio, MENU_Audio_AudioOutput), "r1 ok",
             "1300009e 00 02"},
            {"sound of the line", path(MENU_AdvancedSetting, MENU_Audio, MENU_Audio_AudioOutput), "r2 ok",
             "1300009e 00 f0"},
            {"no sound", path(MENU_AdvancedSetting, MENU_Audio, MENU_Audio_AudioOutput), "r1 ok",
             "1300009e 00 00"},
            {"volume", path(MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume), "R9 ok",
             twice("1300009f 00 3b")},
            // Not held back: each step arrives.
            {"volume, step by step", path(MENU_AdvancedSetting, MENU_Audio, MENU_Audio_Volume), "l3 ok",
             "1300009f 00 3a, 1300009f 00 39, 1300009f 00 38, 1300009f 00 38"},
            // HDMI has a sound of its own, the others have none.
            {"HDMI 1: line", sound(MENU_AudioInput_HDMI1), "r1 ok", "13019005 00 02"},
            {"HDMI 1: own sound", sound(MENU_AudioInput_HDMI1), "r1 ok", "13019005 00 01"},
            {"HDMI 2: line", sound(MENU_AudioInput_HDMI2), "r1 ok", "13019015 00 02"},
            {"DVI: line", sound(MENU_AudioInput_DVI), "r1 ok", "13019025 00 02"},
            {"DVI: none", sound(MENU_AudioInput_DVI), "r1 ok", "13019025 00 00"},
            {"SDI: line", sound(MENU_AudioInput_SDI), "r1 ok", "13019045 00 02"},
        };
        return lines + others;
    }

private slots:
    void aFastTurnIsThinnedOut()
    {
        const Input &hdmi1 = inputs[0];
        QVERIFY(m_drive.reach({MENU_InputSettings, hdmi1.page, hdmi1.colour, hdmi1.brightness}));
        QElapsedTimer turning;
        turning.start();
        QVERIFY(m_walk.turn(Right, 30));
        const QStringList writes = m_drive.sent(2);
        // The first step at once, then one in 100 ms at most, and the last step in any case.
        constexpr int heldMs = 100;
        QVERIFY2(writes.size() >= 2 && writes.size() <= 2 + turning.elapsed() / heldMs,
                 qPrintable(writes.join('\n')));
        QCOMPARE(writes.first(), picture(hdmi1.number, 1, le(51, 1)));
        QCOMPARE(writes.last(), picture(hdmi1.number, 1, le(80, 1)));
        QVERIFY(m_walk.press(keys::Ok));
        QCOMPARE(m_drive.sent(writes.size() + 1).mid(writes.size()),
                 QStringList{picture(hdmi1.number, 1, le(80, 1))});
    }
};

FPD_TEST(TestFramesInputs)
#include "tst_framesinputs.moc"
