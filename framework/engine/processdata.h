// The process-data block: the live state of the device that never goes to the store. Its fields are addressed
// by item numbers from PARA_CabinetWidth on and cross the interfaces as decimal text. Read and written by the
// GUI thread and the report thread; each access takes a short lock of its own.
#pragma once

#include "menu/itemfamilies.h"

#include <QMutex>
#include <QString>
#include <array>
#include <cstdint>

namespace VASK
{
/// Stands for a rate that nobody knows, hundredths of a hertz.
constexpr int unknownRate = 6000;

/// Fields of an input record, in their order behind PARA_InputRecordFirst.
enum InputField : int {
    FIELD_SourceCode,
    FIELD_Interlaced,
    FIELD_SignalState,
    FIELD_Width,
    FIELD_Height,
    FIELD_FramePeriod,
    FIELD_ColourSampling,
    FIELD_Count
};
static_assert(FIELD_Count == int(STRIDE_InputRecord));

/// The item of an input that holds a field.
constexpr ENUM_MenuIndex inputItem(int input, InputField field)
{
    return nth(nth(PARA_InputRecordFirst, input, STRIDE_InputRecord), field);
}

constexpr int stableSignal = 3; ///< signal state of an input record

/// What the device last told of one input.
struct InputRecord {
    uint8_t sourceCode = 0;
    uint8_t interlaced = 0;
    uint8_t signalState = 0;    ///< 3: stable, anything else: no signal
    uint16_t width = 0;         ///< pixels
    uint16_t height = 0;        ///< lines
    uint16_t framePeriodUs = 0; ///< microseconds, 0: unknown
    uint8_t colourSampling = 0; ///< 0 RGB 4:4:4, 1 YCbCr 4:2:2, 2 YCbCr 4:4:4

    /// Frame rate in hundredths of a hertz; unknownRate when the period is unknown.
    int rateCentiHz() const;
    /// The same, but 0 when the period is unknown.
    int measuredRateCentiHz() const;
};

class ProcessData
{
public:
    static constexpr int inputCount = FAMILY_InputRecord.count;
    static constexpr int portCount = FAMILY_PortState.count;

    /// Does the block have a field of that number?
    static bool contains(ENUM_MenuIndex index);
    /// The field as decimal text; empty for a number outside the block.
    QString text(ENUM_MenuIndex index) const;
    int value(ENUM_MenuIndex index) const;
    /// Writes a field, narrowed to its width. A number outside the block is ignored.
    void set(ENUM_MenuIndex index, int value);
    InputRecord input(int number) const;
    void clear();

private:
    static constexpr int fieldCount = PARA_END - PARA_CabinetWidth;

    mutable QMutex m_mutex;
    std::array<uint16_t, fieldCount> m_fields{};
};
} // namespace VASK
