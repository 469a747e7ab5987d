// The display mode as the device reports it. Any thread.
#pragma once

namespace VASK
{
class MenuAnalysis;
class ParaProcess;

/// 3 normal, 4 freeze, 5 black, 6 test pattern; others are passed over.
void followDisplayMode(ParaProcess &engine, MenuAnalysis &store, int code);
} // namespace VASK
