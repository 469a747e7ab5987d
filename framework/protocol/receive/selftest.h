// The device's answer to a self test: a text of records, to which the panel adds what it knows of its own
// board. Report thread.
#pragma once

#include "framework/protocol/receive/report.h"

namespace VASK
{
/// Fills the self-check list, and tells the production test, while it waits for it, how the check ended.
int ParseSelfTestInfo(const Report &report);
} // namespace VASK
