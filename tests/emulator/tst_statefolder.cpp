// The state folder on a disk that is full, and one that is not what it should be.
#include "emulator/bus/flashimage.h"
#include "emulator/device/lcd.h"
#include "emulator/host/panellog.h"
#include "emulator/host/statefolder.h"
#include "fpd_hostlink.h"
#include "tests/fulldisk.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QTemporaryDir>
#include <memory>
#include <sys/stat.h>

class TestStateFolder : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aFullDiskIsToldAsOne()
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

    void aSecondEmulatorIsRefused()
    {
        StateFolder first(path()), second(path());
        QCOMPARE(first.take(), QString());
        QCOMPARE(second.take(), "another emulator uses the state folder " + path());
    }

    void aDarkLcdIsMadeWhole()
    {
        for (int size : {0, 100, hostlink::lcdFileSize + 1}) {
            put("lcd.fb", QByteArray(size, '\0'));
            QCOMPARE(StateFolder(path()).install(), QString());
            QCOMPARE(QFileInfo(m_folder->filePath("lcd.fb")).size(), qint64(hostlink::lcdFileSize));
        }
    }

    void otherFoldersAreLeftAlone_data()
    {
        const DataRows<QString, bool> row{"holds", "isTaken"};
        row("nothing", "", true);
        row("a device", "flash.img", true);
        row("a device without its flash", "lcd.fb", true);
        row("the lock of a crash", "emulator.lock", true);
        row("a letter", "letter.txt", false);
        row("something hidden", ".profile", false);
    }
    void otherFoldersAreLeftAlone()
    {
        const auto [holds, isTaken] = fetched<QString, bool>({"holds", "isTaken"});
        QCOMPARE(chmod(qPrintable(path()), 0755), 0);
        if (!holds.isEmpty())
            put(holds, "999999999\nfpd-emulator\n\n"); // as a lock, that of a process that is no more
        StateFolder folder(path());
        QCOMPARE(folder.take().isEmpty(), isTaken);
        struct stat status {
        };
        QCOMPARE(stat(qPrintable(path()), &status), 0);
        QCOMPARE(status.st_mode & 0777, isTaken ? 0700u : 0755u);
    }

    void aForeignFlashImageIsLeftAlone()
    {
        for (const QByteArray &content : {QByteArray("a book"), QByteArray(int(hostlink::flashSize), 'x')}) {
            put("flash.img", content);
            QVERIFY(FlashImage(path()).install().contains("no flash image of this device"));
            QFile image(m_folder->filePath("flash.img"));
            QVERIFY(image.open(QIODevice::ReadOnly));
            QVERIFY(image.readAll() == content);
        }
    }

    void theDefaultIsTheUsersOwn_data()
    {
        // setting: null: none
        const DataRows<QByteArray, QString> row{"setting", "folder"};
        row("none", {}, "/home/someone/.local/state/fpd");
        row("empty", "", "/home/someone/.local/state/fpd");
        row("relative", "state", "/home/someone/.local/state/fpd");
        row("absolute", "/states", "/states/fpd");
    }
    void theDefaultIsTheUsersOwn()
    {
        QFETCH(QByteArray, setting);
        qunsetenv("FPD_STATE");
        qputenv("HOME", "/home/someone");
        if (setting.isNull())
            qunsetenv("XDG_STATE_HOME");
        else
            qputenv("XDG_STATE_HOME", setting);
        QTEST(StateFolder::defaultPath(), "folder");
        qputenv("FPD_STATE", "/told");
        QCOMPARE(StateFolder::defaultPath(), QString("/told"));
    }

    void imagesTakeUpTheirRoom()
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

    void theLogIsBoundedAndCountsWhatWent()
    {
        constexpr int lines = 1000, length = 100, file = 20000;
        const QString name = m_folder->filePath("panel.log");
        PanelLog log(name, {10000, file});
        const auto line = [](int number) { return QByteArray::number(number).rightJustified(length, '-'); };
        for (int number = 0; number < lines; ++number)
            log.add(line(number));
        log.flush();
        QVERIFY(log.lines().size() > 50 && log.lines().size() < 100);
        QCOMPARE(log.dropped() + int(log.lines().size()), lines);
        QCOMPARE(log.lines().back().text, line(lines - 1));
        // What is told as gone, what stands in the file before and what stands in this one are all there was.
        QFile current(name), before(name + ".1");
        QVERIFY(current.open(QIODevice::ReadOnly) && before.open(QIODevice::ReadOnly));
        QVERIFY(current.size() <= file && before.size() <= file);
        const QList<QByteArray> head = current.readLine().split(' ');
        const int linesBefore = head.value(1).toInt(), dropped = head.value(8).toInt();
        QCOMPARE(before.readAll().count('\n') - 1, linesBefore);
        QCOMPARE(dropped + linesBefore + current.readAll().count('\n'), lines);
        const QByteArray huge(50000, 'x');
        log.add(huge);
        QCOMPARE(log.lines().back().text, huge); // the last one is there however long
        QCOMPARE(int(log.lines().size()), 1);
    }

private:
    QString path() const { return m_folder->path(); }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

FPD_TEST_GUILESS(TestStateFolder)
#include "tst_statefolder.moc"
