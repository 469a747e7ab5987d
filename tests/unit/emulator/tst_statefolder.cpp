// The state folder on a disk that is full, and one that is not what it should be.
#include "emulator/bus/flashimage.h"
#include "emulator/lcd.h"
#include "emulator/statefolder.h"
#include "fpd_hostlink.h"
#include "fulldisk.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sys/stat.h>

class TestStateFolder : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void aFullDiskIsToldAsOne();
    void aSecondEmulatorIsRefused();
    void aDarkLcdIsMadeWhole();
    void imagesTakeUpTheirRoom();

private:
    QString path() const { return m_folder->path(); }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStateFolder::aFullDiskIsToldAsOne()
{
    QString untaken, unlit, unflashed;
    {
        const FullDisk nothingFits(0);
        untaken = StateFolder(path()).take();
        unlit = StateFolder(path()).install();
        unflashed = FlashImage(path()).install();
    }
    QVERIFY2(untaken.contains("its disk is full"), qPrintable(untaken));
    QVERIFY2(unlit.startsWith("no room for " + path() + "/lcd.fb"), qPrintable(unlit));
    QVERIFY2(unflashed.startsWith("no room for " + path() + "/flash.img"), qPrintable(unflashed));
    // Nothing half made is taken for whole once there is room.
    StateFolder folder(path());
    QCOMPARE(folder.take(), QString());
    QCOMPARE(folder.install(), QString());
    QCOMPARE(FlashImage(path()).install(), QString());
}

void TestStateFolder::aSecondEmulatorIsRefused()
{
    StateFolder first(path()), second(path());
    QCOMPARE(first.take(), QString());
    QCOMPARE(second.take(), "another emulator uses the state folder " + path());
}

void TestStateFolder::aDarkLcdIsMadeWhole()
{
    for (int size : {0, 100, hostlink::lcdFileSize + 1}) {
        put("lcd.fb", QByteArray(size, '\0'));
        QCOMPARE(StateFolder(path()).install(), QString());
        QCOMPARE(QFileInfo(m_folder->filePath("lcd.fb")).size(), qint64(hostlink::lcdFileSize));
    }
}

void TestStateFolder::imagesTakeUpTheirRoom()
{
    QCOMPARE(StateFolder(path()).install(), QString());
    QCOMPARE(FlashImage(path()).install(), QString());
    for (const char *name : {"/lcd.fb", "/flash.img"}) {
        struct stat status {
        };
        QCOMPARE(stat(qPrintable(path() + name), &status), 0);
        constexpr int blockBytes = 512;
        QVERIFY2(status.st_blocks * blockBytes >= status.st_size, name);
    }
}

QTEST_GUILESS_MAIN(TestStateFolder)
#include "tst_statefolder.moc"
