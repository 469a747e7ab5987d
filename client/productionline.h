// A worker on the line: starts the production test of a panel that is at home, works through its steps and
// reads its table off the LCD. GUI thread of its program.
#pragma once

#include "client/panel.h"

class ProductionLine
{
public:
    enum Step { SelfTest = 1, Keys = 2, InOut = 3 };

    explicit ProductionLine(Panel &panel) : m_panel(panel) {}

    /// Holds the keys that start the test.
    bool begin();
    /// The title of a step stands on the LCD.
    bool waitFor(Step step);
    /// Every key that has a cell, but one.
    bool pressKeys(const QString &but = QString());
    /// What is left of the three key rounds after some.
    bool keyRounds(int done = 0);
    /// Plugs everything and tests one input after the other, up to the message at the end.
    bool passInOut();
    bool ok() { return m_panel.press(keys::Ok); }

    /// All names in the table, column by column, with + behind what has passed, - behind what has failed and
    /// ? behind what cannot be read.
    QString table(Step step);
    bool waitForTable(Step step, const QString &wanted);

private:
    /// The message at the end came up since the last mark.
    bool saved();

    Panel &m_panel;
};
