#include "keypaddevice.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/select.h>
#include <unistd.h>

int keypad_open(const char *path, int flags)
{
    return open(path, flags | O_CLOEXEC);
}

int keypad_select(int descriptor, int timeoutMs)
{
    if (descriptor < 0)
        return -1;
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(descriptor, &readable);
    timeval timeout{timeoutMs / 1000, timeoutMs % 1000 * 1000};
    return select(descriptor + 1, &readable, nullptr, nullptr, &timeout);
}

ssize_t keypad_read(int descriptor, void *buffer, size_t size)
{
    return read(descriptor, buffer, size);
}

int keypad_ioctl(int descriptor, unsigned long request, void *block)
{
    return ioctl(descriptor, request, block);
}

void keypad_close(int descriptor)
{
    close(descriptor);
}
