// The items that show something of the running device, as they stand before it has told anything. GUI thread.
#pragma once

namespace VASK
{
class MenuAnalysis;
class ParaProcess;

void setStartValues(const ParaProcess &engine, MenuAnalysis &store);
/// Whoever leaves the kind of screen configuration that is in force is asked first.
void askBeforeOtherConfiguration(const ParaProcess &engine);
} // namespace VASK
