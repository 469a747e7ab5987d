// Lasts while a step of the knob changes a value, so that the send path can tell a turn, of which it may hold
// values back, from a change that comes from elsewhere. Made on the GUI thread.
#pragma once

#include <QtGlobal>
#include <atomic>

namespace VASK
{
class KnobTurn
{
public:
    KnobTurn() { RotateFlg = true; }
    ~KnobTurn() { RotateFlg = false; }
    Q_DISABLE_COPY(KnobTurn)

    /// From any thread.
    static bool runs() { return RotateFlg; }

private:
    inline static std::atomic<bool> RotateFlg{false};
};
} // namespace VASK
