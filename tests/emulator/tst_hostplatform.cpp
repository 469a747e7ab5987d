// The board's files, commands, flash and environment on a PC, in a state folder with an awkward name.
#include "boardio.h"
#include "emulator/host/shelltools.h"
#include "flashx.h"
#include "fpd_hostlink.h"
#include "fpd_hostvalues.h"
#include "netstatus.h"
#include "sysconf.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/wait.h>
#include <thread>

class TestHostPlatform : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_state = m_folder.path() + QString::fromUtf8("/it's a \\1 $HOME 屏");
        for (const char *folder : {"/usr/vask/etc/osd", "/usr/vask/etc/fpd/config", "/fault", "/bin"})
            QVERIFY(QDir().mkpath(file(folder)));
        qputenv("FPD_STATE", m_state.toUtf8());
        ShellTools(m_state).install();
    }

    void commandsStayInTheStateFolder()
    {
        QCOMPARE(board::filePath("/usr/vask/x"), file("/usr/vask/x"));
        write("/usr/vask/etc/fpd/config/config.xml", "one");
        QCOMPARE(board::runCommand(
                     "cp /usr/vask/etc/fpd/config/config.xml /usr/vask/etc/fpd/config/config_backup.xml"),
                 0);
        QCOMPARE(read("/usr/vask/etc/fpd/config/config_backup.xml"), QByteArray("one"));
        write("/usr/vask/etc/osd/a.bmp", "a");
        write("/usr/vask/etc/osd/b.bmp", "b");
        QCOMPARE(board::runCommand("rm /usr/vask/etc/osd/*"), 0);
        QCOMPARE(QDir(file("/usr/vask/etc/osd")).entryList(QDir::Files), QStringList());
        QCOMPARE(board::runCommand("sync"), 0);
        QVERIFY(WEXITSTATUS(board::runCommand("cp /usr/vask/nothing /usr/vask/there")) != 0);
        // Only whole names of the board are its own.
        QVERIFY(WEXITSTATUS(board::runCommand(
                    "test \"$(echo /usr/vasktest /x/usr/vask)\" = '/usr/vasktest /x/usr/vask'")) == 0);
    }

    void toolsAnswerAsTold_data()
    {
        // answer: null: healthy
        const DataRows<QString, QString, QString, QByteArray> row{"tool", "answer", "command", "output"};
        const QString version = "fpga -v | grep FPGA | tail -l | awk '{print $4}'";
        const QString memory = "fpga r v 0x101f 1 | grep 0x01 -c";
        const QString mcu = "stm32 -v | grep mcu | grep 20 -c";
        row("healthy version", "fpga", QString(), version, "2.0.11\n");
        row("healthy memory", "fpga", QString(), memory, "1\n");
        row("healthy mcu", "stm32", QString(), mcu, "1\n");
        row("dead fpga", "fpga", "", version, "");
        row("bad memory", "fpga", "0x101f: 0x00", memory, "0\n");
        row("last of two versions", "fpga", "FPGA a is 1\nFPGA b is 2", version, "2\n");
    }
    void toolsAnswerAsTold()
    {
        const auto [tool, answer, command] =
            fetched<QString, QString, QString>({"tool", "answer", "command"});
        const ShellTools tools(m_state);
        QVERIFY(answer.isNull() ? tools.clearAnswer(tool) : tools.setAnswer(tool, answer));
        FILE *pipe = board::openPipe(command.toUtf8().constData());
        QVERIFY(pipe);
        char buffer[64];
        const size_t size = fread(buffer, 1, sizeof buffer, pipe);
        board::closePipe(pipe);
        QTEST(QByteArray(buffer, int(size)), "output");
        QVERIFY(!tools.setAnswer("nosuch", "x"));
    }

    void flashReadsFailAsTold()
    {
        unsigned char bytes[4] = {};
        QVERIFY(ReadDataFromFlashx(0, 4, bytes) != 0);
        QFile image(file(hostlink::flashFile));
        QVERIFY(image.open(QIODevice::WriteOnly) && image.resize(hostlink::flashSize));
        const unsigned char pattern[4] = {1, 2, 3, 4};
        QCOMPARE(WriteDataToFlashx(hostlink::flashSize - 4, 4, pattern), 0);
        QVERIFY(WriteDataToFlashx(hostlink::flashSize - 3, 4, pattern) != 0);
        QVERIFY(ReadDataFromFlashx(hostlink::flashSize - 3, 4, bytes) != 0);
        QVERIFY(ReadDataFromFlashx(0xffffffff, 4, bytes) != 0);
        write(hostlink::flashFaultFile, "2");
        QVERIFY(ReadDataFromFlashx(hostlink::flashSize - 4, 4, bytes) != 0);
        QVERIFY(ReadDataFromFlashx(hostlink::flashSize - 4, 4, bytes) != 0);
        QCOMPARE(bytes[0], static_cast<unsigned char>(0));
        QCOMPARE(ReadDataFromFlashx(hostlink::flashSize - 4, 4, bytes), 0);
        QCOMPARE(bytes[3], static_cast<unsigned char>(4));
        // Of an image that ends too early nothing is taken.
        QVERIFY(image.resize(hostlink::flashSize - 2));
        bytes[0] = 0;
        QVERIFY(ReadDataFromFlashx(hostlink::flashSize - 4, 4, bytes) != 0);
        QCOMPARE(bytes[0], static_cast<unsigned char>(0));
    }

    void environmentOutlivesTheProgram()
    {
        QCOMPARE(sysconf_openenv(), 0);
        QVERIFY(sysconf_getenv("FACTORY_TEST_COUNT") == nullptr);
        QCOMPARE(sysconf_setenv("FACTORY_TEST_COUNT", "3"), 0);
        QCOMPARE(sysconf_setenv("ver_rootfs", "a=b c"), 0);
        sysconf_closeenv();
        QCOMPARE(sysconf_openenv(), 0);
        QCOMPARE(QByteArray(sysconf_getenv("FACTORY_TEST_COUNT")), QByteArray("3"));
        QCOMPARE(QByteArray(sysconf_getenv("ver_rootfs")), QByteArray("a=b c"));
        sysconf_closeenv();
    }

    void linkStateIsShared()
    {
        QCOMPARE(get_usb_otg_status(), 0);
        write(hostlink::linkFile, "usb_otg=1\neth1=2\n");
        set_pc_connect_priority(1);
        QCOMPARE(get_usb_otg_status(), 1);
        QCOMPARE(get_eth1_status(), 2);
        QCOMPARE(get_usb_host_status(), 0);
        QCOMPARE(get_pc_connect_priority(), 1);

        // Panel and emulator change it at the same time, and nobody's change is lost.
        constexpr int changes = 200;
        std::thread emulator([this] {
            for (int i = 1; i <= changes; ++i)
                hostlink::changeValue(file(hostlink::linkFile), hostlink::linkEthernet,
                                      QByteArray::number(i));
        });
        int lost = 0;
        for (int i = 1; i <= changes; ++i) {
            set_pc_connect_priority(i);
            lost += get_pc_connect_priority() != i;
        }
        emulator.join();
        QCOMPARE(lost, 0);
        QCOMPARE(get_eth1_status(), changes);
    }

private:
    QString file(const QString &boardPath) const { return m_state + boardPath; }

    void write(const QString &boardPath, const QByteArray &content)
    {
        QFile output(file(boardPath));
        QVERIFY(output.open(QIODevice::WriteOnly));
        output.write(content);
    }

    QByteArray read(const QString &boardPath) const
    {
        QFile input(file(boardPath));
        return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray("no such file");
    }

    QTemporaryDir m_folder;
    QString m_state;
};

FPD_TEST_APPLESS(TestHostPlatform)
#include "tst_hostplatform.moc"
