// The advanced screen configuration of the ten ports, read once so that a search can try many values on it.
// Any thread; an object is used where it was made.
#pragma once

#include "menu/itemfamilies.h"

#include <array>

namespace VASK
{
class ParaProcess;

class AdvancedPorts
{
public:
    enum Field { Rows, Columns, X, Y, FieldCount };
    static constexpr int count = FAMILY_AdvancedPort.count;

    explicit AdvancedPorts(const ParaProcess &engine);

    /// The port that the menu page shows, counted from 0.
    int chosen() const { return m_chosen; }
    /// True when the whole screen, with one field of one port replaced, exceeds what the output carries.
    bool overloads(int port, Field field, int value) const;
    /// True when another port starts on another line than this one.
    bool startLinesDiffer(int port) const;

private:
    std::array<std::array<int, FieldCount>, count> m_ports;
    int m_chosen;
    int m_cabinetWidth;  ///< pixels
    int m_cabinetHeight; ///< lines
    int m_rate;          ///< hundredths of a hertz
};

/// The two questions as the engine asks them. field: 0 rows, 1 columns, 2 X, 3 Y.
bool GetAdvCfgAdjust(const ParaProcess &engine, int port, int field, int value);
bool GetAdvCfgPortAdjust(const ParaProcess &engine, int port);
} // namespace VASK
