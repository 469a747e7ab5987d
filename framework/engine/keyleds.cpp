#include "framework/engine/keyleds.h"

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"

namespace VASK
{
namespace
{
/// By source number.
constexpr ENUM_LedIndex sourceLeds[] = {LED_INPUT1, LED_INPUT2, LED_INPUT3, LED_INPUT4,
                                        LED_INPUT5, LED_INPUT6, LED_INPUT7, LED_INPUT8};
constexpr ENUM_LedIndex layerLeds[layerCount] = {LED_MAIN, LED_PIP1, LED_PIP2};
constexpr unsigned char noLayer = 255;

bool isOn(const ParaProcess &engine, int layer)
{
    return engine.GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)) != QLatin1String("0");
}

bool isUsed(const ParaProcess &engine, const QString &source)
{
    for (int layer = 0; layer < layerCount; ++layer)
        if (isOn(engine, layer) &&
            engine.GetParaFromIndex(nth(MENU_MainLayer_InputSource, layer, STRIDE_Layer)) == source)
            return true;
    return false;
}

/// Of those that are on; a main layer with the highest number counts as absent.
unsigned char lowestLayer(const ParaProcess &engine)
{
    constexpr int absentMainPriority = 255;
    unsigned char lowest = noLayer;
    int lowestPriority = 0;
    for (int layer = 0; layer < layerCount; ++layer) {
        if (engine.GetParaFromIndex(nth(MENU_MainLayer_Status, layer, STRIDE_Layer)) != QLatin1String("1"))
            continue;
        const int priority =
            engine.GetParaFromIndex(nth(MENU_MainLayer_Priority, layer, STRIDE_Layer)).toInt();
        if (layer == 0 && priority >= absentMainPriority)
            continue;
        if (lowest == noLayer || priority < lowestPriority) {
            lowest = static_cast<unsigned char>(layer);
            lowestPriority = priority;
        }
    }
    return lowest;
}
} // namespace

void showLayerLeds(unsigned char layer)
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        return;
    for (int i = 0; i < layerCount; ++i) {
        const enLedStatus steady = isOn(*engine, i) ? LED_ON : LED_OFF;
        KeyEvent::SendLedCommand(layerLeds[i], i == layer ? LED_BLINK : steady);
    }
}

void showSourceLeds()
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        return;
    for (int source = 0; source < int(std::size(sourceLeds)); ++source) {
        // A source in use blinks also without a signal: the key tells where a black layer comes from.
        const bool signal = engine->processData().input(source).signalState == stableSignal;
        const enLedStatus unused = signal ? LED_ON : LED_OFF;
        KeyEvent::SendLedCommand(sourceLeds[source],
                                 isUsed(*engine, QString::number(source)) ? LED_BLINK : unused);
    }
}

unsigned char showScaleLed(const ParaProcess &engine)
{
    const unsigned char lowest = lowestLayer(engine);
    const bool fullScreen =
        lowest != noLayer &&
        engine.GetParaFromIndex(nth(MENU_MainLayer_ScalingMode, lowest, STRIDE_Layer)) == QLatin1String("0");
    KeyEvent::SendLedCommand(LED_SCALE, fullScreen ? LED_ON : LED_OFF);
    return lowest;
}
} // namespace VASK
