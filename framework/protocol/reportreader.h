// The one call by which a queued report gets read. Report thread.
#pragma once

#include "framework/protocol/packagerequestproto3rd.h"

namespace VASK
{
void readReport(const PackageRequestProto3rd &report, bool flag);
} // namespace VASK
