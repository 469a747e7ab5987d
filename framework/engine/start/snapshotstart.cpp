#include "framework/engine/start/snapshotstart.h"

#include "framework/engine/device.h"
#include "framework/engine/parachange.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/presets.h"
#include "framework/engine/righteye.h"
#include "framework/engine/start/snapshotmirror.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
/// Pushes values into the engine as the device would report them.
class SnapshotPush
{
public:
    SnapshotPush(ParaProcess &engine, MenuAnalysis &store, const SnapshotMirror &mirror)
        : m_engine(engine), m_store(store), m_mirror(mirror)
    {
    }

    void transition();
    void testPattern();
    void network();
    void pictures();
    void layers();
    void crops();
    void audioAndOutputSize();
    void splicing();
    void stereo();
    void rates();
    void inputBackup();
    void hdcpAndInputAudio();

private:
    void report(ENUM_MenuIndex item, const QString &value)
    {
        m_engine.SetParaToXml(value, item, SET_XML_DEVICE);
    }
    void report(ENUM_MenuIndex item, int value) { report(item, QString::number(value)); }
    void reportRate(ENUM_MenuIndex list, int rateCentiHz);
    void choose(ENUM_MenuIndex list, int row);

    ParaProcess &m_engine;
    MenuAnalysis &m_store;
    const SnapshotMirror &m_mirror;
};

/// Hundredths as text with one decimal.
QString tenths(int hundredths)
{
    return QString::number(hundredths / 100.0, 'f', 1);
}

/// Four numbers of an address, each that many bytes wide.
QString dotted(const SnapshotBlock &block, int offset, int width)
{
    QStringList numbers;
    for (int i = 0; i < 4; ++i)
        numbers << QString::number(width == 2 ? block.u16(offset + 2 * i) : block.u8(offset + i));
    return numbers.join('.');
}

void SnapshotPush::transition()
{
    report(MENU_MainLayerTransition, m_mirror.device.u8(DEVICE_Transition) ? 0 : 1);
    report(MENU_TransitionDuration, tenths(m_mirror.device.u16(DEVICE_TransitionTime)));
    report(MENU_FTBDuration, tenths(m_mirror.device.u16(DEVICE_BlackTime)));
}

void SnapshotPush::testPattern()
{
    struct Family {
        int code;
        int number; ///< in PARA_TestPatternFamily
        ENUM_MenuIndex pattern;
    };
    static const Family families[] = {
        {0x00, 0, MENU_Test_PureColor},
        {0x10, 2, MENU_Test_Grid},
        {0x20, 1, MENU_Test_Gradient},
    };
    const int code = m_mirror.device.u8(DEVICE_TestPattern);
    for (const Family &family : families)
        if ((code & 0xF0) == family.code) {
            report(PARA_TestPatternFamily, family.number);
            report(family.pattern, code & 0x0F);
        }
    report(MENU_Test_Brightness, m_mirror.device.u8(DEVICE_TestBrightness));
    report(MENU_Test_Spacing, m_mirror.device.u8(DEVICE_TestSpacing));
    report(MENU_Test_Speed, m_mirror.device.u8(DEVICE_TestSpeed));
}

void SnapshotPush::network()
{
    if (m_mirror.device.u8(DEVICE_Dhcp) == deviceOn)
        return;
    report(MENU_Net_NetMode, 0);
    report(MENU_Net_IPAddress, dotted(m_mirror.device, DEVICE_IpAddress, 2));
    report(MENU_Net_SubnetMask, dotted(m_mirror.device, DEVICE_SubnetMask, 2));
    report(MENU_Net_Gateway, dotted(m_mirror.device, DEVICE_Gateway, 1));
}

void SnapshotPush::pictures()
{
    constexpr int inputCount = 4;
    auto picture = [this](int input, ENUM_MenuIndex brightness) {
        const int base = LIVE_Pictures + input * PICTURE_Stride;
        report(brightness, m_mirror.live.u8(base + PICTURE_Brightness));
        report(nth(brightness, 1), m_mirror.live.u8(base + PICTURE_Contrast));
        report(nth(brightness, 2), m_mirror.live.u8(base + PICTURE_Saturation));
        report(nth(brightness, 3), int16_t(m_mirror.live.u16(base + PICTURE_Hue)));
    };
    for (int input = 0; input < inputCount; ++input) {
        picture(input, nth(MENU_HDMI1_Brightness, input, STRIDE_InputPicture));
        const int fullRange = m_mirror.live.u8(LIVE_Pictures + input * PICTURE_Stride + PICTURE_FullRange);
        report(nth(MENU_HDMI1_LimitedtoFull, input, STRIDE_Input), fullRange);
    }
    picture(inputCount, MENU_SDI_Brightness);
}

/// Stores and shows a row of a list, if the list has it.
void SnapshotPush::choose(ENUM_MenuIndex list, int row)
{
    ST_ItemInfo item;
    m_engine.GetInfoFromIndex(list, item);
    const QString value = QString::number(row);
    if (item.params.contains(value))
        ParaChange(m_engine, m_store, value, list, SET_XML_STORE).show(list, value);
}

