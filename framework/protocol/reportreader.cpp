#include "framework/protocol/reportreader.h"

#include <QDebug>

namespace VASK
{
void readReport(const PackageRequestProto3rd &report, bool)
{
    qDebug("report without a reader, addr:[%#x], len:[%d]", report.getAddress(), report.getReplyDataLength());
}
} // namespace VASK
