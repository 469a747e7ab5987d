#include "framework/protocol/link/proto3rdreceiveparse.h"

namespace VASK
{
InputTable Proto3rdReceiveParse::inputSourceCode;
InputTable Proto3rdReceiveParse::EDIDSourceCode;
InputTable Proto3rdReceiveParse::MosaicSourceCode;
} // namespace VASK
