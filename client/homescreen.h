// Where the home screen shows what, and what is seen there. GUI thread of its program.
#pragma once

#include "client/panel.h"

namespace homescreen
{
/// "PLACE:SIGHT". Places: main, pip1, pip2, screen, bright, ip, sync with a text; port1 to port6 with dark,
/// green, yellow or blinking; led0 to led15 with on or off; mode with the number that the test gives a
/// picture.
bool sees(Panel &panel, const QString &sight);
bool waitToSee(Panel &panel, const QString &sight);
/// The colour of a port's picture, from 1: green linked, yellow backup, dark.
QString portColour(const Panel &panel, int port);
/// The picture of the display mode.
QImage modePicture(const Panel &panel);
/// The picture of the synchronisation, without its text.
QImage syncPicture(const Panel &panel);
} // namespace homescreen
