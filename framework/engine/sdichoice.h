// The SDI input where it can be chosen, once it is known which inputs the device has. Any thread.
#pragma once

namespace VASK
{
class MenuAnalysis;
class ParaProcess;

void offerSdi(ParaProcess &engine, MenuAnalysis &store, bool has);
} // namespace VASK
