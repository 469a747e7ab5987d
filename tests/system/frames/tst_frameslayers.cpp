// What the rows of the three layers and their crops send.
#include "tests/system/frames/layerframes.h"
#include "tests/testprogram.h"

using namespace VASK;
using frames::twice;
using namespace layerframes;

class TestFramesLayers : public FramesTest
{
    QVector<NamedFrames> table() const override;
};

namespace
{
using Path = QList<ENUM_MenuIndex>;

/// A row of a layer's page, told by that of the main layer.
Path row(int layer, ENUM_MenuIndex ofMain)
{
    return {MENU_LayerSettings, ENUM_MenuIndex(MENU_MainLayer + layer),
            ENUM_MenuIndex(ofMain + layer * STRIDE_Layer)};
}
Path cropRow(int layer, ENUM_MenuIndex ofMain)
{
    return {MENU_LayerSettings, ENUM_MenuIndex(MENU_MainLayer + layer),
            ENUM_MenuIndex(MENU_MainLayer_InputCrop + layer * STRIDE_Layer),
            ENUM_MenuIndex(ofMain + layer * STRIDE_Crop)};
}

struct Start {
    int x, y, width, height;
};
/// As the device comes from the factory.
constexpr Start windows[] = {{0, 0, 1920, 1080}, {0, 0, 480, 270}, {480, 0, 480, 270}};

class Lines : public QVector<NamedFrames>
{
public:
    void add(int layer, const char *what, const Path &path, const QString &keys, const QStringList &sent)
    {
        static const char *const layers[] = {"main layer: ", "PIP 1: ", "PIP 2: "};
        append({layers[layer] + QByteArray(what), path, keys, sent});
    }
};

void addGeometry(Lines &lines, int layer)
{
    const Start &at = windows[layer];
    const int width = at.width - 20, height = at.height - 30, x = at.x + 7, y = at.y - 9;
    lines.add(layer, "width", row(layer, MENU_MainLayer_HorWidth), "L20 ok",
              twice(window(layer, at.x, at.y, width, at.height)));
    lines.add(layer, "height", row(layer, MENU_MainLayer_VerHeight), "L30 ok",
              twice(window(layer, at.x, at.y, width, height)));
    lines.add(layer, "x", row(layer, MENU_MainLayer_InitialX), "R7 ok",
              twice(window(layer, x, at.y, width, height)));
    lines.add(layer, "y", row(layer, MENU_MainLayer_InitialY), "L9 esc",
              twice(window(layer, x, y, width, height)));
    // The list goes round: custom, full screen, pixel to pixel. What was dialled comes back.
    lines.add(layer, "full screen", row(layer, MENU_MainLayer_ScalingMode), "r1 ok",
              {window(layer, 0, 0, 1920, 1080)});
    lines.add(layer, "pixel to pixel", row(layer, MENU_MainLayer_ScalingMode), "r1 ok",
              {window(layer, 0, 0, 1920, 1080)});
    lines.add(layer, "custom", row(layer, MENU_MainLayer_ScalingMode), "r1 ok",
              {window(layer, x, y, width, height)});
    lines.add(layer, "opacity", row(layer, MENU_MainLayer_Opacity), "L5 ok", twice(opacity(layer, 95)));
}

void addCrop(Lines &lines, int layer)
{
    const auto cropLine = [&](const char *what, ENUM_MenuIndex item, const QString &keys,
                              const QStringList &sent) {
        lines.add(layer, what, cropRow(layer, item), keys, sent);
    };
    cropLine("crop on", MENU_MainLayerCrop_Status, "r1 ok", {crop(layer, true, 0, 0, 1920, 1080)});
    cropLine("crop width", MENU_MainLayerCrop_HorWidth, "L20 ok", twice(crop(layer, true, 0, 0, 1900, 1080)));
    cropLine("crop height", MENU_MainLayerCrop_VerHeight, "L30 ok",
             twice(crop(layer, true, 0, 0, 1900, 1050)));
    cropLine("crop x", MENU_MainLayerCrop_InitialX, "R5 ok", twice(crop(layer, true, 5, 0, 1900, 1050)));
    // No further than the input reaches.
    cropLine("crop y", MENU_MainLayerCrop_InitialY, "R99 ok", twice(crop(layer, true, 5, 30, 1900, 1050)));
    cropLine("crop reset", MENU_MainLayerCrop_Reset, "", {crop(layer, true, 0, 0, 1920, 1080)});

    // Pixel for pixel, the window follows the crop, and goes first.
    const Start &at = windows[layer];
    const int x = at.x + 7, y = at.y - 9;
    const QString whole = window(layer, 0, 0, 1920, 1080);
    const QString narrow = window(layer, 0, 0, 1910, 1080), low = window(layer, 0, 0, 1910, 1070);
    const QString narrowCrop = crop(layer, true, 0, 0, 1910, 1080),
                  lowCrop = crop(layer, true, 0, 0, 1910, 1070);
    lines.add(layer, "cropped, full screen", row(layer, MENU_MainLayer_ScalingMode), "r1 ok", {whole});
    lines.add(layer, "cropped, pixel to pixel", row(layer, MENU_MainLayer_ScalingMode), "r1 ok", {whole});
    cropLine("crop width with the window", MENU_MainLayerCrop_HorWidth, "L10 still ok",
             twice({narrow, narrowCrop}));
    cropLine("crop height with the window", MENU_MainLayerCrop_VerHeight, "L10 still ok",
             twice({low, lowCrop}));
    cropLine("crop reset with the window", MENU_MainLayerCrop_Reset, "",
             {crop(layer, true, 0, 0, 1920, 1080), whole});
    cropLine("crop off", MENU_MainLayerCrop_Status, "r1 ok", {whole, crop(layer, false, 0, 0, 1920, 1080)});
    lines.add(layer, "custom again", row(layer, MENU_MainLayer_ScalingMode), "r1 ok",
              {window(layer, x, y, at.width - 20, at.height - 30)});
}

/// The layer takes its new place, and those between give way; each of them is told.
void addPriorities(Lines &lines)
{
    const auto line = [&](int layer, const char *what, const QString &keys, const QStringList &sent) {
        lines.add(layer, what, row(layer, MENU_MainLayer_Priority), keys, sent);
    };
    line(0, "priority 2", "r1 ok", {priority(1, 0), priority(2, 2), priority(0, 1)});
    line(0, "priority 3", "r1 ok", {priority(1, 0), priority(2, 1), priority(0, 2)});
    line(1, "priority 3", "r2 ok", {priority(0, 1), priority(2, 0), priority(1, 2)});
    line(2, "priority 2", "r1 ok", {priority(0, 0), priority(1, 2), priority(2, 1)});
    line(2, "priority 2, left", "r1 esc", {});
}

void addSources(Lines &lines)
{
    const auto line = [&](int layer, const char *what, const QString &keys, const QString &sent) {
        lines.add(layer, what, row(layer, MENU_MainLayer_InputSource), keys, {source(layer, sent)});
    };
    line(0, "HDMI 2", "r1 ok", hdmi2);
    line(0, "HDMI 1", "l1 ok", hdmi1);
    line(1, "DVI", "r2 ok", dvi);
    line(1, "HDMI 1", "l2 ok", hdmi1);
    line(2, "SDI", "r3 ok", sdi);
    line(2, "HDMI 1", "r1 ok", hdmi1);
}

/// A second layer ends the fading of the first.
void addStatus(Lines &lines)
{
    const auto line = [&](int layer, const char *what, const QString &keys, const QStringList &sent) {
        lines.add(layer, what, row(layer, MENU_MainLayer_Status), keys, sent);
    };
    line(0, "off", "r1 ok", {status(0, false)});
    line(0, "on", "r1 ok", {status(0, true)});
    line(1, "on", "r1 ok", {cut, status(1, true)});
    line(2, "on", "r1 ok", {cut, status(2, true)});
    line(1, "off", "r1 ok", {status(1, false)});
    line(2, "off", "r1 ok", {status(2, false)});
}
} // namespace

QVector<NamedFrames> TestFramesLayers::table() const
{
    Lines lines;
    for (int layer = 0; layer < 3; ++layer) {
        addGeometry(lines, layer);
        addCrop(lines, layer);
    }
    addPriorities(lines);
    addSources(lines);
    addStatus(lines);
    return lines;
}

FPD_TEST(TestFramesLayers)
