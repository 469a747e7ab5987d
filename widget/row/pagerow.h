// What a page asks of a row: how OK and the knob work on it. GUI thread.
#pragma once

namespace VASK
{
/// What OK does on a row.
enum class OkKind {
    Nothing,
    OpensPage,
    Acts,
    EditsNumber,  ///< and the knob steps, faster when it is turned faster
    EditsAddress, ///< number by number, the knob steps
    ChoosesFromList,
};

/// Rows whose value the knob changes step by step.
constexpr bool stepsByKnob(OkKind kind)
{
    return kind == OkKind::EditsNumber || kind == OkKind::EditsAddress;
}

class PageRow
{
public:
    virtual ~PageRow() = default;

    virtual OkKind okKind() const { return OkKind::Nothing; }
    /// Parts side by side, which the cursor walks through.
    virtual bool hasParts() const { return false; }
    /// Drawn by style sheets of its own, which build on that of the page.
    virtual bool needsSheet() const { return false; }
};
} // namespace VASK
