// What the panel reads by itself: the flash with its tries, and the list of the cabinet files.

#include "boardio.h"
#include "fpd_hostlink.h"
#include "framework/protocol/link/cabinetnames.h"
#include "framework/protocol/snapshot/driverutil.h"
#include "platform/host/statefile.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>

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
    void initTestCase()
    {
        write(host::stateFile(hostlink::flashFile), "0123456789");
        QFile::resize(host::stateFile(hostlink::flashFile), hostlink::flashSize);
    }

    void flashIsTriedThreeTimes()
    {
        const QString faults = host::stateFile(hostlink::flashFaultFile);
        for (int failures = 0; failures <= 4; ++failures) {
            const bool good = failures < 3;
            write(faults, QByteArray::number(failures));
            unsigned char bytes[5] = "****";
            QCOMPARE(driverutil::getInstance()->ReadDataFromFile(2, 4, bytes) == 0, good);
            QCOMPARE(QByteArray(reinterpret_cast<char *>(bytes)), QByteArray(good ? "2345" : "****"));
            QFile left(faults);
            QVERIFY(left.open(QIODevice::ReadOnly));
            QCOMPARE(left.readAll().toInt(), failures == 4 ? 1 : 0); // no fourth try
        }
        write(faults, "0");
    }

    void writeAndReadBack()
    {
        unsigned char written[] = {1, 2, 3};
        unsigned char read[] = {0, 0, 0};
        QCOMPARE(driverutil::getInstance()->WriteDataToFile(0xD14100, 3, written), 0);
        QCOMPARE(driverutil::getInstance()->ReadDataFromFile(0xD14100, 3, read), 0);
        QCOMPARE(memcmp(written, read, 3), 0);
        QVERIFY(driverutil::getInstance()->ReadDataFromFile(hostlink::flashSize - 1, 2, read) != 0);
    }

    void cabinetFiles()
    {
        QCOMPARE(readFileGetNames(), QString()); // no list
        const QString file = board::filePath("/usr/vask/etc/fpd/cabCfg/AllCabCfgFileName");
        const QByteArray unused(64, '\0');
        const QString chinese = QString::fromUtf8("箱体");
        const QPair<QByteArray, QString> lists[] = {
            {QByteArray(), ""},
            {record("P2.5.vcab"), ""}, // one record and no more
            {record("P2.5.vcab") + unused, "P2.5.vcab"},
            {record("P2.5") + record(chinese) + "x", "P2.5+" + chinese},
            {record("A") + unused + record("B") + unused, "A"},
            {record(QString(40, 'n')) + unused, QString(32, 'n')},
        };
        for (const auto &list : lists) {
            write(file, list.first);
            QCOMPARE(readFileGetNames(), list.second);
        }
        // A damaged index may be of any size, and no file at all.
        constexpr int many = 100000, most = 1024;
        write(file, record("P2.5").repeated(many));
        QVERIFY(readFileGetNames().count('+') < most);
        QFile::remove(file);
        QCOMPARE(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
        QCOMPARE(readFileGetNames(), QString());
        QFile::remove(file);
    }
};

FPD_TEST_GUILESS(TestSnapshotAccess)
#include "tst_snapshotaccess.moc"
