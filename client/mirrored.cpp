#include "client/mirrored.h"

#include "client/names/itemnames.h"
#include "client/panel.h"
#include "menu/itemindex.h"

#include <QRegularExpression>
#include <QVector>

using namespace VASK;

namespace
{
using Words = QMap<QString, QString>;

struct Row {
    int item;
    QString line; ///< one capture: the value, in the device's words
    Words values; ///< for each word the value in the store; without any it is the same
    const char *field = "Value";
    bool isListed = false; ///< the device tells the text of the row that the store holds the number of
};

const Words switches{{"off", "0"}, {"on", "1"}};
const Words ranges{{"limited", "0"}, {"full", "1"}};
const Words sources{{"hdmi1", "0"}, {"hdmi2", "1"}, {"dvi", "2"}, {"sdi", "3"}};
constexpr const char *number = "(-?\\d+)";
constexpr const char *any = "-?\\d+";

QVector<Row> layerRows()
{
    QVector<Row> rows;
    constexpr const char *names[] = {"main layer", "PIP 1", "PIP 2"};
    for (int n = 0; n < 3; ++n) {
        const int base = STRIDE_Layer * n;
        const QString name = QString(names[n]) + ": ";
        const auto window = [&](const char *w, const char *h, const char *x, const char *y) {
            return name + QString("\\w+, [^,]+, %1x%2 at %3,%4, priority .*").arg(w, h, x, y);
        };
        rows += {
            {MENU_MainLayer_Status + base, name + "(on|off), .*", switches},
            {MENU_MainLayer_InputSource + base, name + "\\w+, ([^,]+), .*", sources},
            {MENU_MainLayer_HorWidth + base, window(number, any, any, any), {}},
            {MENU_MainLayer_VerHeight + base, window(any, number, any, any), {}},
            {MENU_MainLayer_InitialX + base, window(any, any, number, any), {}},
            {MENU_MainLayer_InitialY + base, window(any, any, any, number), {}},
            {MENU_MainLayer_Priority + base, name + ".*, priority (\\d+), .*", {}},
            {MENU_MainLayer_Opacity + base, name + ".*, opacity (\\d+)%", {}},
        };
        const int crop = STRIDE_Crop * n;
        const auto cut = [&](const char *w, const char *h, const char *x, const char *y) {
            return "crop of " + name + QString("\\w+, %1x%2 at %3,%4").arg(w, h, x, y);
        };
        rows += {
            {MENU_MainLayerCrop_Status + crop, "crop of " + name + "(on|off), .*", switches},
            {MENU_MainLayerCrop_HorWidth + crop, cut(number, any, any, any), {}},
            {MENU_MainLayerCrop_VerHeight + crop, cut(any, number, any, any), {}},
            {MENU_MainLayerCrop_InitialX + crop, cut(any, any, number, any), {}},
            {MENU_MainLayerCrop_InitialY + crop, cut(any, any, any, number), {}},
        };
    }
    return rows;
}

QVector<Row> inputRows()
{
    QVector<Row> rows;
    struct Picture {
        const char *name;
        int first;
    };
    constexpr Picture pictures[] = {{"hdmi1", MENU_HDMI1_Brightness},
                                    {"hdmi2", MENU_HDMI2_Brightness},
                                    {"dvi", MENU_DVI_Brightness},
                                    {"dvi2", MENU_DVI2_Brightness},
                                    {"sdi", MENU_SDI_Brightness}};
    for (const Picture &picture : pictures) {
        const QString name = QString(picture.name) + ": ";
        rows += {{picture.first, name + "brightness (\\d+), .*", {}},
                 {picture.first + 1, name + "brightness .*, contrast (\\d+), .*", {}},
                 {picture.first + 2, name + "brightness .*, saturation (\\d+), .*", {}},
                 {picture.first + 3, name + "brightness .*, hue (-?\\d+), .*", {}}};
    }
    constexpr const char *widened[] = {"hdmi1", "hdmi2", "dvi", "dvi2"};
    for (int k = 0; k < 4; ++k)
        rows += {MENU_HDMI1_LimitedtoFull + k * (MENU_HDMI2_LimitedtoFull - MENU_HDMI1_LimitedtoFull),
                 QString(widened[k]) + ": .*, (limited|full) range", ranges};
    constexpr const char *sounds[] = {"hdmi1", "hdmi2", "dvi", "dvi2", "sdi", "opt1", "opt2", "mosaic"};
    for (int k = 0; k < 8; ++k) {
        const Words hdmi{{"embedded", "0"}, {"none", "1"}, {"audio in", "1"}};
        const Words others{{"none", "0"}, {"embedded", "1"}, {"audio in", "1"}};
        rows +=
            {MENU_AudioInput_HDMI1 + k, QString("sound of %1: (.*)").arg(sounds[k]), k < 2 ? hdmi : others};
    }
    return rows;
}

/// What is configured of the wall and its output. The forms are never told: the panel knows what it has
/// written, and what a device is delivered with.
QVector<Row> wallRows()
{
    const Words outputs{{"device", "0"}, {"software configuration", "1"}};
    return {
        {MENU_MainLayerTransition, "transition: (\\w+), .*", {{"fade", "0"}, {"cut", "1"}}},
        {MENU_TransitionDuration, "transition: \\w+, (.*) s", {}},
        {MENU_FTBDuration, "time to black: (.*) s", {}},
        {MENU_Test_Brightness, "test picture: brightness (\\d+), .*", {}},
        {MENU_Test_Spacing, "test picture: .*, spacing (\\d+), .*", {}},
        {MENU_Test_Speed, "test picture: .*, speed (\\d+)", {}},
        {MENU_OutputMode, "output mode: (.*)", outputs},
        {MENU_Output_Mode, "output mode: (.*)", outputs},
        {MENU_OutputFrameRate, "size of the device: .*@(.*)", {}, "Value", true},
        {MENU_Output_Resolution, "size of the software configuration: (.*)@.*", {}, "Value", true},
        {MENU_Output_FrameRate, "size of the software configuration: .*@(.*)", {}, "Value", true},
        {MENU_Quick_CabinetRow, "quick form: (\\d+) rows, .*", {}},
        {MENU_Quick_CabinetCol, "quick form: .*, (\\d+) columns", {}},
        {MENU_Quick_PortOneCab, "quick configuration: (\\d+) cabinets on the first port, .*", {}},
        {MENU_Quick_FlowWay, "quick configuration: .*, flow way (\\d+)", {}},
        {MENU_Advanced_Status, "advanced configuration: (on|off)", switches},
        {MENU_Color_R, "colours: red (\\d+), .*", {}},
        {MENU_Color_R + 1, "colours: .*, green (\\d+), .*", {}},
        {MENU_Color_R + 2, "colours: .*, blue (\\d+)", {}},
        {MENU_Mapping, "mapping: (on|off)", switches},
        {MENU_InputBackup_Status, "input backup: (on|off)", switches},
        {MENU_DeviceBackup, "role of the device: (.*)", {{"primary", "0"}, {"backup", "1"}}},
        {MENU_OPT2Mode, "OPT 2 mode: (.*)", {{"backup", "0"}, {"copy", "1"}}},
        {MENU_CommunicationMode, "communication: (\\w+) preferred", {{"LAN", "0"}, {"USB", "1"}}},
    };
}

QVector<Row> settingRows()
{
    const auto osd = [](const char *picture, const char *x, const char *y) {
        return QString("OSD: \\w+, picture %1 at %2,%3, .*").arg(picture, x, y);
    };
    QVector<Row> rows{
        {MENU_ScreenBrightness, "brightness: (\\d+)%", {}},
        {MENU_Audio_Volume, "volume: (\\d+)", {}},
        {MENU_Audio_AudioOutput,
         "audio output: (.*)",
         {{"off", "0"}, {"main layer", "1"}, {"PIP 1", "2"}, {"PIP 2", "3"}, {"line in", "4"}}},
        {MENU_OSDState, "OSD: (on|off), .*", switches},
        {MENU_OSDChoice, osd(number, any, any), {}},
        {MENU_OSDInitialX, osd(any, number, any), {}},
        {MENU_OSDInitialY, osd(any, any, number), {}},
        {MENU_OSDPriority, "OSD: .*, (in front|behind)", {{"in front", "1"}, {"behind", "0"}}},
        {MENU_Net_IPAddress, "address: (.*)", {}},
        {MENU_Net_SubnetMask, "mask: (.*)", {}},
        {MENU_Net_Gateway, "gateway: (.*)", {}},
        {MENU_Net_NetMode, "automatic: (on|off)", switches},
        {MENU_Mode3D_Status, "3D: (on|off)", switches},
        {MENU_Mode3D_Format,
         "format: (.*)",
         {{"side by side", "0"}, {"top and bottom", "1"}, {"frame sequential", "2"}}},
        {MENU_Mode3D_EyePriority, "first eye: (left|right)", {{"left", "0"}, {"right", "1"}}},
        {MENU_RightEyeStartSide, "right eye starts at (\\d+) side by side, .*", {}},
        {MENU_RightEyeStartTop, "right eye starts at .*, (\\d+) top and bottom", {}},
        {MENU_Mode3D_ThirdPartyEmitter, "emitter: (on|off), .*", switches},
        {MENU_Mode3D_SignalDelayTime, "emitter: .*, delay (\\d+) us", {}},
        {MENU_HDCP, "protected pictures: (on|off)", switches},
        {MENU_WorkMode, "work mode: (.*)", {{"video controller", "0"}}},
        {MENU_Sync_Status, "sync: (on|off) to .*", switches},
        {MENU_Sync_Source, "sync: \\w+ to (.*)", sources},
        {MENU_Color_Gamma, "gamma: (.*)", {}},
        {MENU_LowLatency, "low latency: (on|off)", switches},
        {MENU_ImageMosaic_Status, "splicing: (on|off)", switches},
    };
    const QStringList displays{"normal", "freeze", "black", "test pattern"};
    for (int n = 0; n < 3; ++n) {
        Words words;
        for (const QString &display : displays)
            words.insert(display, display == displays[n] ? "1" : "0");
        rows += {MENU_Normal + n, "display: (.*)", words, "Choice"};
    }
    rows += wallRows();
    constexpr int presets = 10;
    for (int preset = 0; preset < presets; ++preset)
        rows += {MENU_Preset1 + preset,
                 QString("preset %1: (\\w+)\\b.*").arg(preset + 1),
                 {{"used", "Used"}, {"saved", "Saved"}, {"blank", "Blank"}}};
    return rows;
}

const QVector<Row> &rows()
{
    static const QVector<Row> all = settingRows() + layerRows() + inputRows();
    return all;
}

QString toldBy(const QStringList &lines, const Row &row, QString &line)
{
    const QRegularExpression pattern(QRegularExpression::anchoredPattern("\\s*" + row.line));
    for (const QString &text : lines) {
        const QRegularExpressionMatch match = pattern.match(text);
        if (!match.hasMatch())
            continue;
        line = text.trimmed();
        return row.values.isEmpty() ? match.captured(1) : row.values.value(match.captured(1), "?");
    }
    line = "no line " + row.line;
    return "?";
}
QString keptOf(const QMap<QString, QString> &stored, const Row &row)
{
    const QString item = itemnames::name(row.item);
    const QString value = stored.value(row.field == QByteArray("Value") ? item : item + '/' + row.field);
    return row.isListed ? QString(stored.value(item + "/Params/" + value)).replace('*', 'x') : value;
}

/// As text or as numbers: "1.0" is 1.
bool areSame(const QString &kept, const QString &told)
{
    bool isNumber = false, isToldNumber = false;
    const double number = kept.toDouble(&isNumber), toldNumber = told.toDouble(&isToldNumber);
    return kept == told || (isNumber && isToldNumber && number == toldNumber);
}
} // namespace

QStringList mirrored::differences(Panel &panel)
{
    const QStringList lines = panel.ask({"device", "show"}).lines;
    const QMap<QString, QString> stored = panel.storedFields();
    QStringList list;
    for (const Row &row : rows()) {
        QString line;
        const QString told = toldBy(lines, row, line);
        const QString kept = keptOf(stored, row);
        if (!areSame(kept, told))
            list += QString("%1: %2 in the store, %3 at the device (%4)")
                        .arg(itemnames::name(row.item), kept, told, line);
    }
    return list;
}

int mirrored::count()
{
    return rows().size();
}
