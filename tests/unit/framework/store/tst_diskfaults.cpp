// Every call that a start and a save make to the disk fails, one after the other: once, or with all that come
// behind it. The panel goes on, what is whole stays whole, and when the disk works again the next save holds
// everything.
#include "fpd_hostlink.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/storerig.h"

#include <cerrno>

using namespace VASK;
using namespace storerig;

namespace
{
constexpr int callsAtMost = 100;

QString faultFile()
{
    return board::filePath(hostlink::diskFaultFile);
}

void setFault(int call, int error, bool goesOn)
{
    QFile file(faultFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString("any %1 %2 %3").arg(call).arg(error).arg(goesOn ? "on" : "").toUtf8());
}

/// Ends the fault. False if it has hit nothing: there was no such call.
bool endFault()
{
    QFile file(faultFile());
    const bool wasThere = file.open(QIODevice::ReadOnly);
    const QList<QByteArray> words = file.readAll().simplified().split(' ');
    file.remove();
    return wasThere && words.value(1).toInt() < (words.size() > 3 ? 2 : 1);
}
} // namespace

class TestDiskFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        m_state = freshState();
        Store store;
        m_factory = contents("config_factory.xml");
        store.UpdataItemCurValue(MENU_Audio_Volume, "17");
        store.write(MENU_ScreenBrightness, "61");
        store.endSync();
        m_before = contents("config.xml");
        store.write(MENU_ScreenBrightness, "62");
        store.endSync();
        m_after = contents("config.xml");
    }

    void everyCallFails_data()
    {
        addColumns<int, bool, bool>({"error", "goesOn", "isDamaged"});
        const auto row = [](const char *name, int error, bool goesOn, bool isDamaged = false) {
            QTest::newRow(name) << error << goesOn << isDamaged;
        };
        row("no space, once", ENOSPC, false);
        row("no space", ENOSPC, true);
        row("no space, config.xml is damaged", ENOSPC, true, true);
        row("input/output error", EIO, true);
        row("read-only", EROFS, true);
        row("no permission", EACCES, true);
        row("no permission, once", EACCES, false);
        row("no permission once, config.xml is damaged", EACCES, false, true);
    }
    void everyCallFails()
    {
        const auto [error, goesOn, isDamaged] = fetched<int, bool, bool>({"error", "goesOn", "isDamaged"});
        int call = 1;
        for (bool hasHit = true; hasHit; ++call) {
            write("config.xml", isDamaged ? m_before.left(5000) : m_before);
            write("config_backup.xml", m_before);
            write("config_factory.xml", m_factory);
            setFault(call, error, goesOn);
            const QString fault = startAndSave(isDamaged);
            hasHit = endFault();
            QVERIFY2(fault.isEmpty(), qPrintable(QString("call %1: %2").arg(call).arg(fault)));
            m_store->slot_updateXml();
            m_store
                ->slot_updateXml(); // files that were out of reach are read by one, and written by the next
            m_store->endSync();
            m_store.reset();
            QVERIFY2(contents("config.xml") == m_after, qPrintable(QString("call %1").arg(call)));
            QCOMPARE(contents("config_backup.xml"), m_after);
            QCOMPARE(contents("config_factory.xml"), m_factory);
            QVERIFY(call < callsAtMost);
        }
        QVERIFY(call > 20); // else the calls are not counted
    }

private:
    /// What is wrong while the disk fails.
    QString startAndSave(bool isDamaged)
    {
        m_store = std::make_unique<Store>();
        m_store->write(MENU_ScreenBrightness, "62");
        m_store->endSync();
        m_store->slot_updateXml();
        m_store->endSync();
        if (m_store->value() != "62")
            return "the panel has not what was set";
        const QList<QByteArray> whole{m_before, m_after};
        const bool isConfig = whole.contains(contents("config.xml"));
        const bool isBackup = whole.contains(contents("config_backup.xml"));
        if (!isConfig && (!isDamaged || !isBackup))
            return "config.xml is not whole";
        if (contents("config_factory.xml") != m_factory)
            return "the factory copy is not whole";
        return {};
    }

    std::unique_ptr<QTemporaryDir> m_state;
    std::unique_ptr<Store> m_store;
    QByteArray m_factory;
    QByteArray m_before;
    QByteArray m_after;
};

FPD_TEST(TestDiskFaults)
#include "tst_diskfaults.moc"
