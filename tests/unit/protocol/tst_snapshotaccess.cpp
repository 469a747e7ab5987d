// What the panel reads by itself: the flash with its tries, and the list of the cabinet files.

#include "boardio.h"
#include "fpd_hostlink.h"
#include "frames.h"
#include "framework/protocol/cabinetnames.h"
#include "framework/protocol/driverutil.h"
#include "platform/host/statefile.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

using namespace VASK;

namespace
{
void write(const QString &file, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(file).path());
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray record(const QString &name)
{
    QByteArray bytes;
    for (QChar c : name)
        bytes += frames::number(c.unicode(), 2);
    return bytes.leftJustified(64, '\0', true);
}
} // namespace

class TestSnapshotAccess : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void flashIsTriedThreeTimes_data();
    void flashIsTriedThreeTimes();
    void writeAndReadBack();
    void cabinetFiles_data();
    void cabinetFiles();
    void missingCabinetList();
};

void TestSnapshotAccess::initTestCase()
{
    write(host::stateFile(hostlink::flashFile), "0123456789");
    QFile::resize(host::stateFile(hostlink::flashFile), hostlink::flashSize);
}

void TestSnapshotAccess::flashIsTriedThreeTimes_data()
{
    QTest::addColumn<int>("failures");
    QTest::addColumn<bool>("good");
    QTest::addColumn<int>("failuresLeft");
    QTest::newRow("none") << 0 << true << 0;
    QTest::newRow("one") << 1 << true << 0;
    QTest::newRow("two") << 2 << true << 0;
    QTest::newRow("three") << 3 << false << 0;
    QTest::newRow("no fourth try") << 4 << false << 1;
}

void TestSnapshotAccess::flashIsTriedThreeTimes()
{
    QFETCH(int, failures);
    QFETCH(bool, good);
    QFETCH(int, failuresLeft);
    const QString faults = host::stateFile(hostlink::flashFaultFile);
    write(faults, QByteArray::number(failures));
    unsigned char bytes[5] = "****";
    QCOMPARE(driverutil::getInstance()->ReadDataFromFile(2, 4, bytes) == 0, good);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(bytes)), QByteArray(good ? "2345" : "****"));
    QFile left(faults);
    QVERIFY(left.open(QIODevice::ReadOnly));
    QCOMPARE(left.readAll().toInt(), failuresLeft);
    left.close();
    write(faults, "0");
}

void TestSnapshotAccess::writeAndReadBack()
{
    unsigned char written[] = {1, 2, 3};
    unsigned char read[] = {0, 0, 0};
    QCOMPARE(driverutil::getInstance()->WriteDataToFile(0xD14100, 3, written), 0);
    QCOMPARE(driverutil::getInstance()->ReadDataFromFile(0xD14100, 3, read), 0);
    QCOMPARE(memcmp(written, read, 3), 0);
    QVERIFY(driverutil::getInstance()->ReadDataFromFile(hostlink::flashSize - 1, 2, read) != 0);
}

void TestSnapshotAccess::cabinetFiles_data()
{
    QTest::addColumn<QByteArray>("index");
    QTest::addColumn<QString>("names");
    const QByteArray unused(64, '\0');
    QTest::newRow("nothing") << QByteArray() << "";
    QTest::newRow("one record and no more") << record("P2.5.vcab") << "";
    QTest::newRow("one, then unused") << record("P2.5.vcab") + unused << "P2.5.vcab";
    QTest::newRow("two and a rest") << record("P2.5") + record(QString::fromUtf8("箱体")) + "x"
                                    << QString::fromUtf8("P2.5+箱体");
    QTest::newRow("an empty one ends the list") << record("A") + unused + record("B") + unused << "A";
    QTest::newRow("a full record") << record(QString(40, 'n')) + unused << QString(32, 'n');
}

void TestSnapshotAccess::cabinetFiles()
{
    QFETCH(QByteArray, index);
    QFETCH(QString, names);
    const QString file = board::filePath("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName");
    write(file, index);
    QCOMPARE(readFileGetNames(), names);
    QFile::remove(file);
}

void TestSnapshotAccess::missingCabinetList()
{
    QCOMPARE(readFileGetNames(), QString());
}

QTEST_GUILESS_MAIN(TestSnapshotAccess)
#include "tst_snapshotaccess.moc"
