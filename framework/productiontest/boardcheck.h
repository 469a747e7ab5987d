// What the panel finds out about its own board with the board's shell tools. Any thread; each question waits
// for the tool.
#pragma once

namespace VASK
{
namespace boardcheck
{
/// The beginning of what a tool prints. A blank line is no answer.
enum class Answer { NotStarted, None, Zero, Other };

/// The FPGA tells its version. None: it cannot be reached.
Answer fpgaVersion();
/// The FPGA's word about its memory. Zero: the memory has failed.
Answer fpgaMemory();
/// Zero: the microcontroller cannot be reached.
Answer mcuVersion();
} // namespace boardcheck

/// Asks for the panel's own rows of the self-check list and enters them there.
void checkBoard();
} // namespace VASK
