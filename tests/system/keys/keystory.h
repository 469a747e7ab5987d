// The story of the dedicated keys as a test: all cases of the table with one way of pressing, each a row of
// the report. They take their time by waiting for LEDs and long presses, so several panels share the work.
// GUI thread of the test.
#pragma once

#include "tests/system/keys/keytable.h"

#include <QAtomicInt>
#include <QObject>
#include <QVector>

class KeyStory : public QObject
{
    Q_OBJECT
public:
    KeyStory(keytable::Press press, int panels);

private slots:
    void initTestCase();
    void keyDoesItsWork_data();
    void keyDoesItsWork();

private:
    /// Works off cases that nobody has taken yet, with a panel of its own, in a thread of its own.
    void work();

    const int m_panels;
    const QList<keytable::Case> m_cases;
    QAtomicInt m_next; ///< case to be taken
    /// What was wrong, by the number of the case; written by the thread that has the case.
    QVector<QString> m_faults;
};
