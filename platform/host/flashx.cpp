#include "flashx.h"

#include "fpd_hostlink.h"
#include "platform/host/statefile.h"

#include <QFile>
#include <cstring>

namespace
{
bool inRange(unsigned int address, unsigned int length)
{
    return address <= hostlink::flashSize && length <= hostlink::flashSize - address;
}
} // namespace

void Flash_Init() {}

int ReadDataFromFlashx(unsigned int address, unsigned int length, unsigned char *buffer)
{
    if (!inRange(address, length) || host::takeFault(hostlink::flashFaultFile))
        return -1;
    QFile image(host::stateFile(hostlink::flashFile));
    if (!image.open(QIODevice::ReadOnly) || !image.seek(address))
        return -1;
    const QByteArray bytes = image.read(length);
    if (bytes.size() != int(length))
        return -1;
    memcpy(buffer, bytes.constData(), length);
    return 0;
}

int WriteDataToFlashx(unsigned int address, unsigned int length, const unsigned char *buffer)
{
    QFile image(host::stateFile(hostlink::flashFile));
    if (!inRange(address, length) || !image.open(QIODevice::ReadWrite) || !image.seek(address))
        return -1;
    return image.write(reinterpret_cast<const char *>(buffer), length) == qint64(length) ? 0 : -1;
}
