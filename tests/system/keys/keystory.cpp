#include "tests/system/keys/keystory.h"

#include "tests/system/keys/keycheck.h"

#include <QTest>
#include <QThread>

using namespace keytable;

KeyStory::KeyStory(Press press, int panels)
    : m_panels(panels), m_cases(cases(press)), m_faults(m_cases.size(), "not tried")
{
}

void KeyStory::initTestCase()
{
    QList<QThread *> threads;
    m_faults.detach();
    for (int panel = 0; panel < m_panels; ++panel) {
        threads.append(QThread::create([this] { work(); }));
        threads.last()->setParent(this);
        threads.last()->start();
    }
    for (QThread *thread : qAsConst(threads))
        QVERIFY(thread->wait());
}

void KeyStory::work()
{
    const auto take = [this] { return m_next.fetchAndAddOrdered(1); };
    const int count = m_cases.size();
    QString *faults = m_faults.data();
    Panel panel;
    MenuWalk walk(panel);
    KeyCheck check(panel, walk);
    const QString noStart = check.start();
    if (!noStart.isEmpty()) {
        // One case tells of it, the others have theirs done by whoever has started.
        if (const int i = take(); i < count)
            faults[i] = noStart;
        return;
    }
    for (int i = take(); i < count; i = take()) {
        const QString fault = check.check(m_cases[i]);
        check.cleanUp(fault.isEmpty() ? QString() : m_cases[i].text());
        // What a sanitizer has to say belongs to the case in which it said so.
        faults[i] = fault + panel.damage();
    }
}

void KeyStory::keyDoesItsWork_data()
{
    QTest::addColumn<QString>("fault");
    for (int i = 0; i < m_cases.size(); ++i)
        QTest::addRow("%s", qPrintable(m_cases[i].text())) << m_faults[i];
}

void KeyStory::keyDoesItsWork()
{
    QFETCH(QString, fault);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}
