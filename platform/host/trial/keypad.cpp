// Preloaded to a program for the board on a PC: its keypad is the emulator's, everything else is as it was.
// To wait for it and to read it is the same for a socket as for a device.
//
// Without the C library's header, whose functions may have any number of arguments: here they are passed on
// as they come, and where there is none behind the flags nobody looks at it.
#include "keypaddevice.h"

#include "fpd_hostlink.h"

#include <cstring>
#include <dlfcn.h>

namespace
{
int openAny(const char *function, const char *path, int flags, unsigned int mode)
{
    using Open = int (*)(const char *, int, unsigned int);
    if (strcmp(path, "/dev/keypad0") == 0)
        return keypad_open(path, flags);
    return reinterpret_cast<Open>(dlsym(RTLD_NEXT, function))(path, flags, mode);
}
} // namespace

extern "C" {
int open(const char *path, int flags, unsigned int mode)
{
    return openAny("open", path, flags, mode);
}

int open64(const char *path, int flags, unsigned int mode)
{
    return openAny("open64", path, flags, mode);
}

/// What a call without a mode becomes in a program that was hardened.
int __open_2(const char *path, int flags)
{
    return openAny("open", path, flags, 0);
}

int __open64_2(const char *path, int flags)
{
    return openAny("open64", path, flags, 0);
}

int ioctl(int descriptor, unsigned long request, void *block)
{
    using Ioctl = int (*)(int, unsigned long, void *);
    if (request == hostlink::ledRequest)
        return keypad_ioctl(descriptor, request, block);
    static const auto original = reinterpret_cast<Ioctl>(dlsym(RTLD_NEXT, "ioctl"));
    return original(descriptor, request, block);
}
} // extern "C"
