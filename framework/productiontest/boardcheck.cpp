#include "framework/productiontest/boardcheck.h"

#include "boardio.h"
#include "framework/productiontest/selfchecklist.h"

#include <QByteArray>

namespace VASK
{
namespace boardcheck
{
namespace
{
constexpr int answerSize = 7; ///< bytes of an answer that are looked at

Answer ask(const char *commandLine)
{
    FILE *pipe = board::openPipe(commandLine);
    if (!pipe)
        return Answer::NotStarted;
    char text[answerSize] = {};
    const auto count = int(fread(text, 1, sizeof text, pipe));
    board::closePipe(pipe);
    const QByteArray answer = QByteArray(text, count).trimmed();
    if (answer.isEmpty())
        return Answer::None;
    return answer.startsWith('0') ? Answer::Zero : Answer::Other;
}
} // namespace

Answer fpgaVersion()
{
    return ask("fpga -v | grep FPGA | tail -l | awk '{print $4}'");
}

Answer fpgaMemory()
{
    return ask("fpga r v 0x101f 1 | grep 0x01 -c");
}

Answer mcuVersion()
{
    return ask("stm32 -v | grep mcu | grep 20 -c");
}
} // namespace boardcheck

void checkBoard()
{
    using boardcheck::Answer;
    const Answer version = boardcheck::fpgaVersion();
    const bool fpga = version == Answer::Zero || version == Answer::Other;
    SelfCheckList::setVerdict(SelfCheckList::FpgaStatus, fpga);
    SelfCheckList::setVerdict(SelfCheckList::FpgaMemory, fpga && boardcheck::fpgaMemory() == Answer::Other);
    const Answer mcu = boardcheck::mcuVersion();
    if (mcu == Answer::Zero || mcu == Answer::Other)
        SelfCheckList::setVerdict(SelfCheckList::McuStatus, mcu == Answer::Other);
}
} // namespace VASK
