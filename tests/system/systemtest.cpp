#include "tests/system/systemtest.h"

#include <QCoreApplication>

void SystemTest::begin()
{
    QVERIFY(m_panel.startReady());
    QVERIFY(m_walk.speak("fpd_ZH"));
}

bool SystemTest::waitUntilStored(int item, const QString &value, const QString &field)
{
    const bool found = m_panel.waitUntil([&] { return m_panel.stored(item, field) == value; });
    if (!found)
        qWarning("the store holds %s", qPrintable(m_panel.stored(item, field)));
    return found;
}

void SystemTest::lookForDamage()
{
    const QString damage = panel().damage();
    if (QTest::currentTestFailed() || !damage.isEmpty()) {
        QStringList name{QCoreApplication::applicationName(), QTest::currentTestFunction()};
        if (QTest::currentDataTag())
            name << QTest::currentDataTag();
        panel().keepEvidence(name.join('-').replace('/', '_'));
    }
    QCOMPARE(damage, QString());
}

void SystemTest::initTestCase()
{
    begin();
    lookForDamage();
}

void SystemTest::cleanup()
{
    lookForDamage();
    leave();
}

void SystemTest::cleanupTestCase()
{
    lookForDamage();
}
