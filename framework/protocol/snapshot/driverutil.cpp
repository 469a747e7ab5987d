#include "framework/protocol/snapshot/driverutil.h"

#include "flashx.h"

#include <unistd.h>

namespace VASK
{
namespace
{
/// Tries an access up to three times, with a pause after each failure.
template <class Access> int retried(Access access)
{
    constexpr int tries = 3;
    constexpr useconds_t pauseUs = 100;
    int result = 0;
    for (int i = 0; i < tries; ++i) {
        result = access();
        if (result == 0)
            break;
        usleep(pauseUs);
    }
    return result;
}
} // namespace

driverutil::driverutil()
{
    Flash_Init();
}

driverutil *driverutil::getInstance()
{
    static driverutil instance;
    return &instance;
}

int driverutil::ReadDataFromFile(unsigned int address, unsigned int length, unsigned char *destination)
{
    return retried([=] { return ReadDataFromFlashx(address, length, destination); });
}

int driverutil::WriteDataToFile(unsigned int address, unsigned int length, unsigned char *source)
{
    return retried([=] { return WriteDataToFlashx(address, length, source); });
}
} // namespace VASK
