// When the device tells what a write has done: once, with the last value, and only if there is something to
// tell.
#include "emulator/bus/device.h"
#include "panelend.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <memory>

namespace
{
constexpr int longEnough = 400;
}

class TestDeviceReports : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir(m_folder->path()).mkdir("run");
        powerOn();
    }

    void cleanup()
    {
        m_panel.reset();
        m_device.reset();
    }

    void aMovingValueIsToldWhenItRests()
    {
        for (int volume = 1; volume <= 10; ++volume) {
            QVERIFY(m_panel->write(0x1300009F, QByteArray(1, char(volume)).toHex()));
            pass(20);
        }
        QVERIFY(takeTold().isEmpty());
        pass(longEnough);
        QCOMPARE(takeTold(), QList<QByteArray>{"1300009e 010a"});
        QCOMPARE(m_device->writes().size(), 10);
    }

    void everyRegisterIsToldOnItsOwn()
    {
        m_panel->write(0x02000074, "78");
        m_panel->write(0x13000004, "04");
        m_panel->write(0x13000004, "04");
        m_panel->write(0x13000001, "00"); // has no report
        pass(longEnough);
        QCOMPARE(takeTold(), (QList<QByteArray>{"2000074 78", "13000004 04"}));
    }

    void silenceIsKept()
    {
        m_device->setReporting(false);
        m_panel->write(0x02000074, "78");
        pass(longEnough);
        QVERIFY(takeTold().isEmpty());
        QCOMPARE(m_device->registers().u8(0x02000074), 0x78);
    }

    void theStartIsToldInOrder()
    {
        QVERIFY(m_device->reportAll());
        pass(100);
        const QList<QByteArray> told = takeTold();
        for (int input = 0; input < 9; ++input)
            QVERIFY(told[input].startsWith(QByteArray::number(0x13010001 + 32 * input, 16)));
        // The services last, the second when a slow panel has read of the first.
        for (const QByteArray &report : told)
            QCOMPARE(report.startsWith("14000000"), report == told.last());
        QCOMPARE(told.last(), QByteArray("14000000 01"));
        pass(400);
        QCOMPARE(takeTold(), QList<QByteArray>{"14000000 02"});
    }

    void whatIsPushedIsHeld()
    {
        QVERIFY(m_device->reportAndAdopt({0x1300009E, QByteArray::fromHex("0263")}));
        pass(50);
        QCOMPARE(takeTold(), QList<QByteArray>{"1300009e 0263"});
        m_panel->write(0x1300009F, "63"); // what the device holds already
        pass(longEnough);
        QVERIFY(takeTold().isEmpty());
        m_panel->write(0x1300009F, "32"); // put right by the panel
        pass(longEnough);
        QCOMPARE(takeTold(), QList<QByteArray>{"1300009e 0232"});
    }

    void stateOutlivesThePowerCut()
    {
        m_panel->write(0x13411000, "01");
        m_panel->write(0x02000018, "80808080");
        m_panel->write(0x13020042, "030030");
        pass(longEnough);
        const QStringList before = m_device->model().describe();
        powerOn();
        QCOMPARE(m_device->model().describe(), before);
        QVERIFY(before.contains("  port 4: link on, backup on, engaged off"));
    }

private:
    void pass(int milliseconds)
    {
        m_told += m_panel->reports();
        QTest::qWait(milliseconds);
        m_told += m_panel->reports();
    }
    QList<QByteArray> takeTold()
    {
        QList<QByteArray> told;
        told.swap(m_told);
        return told;
    }

    void powerOn()
    {
        m_panel.reset();
        m_device = std::make_unique<Device>(m_folder->path());
        m_device->setReporting(false);
        QVERIFY(m_device->flash().install().isEmpty() && m_device->setBusUp(true));
        m_panel = std::make_unique<PanelEnd>(m_folder->path());
        QVERIFY(QTest::qWaitFor([this] { return m_device->isJoined(); }));
        m_device->setReporting(true);
        m_told = m_panel->reports();
        QVERIFY(takeTold().isEmpty());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Device> m_device;
    std::unique_ptr<PanelEnd> m_panel;
    QList<QByteArray> m_told;
};

FPD_TEST_GUILESS(TestDeviceReports)
#include "tst_devicereports.moc"
