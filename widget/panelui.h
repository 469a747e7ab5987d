// What framework/ asks of the widgets as a whole.
#pragma once

namespace VASK
{
/// Enters the pages and the dialogs, so that framework/ finds them.
void enterWidgets();
} // namespace VASK
