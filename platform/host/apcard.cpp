#include "apipc.h"

unsigned int apcard_bit_self()
{
    return 1;
}