/// What the home screen shows of the layers, until the device reports them with all that depends on them.
void SnapshotPush::layers()
{
    const bool oneWindow = DeviceView(m_engine).workMode() == WORK_SENDER;
    for (int layer = 0; layer < (oneWindow ? 1 : layerCount); ++layer) {
        const int window = LIVE_Windows + WINDOW_First + layer * WINDOW_Stride;
        // An erased snapshot holds no window.
        if (m_mirror.live.i32(window + WINDOW_Width) <= 0 || m_mirror.live.i32(window + WINDOW_Height) <= 0)
            continue;
        choose(nth(MENU_MainLayer_Status, layer, STRIDE_Layer), m_mirror.live.u8(window + WINDOW_Status));
        choose(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer), m_mirror.live.u8(window + WINDOW_Input));
        choose(nth(MENU_MainLayer_Priority, layer, STRIDE_Layer), m_mirror.live.u8(window + WINDOW_Priority));
    }
}

void SnapshotPush::crops()
{
    constexpr int inputCount = 8;
    for (int layer = 0; layer < layerCount; ++layer) {
        const int window = LIVE_Windows + WINDOW_First + layer * WINDOW_Stride;
        const int input = m_mirror.live.u8(window + WINDOW_Input);
        if (input >= inputCount)
            continue;
        const int base = LIVE_Crops + CROP_First + layer * CROP_LayerStride + input * CROP_InputStride;
        const ENUM_MenuIndex status = nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop);
        report(status, m_mirror.live.u8(base + CROP_Status));
        report(nth(status, 1), m_mirror.live.u16(base + CROP_Width));
        report(nth(status, 2), m_mirror.live.u16(base + CROP_Height));
        report(nth(status, 3), m_mirror.live.u16(base + CROP_X));
        report(nth(status, 4), m_mirror.live.u16(base + CROP_Y));
    }
}

void SnapshotPush::audioAndOutputSize()
{
    const int audio = m_mirror.device.u8(DEVICE_AudioOutput);
    report(MENU_Audio_AudioOutput, audio == audioLineIn ? audioLineInRow : audio);
    report(MENU_Audio_Volume, m_mirror.device.u8(DEVICE_Volume));
    const int mode = m_mirror.outputMode.u8(0);
    report(MENU_OutputMode, mode);
    const bool software = mode != 0;
    m_engine.SaveProcessData(
        QString::number(m_mirror.output.u16(software ? OUTPUT_SoftwareWidth : OUTPUT_Width)),
        PARA_OutputWidth);
    m_engine.SaveProcessData(
        QString::number(m_mirror.output.u16(software ? OUTPUT_SoftwareHeight : OUTPUT_Height)),
        PARA_OutputHeight);
}

void SnapshotPush::splicing()
{
    const bool on = m_mirror.device.u8(DEVICE_Splicing) == deviceOn;
    if (!on) {
        report(MENU_ImageMosaic_Status, 0);
        return;
    }
    // The area first: the switch sends it.
    report(MENU_ImageMosaic_TotalHPixels, m_mirror.live.i32(LIVE_Windows + WINDOW_First + WINDOW_Width));
    report(MENU_ImageMosaic_TotalVPixels, m_mirror.live.i32(LIVE_Windows + WINDOW_First + WINDOW_Height));
    report(MENU_ImageMosaic_LoadAreaWidth, m_mirror.loadArea.u16(LOADAREA_Width));
    report(MENU_ImageMosaic_LoadAreaHeight, m_mirror.loadArea.u16(LOADAREA_Height));
    report(MENU_ImageMosaic_LoadAreaInitialX, m_mirror.loadArea.i32(LOADAREA_X));
    report(MENU_ImageMosaic_LoadAreaInitialY, m_mirror.loadArea.i32(LOADAREA_Y));
    report(MENU_ImageMosaic_Status, 1);
}

void SnapshotPush::stereo()
{
    const SnapshotBlock &block = m_mirror.stereo;
    report(MENU_Mode3D_Status, block.u8(STEREO_Switch) == deviceOn ? 1 : 0);
    // Both are kept, as the device is told of both: an erased snapshot tells nothing.
    if (block.u16(STEREO_StartSide))
        keepRightEyeStart(m_store, SideBySide, block.u16(STEREO_StartSide));
    if (block.u16(STEREO_StartTop))
        keepRightEyeStart(m_store, TopAndBottom, block.u16(STEREO_StartTop));
    switch (block.u8(STEREO_Format)) {
    case STEREO_SideBySide:
        report(MENU_Mode3D_Format, SideBySide);
        report(MENU_Mode3D_RightEyeStart, block.u16(STEREO_StartSide));
        break;
    case STEREO_TopAndBottom:
        report(MENU_Mode3D_Format, TopAndBottom);
        report(MENU_Mode3D_RightEyeStart, block.u16(STEREO_StartTop));
        break;
    case STEREO_Sequential:
        report(MENU_Mode3D_Format, FrameSequential);
        break;
    }
    if (block.u8(STEREO_EyePriority) == EYE_LeftFirst)
        report(MENU_Mode3D_EyePriority, 0);
    else if (block.u8(STEREO_EyePriority) == EYE_RightFirst)
        report(MENU_Mode3D_EyePriority, 1);
    report(MENU_Mode3D_SignalDelayTime, block.u24(STEREO_Delay) / delayStepsPerMicrosecond);
    report(MENU_Mode3D_ThirdPartyEmitter, block.u8(STEREO_Emitter));
}

