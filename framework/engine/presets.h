// The ten presets as the device keeps them. GUI thread.
#pragma once

#include "menu/itemfamilies.h"

#include <array>
#include <cstddef>

namespace VASK
{
class MenuAnalysis;
class ParaProcess;

class Presets
{
public:
    static constexpr int count = FAMILY_Preset.count;
    static bool exists(int preset) { return preset >= 0 && preset < count; }

    explicit Presets(ParaProcess &engine) : m_engine(engine) {}

    /// Name and state of each from the snapshot; inUse is the number of the one that is loaded.
    void load(MenuAnalysis &store, int inUse);
    /// Does a preset, from 0, stand under a name that the device keeps?
    bool isNamed(int preset) const { return m_named[size_t(preset)]; }
    void setNamed(int preset, bool named) { m_named[size_t(preset)] = named; }
    /// Both rows of a preset load all of its item again.
    static void reloadRows(int preset);
    /// The row of the preset that is being copied can be chosen again.
    static void giveBackCopied();

private:
    ParaProcess &m_engine;
    std::array<bool, count> m_named{};
};

/// Loads a preset, from 0, without its dialog; tells if it is empty. GUI thread.
void quickLoadPreset(ParaProcess &engine, MenuAnalysis &store, int preset);
} // namespace VASK
