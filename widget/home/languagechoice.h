// The language of the panel, chosen from the home screen. GUI thread.
#pragma once

class QWidget;

/// Asks for the language, and puts the panel into it. Does nothing while something stands before the screen.
void chooseLanguage(QWidget &home);
