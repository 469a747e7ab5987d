#include "framework/engine/processdata.h"
#include "menu/itemindex.h"

namespace VASK
{
namespace
{
/// The number under which the block keeps a field: the second names of the reported output size are aliases.
ENUM_MenuIndex canonical(ENUM_MenuIndex index)
{
    if (index == PARA_ReportedWidthAlias)
        return PARA_ReportedWidth;
    if (index == PARA_ReportedHeightAlias)
        return PARA_ReportedHeight;
    return index;
}

bool isWide(ENUM_MenuIndex index)
{
    if (index < PARA_InputRecordFirst)
        return true;
    if (index >= PARA_PortLink)
        return false;
    const int field = (index - PARA_InputRecordFirst) % FIELD_Count;
    return field >= FIELD_Width && field <= FIELD_FramePeriod;
}
} // namespace

int InputRecord::measuredRateCentiHz() const
{
    constexpr int centiHzUs = 100000000;
    return framePeriodUs ? (centiHzUs + framePeriodUs / 2) / framePeriodUs : 0;
}

int InputRecord::rateCentiHz() const
{
    const int rate = measuredRateCentiHz();
    return rate ? rate : unknownRate;
}

bool ProcessData::contains(ENUM_MenuIndex index)
{
    return index >= PARA_CabinetWidth && index < PARA_END;
}

int ProcessData::value(ENUM_MenuIndex index) const
{
    if (!contains(index))
        return 0;
    QMutexLocker lock(&m_mutex);
    return m_fields[canonical(index) - PARA_CabinetWidth];
}

QString ProcessData::text(ENUM_MenuIndex index) const
{
    return contains(index) ? QString::number(value(index)) : QString();
}

void ProcessData::set(ENUM_MenuIndex index, int value)
{
    if (!contains(index))
        return;
    QMutexLocker lock(&m_mutex);
    m_fields[canonical(index) - PARA_CabinetWidth] = isWide(index) ? uint16_t(value) : uint8_t(value);
}

InputRecord ProcessData::input(int number) const
{
    InputRecord record;
    if (number < 0 || number >= inputCount)
        return record;
    QMutexLocker lock(&m_mutex);
    const uint16_t *fields = &m_fields[PARA_InputRecordFirst - PARA_CabinetWidth + number * FIELD_Count];
    record.sourceCode = uint8_t(fields[FIELD_SourceCode]);
    record.interlaced = uint8_t(fields[FIELD_Interlaced]);
    record.signalState = uint8_t(fields[FIELD_SignalState]);
    record.width = fields[FIELD_Width];
    record.height = fields[FIELD_Height];
    record.framePeriodUs = fields[FIELD_FramePeriod];
    record.colourSampling = uint8_t(fields[FIELD_ColourSampling]);
    return record;
}

void ProcessData::clear()
{
    QMutexLocker lock(&m_mutex);
    m_fields.fill(0);
}
} // namespace VASK
