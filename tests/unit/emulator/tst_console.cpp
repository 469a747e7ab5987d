// The console and the window as their users get them wrong: clients that go away, files that are none,
// numbers out of any range.
#include "emulator/window/window.h"
#include "emulatorrig.h"

class TestConsole : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_rig.reset(); }
    void aKeyIsLetGoWithoutItsClient();
    void aKeyIsLetGoWithTheFocus();

private:
    /// All key words up to now, once there are so many.
    QList<QByteArray> keys(int count);

    std::unique_ptr<EmulatorRig> m_rig;
};

namespace
{
const QByteArray okPressed("\x22\1"), okReleased("\xa2\1");
} // namespace

void TestConsole::init()
{
    m_rig = std::make_unique<EmulatorRig>();
    QVERIFY(m_rig->open());
}

QList<QByteArray> TestConsole::keys(int count)
{
    QList<QByteArray> words;
    QTest::qWaitFor([&] {
        words += m_rig->panel->keys();
        return words.size() >= count;
    });
    return words;
}

void TestConsole::aKeyIsLetGoWithoutItsClient()
{
    auto client = m_rig->client();
    client->write("key ok\n");
    QCOMPARE(keys(1), QList<QByteArray>{okPressed});
    client.reset();
    QCOMPARE(keys(1), QList<QByteArray>{okReleased});
    QCOMPARE(m_rig->ask("key ok"), QByteArray("ok"));
    QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
}

void TestConsole::aKeyIsLetGoWithTheFocus()
{
    EmulatorWindow window(*m_rig->emulator);
    QTest::keyPress(&window, Qt::Key_Return);
    QCOMPARE(keys(1), QList<QByteArray>{okPressed});
    QEvent focusGoes(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&window, &focusGoes);
    QCOMPARE(keys(1), QList<QByteArray>{okReleased});
    QTest::keyRelease(&window, Qt::Key_Return); // comes late: the key is up already
    QTest::keyClick(&window, Qt::Key_Return);
    QCOMPARE(keys(2), (QList<QByteArray>{okPressed, okReleased}));
}

QTEST_MAIN(TestConsole)
#include "tst_console.moc"
