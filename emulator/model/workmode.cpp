#include "emulator/model/workmode.h"

namespace workmode
{
namespace
{
constexpr int sendingCard = 16;
constexpr quint32 fiberRegister = 0x020001DF;
} // namespace

bool isSendingCard(const Registers &registers)
{
    return registers.u8(modeRegister) == sendingCard;
}

QString text(const Registers &registers)
{
    if (isSendingCard(registers))
        return "sending card";
    return registers.u8(fiberRegister) == 1 ? "fiber converter" : "video controller";
}
} // namespace workmode
