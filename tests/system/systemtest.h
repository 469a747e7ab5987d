// What the system tests have in common: a panel with its device and a user who knows the menu. A case that
// fails leaves the LCD and the log in build/screens/, and so does whatever crashed or a sanitizer found. GUI
// thread of the test.
#pragma once

#include "client/menuwalk.h"

#include <QObject>
#include <QTest>

class SystemTest : public QObject
{
    Q_OBJECT
protected:
    /// Before the first case. If not overridden: the panel is at home, speaks Chinese, and the device has
    /// told all of itself.
    virtual void begin();
    /// Behind each case.
    virtual void leave() {}
    /// The panel under test, where a case has one of its own.
    virtual Panel &panel() { return m_panel; }

    /// The panel goes down and comes up again, until it is ready.
    bool restart() { return m_panel.ask({"panel", "stop"}).ok && startAgain(); }
    bool startAgain() { return m_panel.start() && m_panel.ask({"wait", "ready"}).ok; }
    bool clearWrites() { return m_panel.ask({"writes", "--clear"}).ok; }
    bool waitUntilStored(int item, const QString &value, const QString &field = "Value");

    Panel m_panel;
    MenuWalk m_walk{m_panel};

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

private:
    void lookForDamage();
};