/// The first option whose rate is the stored one.
void SnapshotPush::reportRate(ENUM_MenuIndex list, int rateCentiHz)
{
    constexpr float centi = 100.f;
    ST_ItemInfo item;
    m_engine.GetInfoFromIndex(list, item);
    for (int row = 0; row < item.params.size(); ++row)
        if (qRound(item.params.value(QString::number(row)).toFloat() * centi) == rateCentiHz) {
            report(list, row);
            return;
        }
}

void SnapshotPush::rates()
{
    reportRate(MENU_OutputFrameRate, m_mirror.output.u16(OUTPUT_Rate));
    const QString size = QString("%1*%2")
                             .arg(m_mirror.output.u16(OUTPUT_SoftwareWidth))
                             .arg(m_mirror.output.u16(OUTPUT_SoftwareHeight));
    ST_ItemInfo resolutions;
    m_engine.GetInfoFromIndex(MENU_Output_Resolution, resolutions);
    const QString row = resolutions.params.key(size);
    if (!row.isEmpty())
        report(MENU_Output_Resolution, row);
    reportRate(MENU_Output_FrameRate, m_mirror.output.u16(OUTPUT_SoftwareRate));
}

void SnapshotPush::inputBackup()
{
    constexpr int noPartner = 255;
    const SnapshotBlock &block = m_mirror.inputBackup;
    report(MENU_InputBackup_Status, block.u8(BACKUP_Switch) == backupOn ? 1 : 0);
    report(MENU_InputBackup_HDMI1, block.u8(BACKUP_Hdmi) < noPartner ? 1 : 0);
    report(MENU_InputBackup_DVI1, block.u8(BACKUP_Dvi) == noPartner ? 0 : 1);
    report(MENU_InputBackup_Mosaic, block.u8(BACKUP_Mosaic) < noPartner ? 1 : 0);
}

void SnapshotPush::hdcpAndInputAudio()
{
    constexpr int inputCount = 8;
    constexpr int hdmiCount = 2;
    if (!isOff(m_engine.GetParaFromIndex(MENU_HDCPMemory)))
        report(MENU_HDCP, (m_mirror.inputs.u8(INPUTS_Hdcp) & 1) ? 0 : 1);
    for (int input = 0; input < inputCount; ++input) {
        const int byte = m_mirror.inputs.u8(INPUTS_Audio + INPUTS_AudioStride * input);
        const bool lineIn = input < hdmiCount ? byte != 1 : byte != 0;
        report(nth(MENU_AudioInput_HDMI1, input), lineIn ? 1 : 0);
    }
}

} // namespace

SnapshotStart::SnapshotStart(ParaProcess &engine)
    : m_engine(engine), m_mirror(std::make_unique<SnapshotMirror>())
{
}

SnapshotStart::~SnapshotStart() = default;

void SnapshotStart::read()
{
    qDebug() << "<- InitReadParaFrom20M start";
    m_mirror->read();
    qDebug() << "<- InitReadParaFrom20M end";
}

void SnapshotStart::push(MenuAnalysis &store)
{
    SnapshotPush push(m_engine, store, *m_mirror);
    push.transition();
    push.testPattern();
    push.network();
    push.pictures();
    push.layers();
    push.crops();
    push.audioAndOutputSize();
    push.splicing();
    push.stereo();
    push.rates();
    m_engine.presets().load(store, m_mirror->presetInUse.u8(0));
    push.inputBackup();
    push.hdcpAndInputAudio();
}

void SnapshotStart::reloadAddress()
{
    SnapshotBlock device = m_mirror->device; // what the start found, should the flash fail now
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store || !device.read() || device.u8(DEVICE_Dhcp) == deviceOn)
        return;
    struct Field {
        ENUM_MenuIndex item;
        ENUM_ObjectIndex widget;
        int offset;
        int width;
    };
    static const Field fields[] = {
        {MENU_Net_IPAddress, ENUM_ROW_Net_IPAddress, DEVICE_IpAddress, 2},
        {MENU_Net_SubnetMask, ENUM_ROW_Net_SubnetMask, DEVICE_SubnetMask, 2},
        {MENU_Net_Gateway, ENUM_ROW_Net_Gateway, DEVICE_Gateway, 1},
    };
    for (const Field &field : fields) {
        store->UpdataItemCurValue(field.item, dotted(device, field.offset, field.width));
        if (auto *row = poolObject<VaskUiObject>(field.widget))
            row->SetParaEntry(field.item, QString(), SET_XML_STORE);
    }
}
} // namespace VASK
