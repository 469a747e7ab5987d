#include "framework/engine/advancedports.h"

#include "framework/engine/limits/bandwidth.h"
#include "framework/engine/paraprocess.h"
#include "framework/engine/processdata.h"
#include "menu/itemindex.h"

namespace VASK
{
AdvancedPorts::AdvancedPorts(const ParaProcess &engine)
    : m_chosen(engine.GetParaFromIndex(MENU_Advanced_EthernetPort).toInt() - 1),
      m_cabinetWidth(engine.processData().value(PARA_CabinetWidth)),
      m_cabinetHeight(engine.processData().value(PARA_CabinetHeight)),
      m_rate(engine.processData().value(PARA_OutputRate))
{
    for (int port = 0; port < count; ++port)
        for (int field = 0; field < FieldCount; ++field) {
            const ENUM_MenuIndex item = nth(nth(MENU_AdvancedPort1_Rows, port, STRIDE_AdvancedPort), field);
            m_ports[size_t(port)][size_t(field)] = uint16_t(engine.GetParaFromIndex(item).toInt());
        }
}

bool AdvancedPorts::overloads(int port, Field field, int value) const
{
    uint16_t width = 0;
    uint16_t height = 0;
    for (int i = 0; i < count; ++i) {
        auto record = m_ports[size_t(i)];
        if (i == port)
            record[field] = value;
        width = qMax(width, uint16_t(record[X] + record[Columns] * m_cabinetWidth));
        height = qMax(height, uint16_t(record[Y] + record[Rows] * m_cabinetHeight));
    }
    return VideoBandwidthConstrain(width, height, uint16_t(m_rate), wholeOutputPixelRate, 1);
}

bool AdvancedPorts::startLinesDiffer(int port) const
{
    for (const auto &record : m_ports)
        if (record[Y] != m_ports[size_t(port)][Y])
            return true;
    return false;
}

bool GetAdvCfgAdjust(const ParaProcess &engine, int port, int field, int value)
{
    return AdvancedPorts(engine).overloads(port, AdvancedPorts::Field(field), value);
}

bool GetAdvCfgPortAdjust(const ParaProcess &engine, int port)
{
    return port >= 0 && port < AdvancedPorts::count && AdvancedPorts(engine).startLinesDiffer(port);
}
} // namespace VASK
