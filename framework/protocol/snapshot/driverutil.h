// Access to the flash snapshot by address, with three tries. Without a lock of its own; any thread.
#pragma once

namespace VASK
{
class driverutil
{
public:
    static driverutil *getInstance();

    /// Reads length bytes; 0 for success, else the library's last code and the destination as it was.
    int ReadDataFromFile(unsigned int address, unsigned int length, unsigned char *destination);
    /// Writes length bytes; result as for reading.
    int WriteDataToFile(unsigned int address, unsigned int length, unsigned char *source);

private:
    driverutil();
};
} // namespace VASK
