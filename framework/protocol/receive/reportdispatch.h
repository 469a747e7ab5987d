// Brings a package to the handler of its register: one of the sending side as a whole, one of the receiving
// cards register by register, as it may span several. Report thread.
#pragma once

namespace VASK
{
class PackageRequestProto3rd;

/// A register of the receiving cards that may be reported.
struct MessageCheck {
    unsigned int address;
    unsigned int length; ///< bytes
};

/// Handles a package; one for anybody but the sending side and the receiving cards is dropped.
void dispatchReport(const PackageRequestProto3rd &package, bool flag);
} // namespace VASK
