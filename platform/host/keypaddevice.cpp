#include "keypaddevice.h"

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "platform/host/statefile.h"

#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
constexpr int answerTimeoutMs = 500;

int waitReadable(int descriptor, int timeoutMs)
{
    pollfd entry{descriptor, POLLIN, 0};
    return poll(&entry, 1, timeoutMs);
}
} // namespace

int keypad_open(const char *, int flags)
{
    const int descriptor =
        hostlink::connectSocket(host::stateFile(hostlink::keypadSocket).toStdString(), SOCK_SEQPACKET);
    if (descriptor < 0)
        return -1;
    const char mode = (flags & O_ACCMODE) == O_RDONLY ? 'r' : 'w';
    if (send(descriptor, &mode, 1, MSG_NOSIGNAL) != 1) {
        close(descriptor);
        return -1;
    }
    return descriptor;
}

int keypad_select(int descriptor, int timeoutMs)
{
    if (descriptor < 0)
        return -1;
    return waitReadable(descriptor, timeoutMs);
}

ssize_t keypad_read(int descriptor, void *buffer, size_t size)
{
    // As the device does: all words that wait, not the first packet alone.
    auto *bytes = static_cast<char *>(buffer);
    size_t filled = 0;
    while (size - filled >= sizeof(uint16_t)) {
        const ssize_t got = recv(descriptor, bytes + filled, sizeof(uint16_t), MSG_DONTWAIT);
        if (got != ssize_t(sizeof(uint16_t)))
            return filled > 0 ? ssize_t(filled) : got;
        filled += size_t(got);
    }
    return ssize_t(filled);
}

int keypad_ioctl(int descriptor, unsigned long request, void *block)
{
    char packet[sizeof(uint32_t) + hostlink::ledBlockSize];
    const uint32_t number = uint32_t(request);
    memcpy(packet, &number, sizeof number);
    memcpy(packet + sizeof number, block, hostlink::ledBlockSize);
    int32_t result = -1;
    if (send(descriptor, packet, sizeof packet, MSG_NOSIGNAL) != ssize_t(sizeof packet) ||
        waitReadable(descriptor, answerTimeoutMs) != 1 ||
        recv(descriptor, &result, sizeof result, 0) != ssize_t(sizeof result))
        return -1;
    return result;
}

void keypad_close(int descriptor)
{
    close(descriptor);
}
