#include "tests/system/keystory.h"

#include "tests/system/keycheck.h"

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
    const int count = m_cases.size();
    m_faults.detach();
    for (int panel = 0; panel < m_panels; ++panel) {
        const int first = count * panel / m_panels, end = count * (panel + 1) / m_panels;
        threads.append(QThread::create([this, first, end] { work(first, end); }));
        threads.last()->setParent(this);
        threads.last()->start();
    }
    for (QThread *thread : qAsConst(threads))
        QVERIFY(thread->wait());
}

void KeyStory::work(int first, int end)
{
    KeyCheck panel;
    QString *faults = m_faults.data();
    QString fault = panel.start();
    for (int i = first; i < end && fault != "the panel does not start"; ++i) {
        faults[i] = panel.check(m_cases[i]);
        panel.cleanUp(faults[i].isEmpty() ? QString() : m_cases[i].text());
    }
    const QString damage = panel.damage();
    if (!damage.isEmpty())
        faults[end - 1] = damage;
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
