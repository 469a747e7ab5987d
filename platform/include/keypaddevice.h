// The keypad's character device, "/dev/keypad0" of the board: key words up, LED blocks down. The functions
// have the meaning of open, select, read, ioctl and close on that device. All may be called from any thread.
#pragma once

#include <cstddef>
#include <sys/types.h>

/// Opens the device with the given O_ flags. A descriptor, or -1 if the device is not there.
int keypad_open(const char *path, int flags);

/// Waits at most timeoutMs for key words. 1: there is something to read, 0: nothing came, -1: error.
int keypad_select(int descriptor, int timeoutMs);

/// Reads at most size bytes of 16-bit little-endian key words. Number of bytes, 0 or -1 if there are none.
ssize_t keypad_read(int descriptor, void *buffer, size_t size);

/// Hands the driver an LED block of 76 bytes with its request number. 0, or -1 on failure.
int keypad_ioctl(int descriptor, unsigned long request, void *block);

void keypad_close(int descriptor);
