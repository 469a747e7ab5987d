#include "framework/engine/keyleds.h"

#include "framework/engine/device.h"
#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/itemvalue.h"
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

/// Of the layers: one whose state nobody knows counts as on.
bool mayBeOn(const ParaProcess &engine, const LayerItems &layer)
{
    return !isOff(engine.GetParaFromIndex(layer.status));
}

bool isUsed(const ParaProcess &engine, const QString &source)
{
    for (const LayerItems &layer : layers)
        if (mayBeOn(engine, layer) && engine.GetParaFromIndex(layer.source) == source)
            return true;
    return false;
}

/// Of those that are on; a main layer with the highest number counts as absent.
unsigned char lowestLayer(const ParaProcess &engine)
{
    constexpr int absentMainPriority = 255;
    unsigned char lowest = noLayer;
    int lowestPriority = 0;
    for (const LayerItems &layer : layers) {
        if (!isOn(engine.GetParaFromIndex(layer.status)))
            continue;
        const int priority = engine.GetParaFromIndex(layer.priority).toInt();
        if (layer.isMain() && priority >= absentMainPriority)
            continue;
        if (lowest == noLayer || priority < lowestPriority) {
            lowest = static_cast<unsigned char>(layer.number);
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
    for (const LayerItems &each : layers) {
        const enLedStatus steady = mayBeOn(*engine, each) ? LED_ON : LED_OFF;
        KeyEvent::SendLedCommand(layerLeds[each.number], each.number == layer ? LED_BLINK : steady);
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
    const bool fills = lowest != noLayer && engine.GetParaFromIndex(layers[lowest].scaling) == fullScreen;
    KeyEvent::SendLedCommand(LED_SCALE, fills ? LED_ON : LED_OFF);
    return lowest;
}
} // namespace VASK
