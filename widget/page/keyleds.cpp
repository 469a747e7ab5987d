#include "widget/page/keyleds.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/keyevent.h"
#include "menu/itemindex.h"
#include "menu/ledindex.h"
#include "menu/objectindex.h"
#include "widget/home/panellayers.h"

namespace VASK
{
namespace
{
/// By source number.
constexpr ENUM_LedIndex sourceLeds[] = {LED_INPUT1, LED_INPUT2, LED_INPUT3, LED_INPUT4,
                                        LED_INPUT5, LED_INPUT6, LED_INPUT7, LED_INPUT8};
/// Place of the signal state in an input's record, and its value for a signal.
constexpr int signalStateOffset = 2;
const QString stable = QStringLiteral("3");

bool isOn(const ParaProcess &engine, const PanelLayer &layer)
{
    return engine.GetParaFromIndex(layer.status) != QLatin1String("0");
}

bool isUsed(const ParaProcess &engine, const QString &source)
{
    for (const PanelLayer &layer : panelLayers)
        if (isOn(engine, layer) && engine.GetParaFromIndex(layer.source) == source)
            return true;
    return false;
}

bool hasSignal(const ParaProcess &engine, int source)
{
    const ENUM_MenuIndex record = nth(PARA_InputRecordFirst, source, STRIDE_InputRecord);
    return engine.GetParaFromIndex(nth(record, signalStateOffset)) == stable;
}
} // namespace

void showLayerLeds(unsigned char layer)
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        return;
    for (size_t i = 0; i < panelLayers.size(); ++i) {
        const enLedStatus steady = isOn(*engine, panelLayers[i]) ? LED_ON : LED_OFF;
        KeyEvent::SendLedCommand(panelLayers[i].led, i == layer ? LED_BLINK : steady);
    }
}

void showSourceLeds()
{
    const auto *engine = poolObject<ParaProcess>(ENUM_PARAPROCESS);
    if (!engine)
        return;
    for (int source = 0; source < int(std::size(sourceLeds)); ++source) {
        // A source in use blinks also without a signal: the key tells where a black layer comes from.
        const enLedStatus unused = hasSignal(*engine, source) ? LED_ON : LED_OFF;
        KeyEvent::SendLedCommand(sourceLeds[source],
                                 isUsed(*engine, QString::number(source)) ? LED_BLINK : unused);
    }
}
} // namespace VASK
