// The engine's data and its two operations on a value: what may be used, and what follows from it. The cases
// of both stand by families in framework/engine/.

#include "framework/engine/paraprocess.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/limits/limits.h"
#include "framework/engine/parachange.h"
#include "framework/input/keyevent.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/home/mainwindow_k2860.h"

#include <QCoreApplication>
#include <QThread>
#include <memory>

namespace VASK
{
std::atomic<bool> ParaProcess::init_20m_flg{false};
std::atomic<bool> ParaProcess::bHaveSDI{false};
std::atomic<bool> ParaProcess::bRelOnloadRegionStart{false};
std::atomic<bool> ParaProcess::m_ResetFlg{false};
int ParaProcess::m_CopySceneNum = -1;

namespace
{
constexpr unsigned char noLayer = 255;

/// The picture of the home screen by the display mode of the process data.
ENUM_MainWindowTESTMode pictureOf(int displayMode)
{
    static constexpr ENUM_MainWindowTESTMode pictures[] = {TESTMODE_NORMAL, TESTMODE_FREEZE, TESTMODE_BLACK,
                                                           TESTMODE_TEST};
    return displayMode >= 0 && displayMode < int(std::size(pictures)) ? pictures[displayMode]
                                                                      : TESTMODE_NORMAL;
}
} // namespace

ParaProcess::ParaProcess(ENUM_ObjectIndex index) : VaskObject(index) {}

QString ParaProcess::GetParaFromIndex(ENUM_MenuIndex index) const
{
    if (index >= PARA_CabinetWidth && index < PARA_TextEnd)
        return m_processData.text(index);
    QString value;
    if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
        store->GetItemCurValue(index, value);
    return value;
}

bool ParaProcess::GetInfoFromIndex(ENUM_MenuIndex index, ST_ItemInfo &item) const
{
    // Behind them stand process data and messages, which are no items.
    if (index < PARA_CabinetWidth)
        if (auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS))
            store->GetMenuItem(index, item);
    return true;
}

bool ParaProcess::GetPortLinkStatus() const
{
    for (ENUM_MenuIndex first : {PARA_PortLink, PARA_OPT1PortLink, PARA_OPT2PortLink})
        for (int port = 0; port < ProcessData::portCount; ++port)
            if (m_processData.value(nth(first, port)) != 0)
                return true;
    return false;
}

unsigned char ParaProcess::GetLowLayerNum()
{
    constexpr int absentMainPriority = 255;
    unsigned char lowest = noLayer;
    int lowestPriority = 0;
    for (int layer = 0; layer < layerCount; ++layer) {
        if (GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)) != QLatin1String("1"))
            continue;
        const int priority = GetParaFromIndex(nth(MENU_MainLayer_Priority, layer, STRIDE_Layer)).toInt();
        if (layer == 0 && priority >= absentMainPriority)
            continue;
        if (lowest == noLayer || priority < lowestPriority) {
            lowest = static_cast<unsigned char>(layer);
            lowestPriority = priority;
        }
    }
    const bool fullScreen = lowest != noLayer && GetParaFromIndex(nth(MENU_MainLayer_ScalingMode, lowest,
                                                                      STRIDE_Layer)) == QLatin1String("0");
    KeyEvent::SendLedCommand(LED_SCALE, fullScreen ? LED_ON : LED_OFF);
    return lowest;
}

QString ParaProcess::GetInputNameByIndex(const QString &key) const
{
    return m_inputNames.value(key);
}

QString ParaProcess::GetSourceNameByCode(unsigned char code) const
{
    const auto name = m_sourceNames.constFind(code & 0xF0);
    return name == m_sourceNames.cend() ? QString() : *name + QString::number((code & 0x0F) + 1);
}

void ParaProcess::SetParaToXml(QString value, ENUM_MenuIndex index, ENUM_MODE_SET_XML mode)
{
    MenuAnalysis *store = neededStore();
    if (!store)
        return;
    ParaChange change(*this, *store, value, index, mode);
    if (index >= PARA_CabinetWidth && index < PARA_TextEnd)
        SaveProcessData(value, index);
    else
        store->UpdataItemCurValue(index, value);
    if (mode == SET_XML_STORE)
        return;
    qDebug() << "index ==" << int(index);
    if (!neededHome())
        return;
    if (const ApplyCase *found = findApplyCase(index))
        found->apply(change);
    else
        change.tail();
}

MenuAnalysis *ParaProcess::neededStore()
{
    auto *store = poolObject<MenuAnalysis>(ENUM_MENUANALYSIS);
    if (!store)
        qDebug() << "pmenu is null";
    return store;
}

MainWindow *ParaProcess::neededHome() const
{
    if (!m_pMainWindow)
        qDebug() << "pmenu is null";
    return m_pMainWindow;
}

QString ParaProcess::CalParaLimit(QString value, ENUM_MenuIndex index)
{
    qDebug() << "CalParaLimit index ==" << int(index);
    const LimitCase *found = findLimitCase(index);
    return found ? found->apply(*this, value, index) : value;
}

int ParaProcess::OutputFrameAdj(int rate, int outputRate) const
{
    constexpr double lower = 0.995;
    constexpr double upper = 1.005;
    const DeviceView device(*this);
    const bool inReach = rate >= int(outputRate * lower) && rate <= int(outputRate * upper);
    if (device.workMode() != WORK_SENDER && !inReach)
        return outputRate;
    const uint16_t shown = uint16_t(device.doublesRate() ? rate * 2 : rate);
    const bool overload = VideoBandwidthConstrain(uint16_t(m_processData.value(PARA_OutputWidth)),
                                                  uint16_t(m_processData.value(PARA_OutputHeight)), shown,
                                                  wholeOutputPixelRate, 1);
    return overload ? outputRate : rate;
}

void ParaProcess::SaveProcessData(QString value, ENUM_MenuIndex index)
{
    m_processData.set(index, value.toInt());
    if (index == PARA_DisplayMode && m_pMainWindow)
        m_pMainWindow->SetTestMode(pictureOf(value.toInt()));
}

int ParaProcess::runMessage(ENUM_MenuIndex index)
{
    if (QThread::currentThread() != QCoreApplication::instance()->thread()) {
        emit signal_popup_window(quint32(index));
        return 0;
    }
    std::unique_ptr<QDialog> box(CreateDialog(index, QString()));
    if (!box) {
        qDebug() << "qDialog create faild! index:" << int(index);
        return 0;
    }
    return box->exec();
}

int ParaProcess::rightEyeStart(int format) const
{
    return GetParaFromIndex(format == 0 ? MENU_RightEyeStartSide : MENU_RightEyeStartTop).toInt();
}

void ParaProcess::setRightEyeStart(int format, int pixels)
{
    if (MenuAnalysis *store = neededStore())
        store->UpdataItemCurValue(format == 0 ? MENU_RightEyeStartSide : MENU_RightEyeStartTop,
                                  QString::number(pixels));
}

int ParaProcess::FindKeyByValue(int code) const
{
    return DeviceView(*this).inputOfCode(code);
}

void ParaProcess::SetLayerSrc_Res(int layer)
{
    if (layer < 0 || layer >= layerCount)
        return;
    const int source = GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer)).toInt();
    const bool stable = m_processData.input(source).signalState == stableSignal;
    emit signal_Layer_state(layer, stable ? 0 : 1);
}
} // namespace VASK
