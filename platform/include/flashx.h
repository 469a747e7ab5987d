// The board's parameter flash, read and written by address. Any thread.
#pragma once

extern "C" {
/// Opens the flash; called once before the first access.
void Flash_Init();
/// 0 when length bytes from the address are in the buffer.
int ReadDataFromFlashx(unsigned int address, unsigned int length, unsigned char *buffer);
/// 0 when the bytes are written.
int WriteDataToFlashx(unsigned int address, unsigned int length, const unsigned char *buffer);
} // extern "C"
