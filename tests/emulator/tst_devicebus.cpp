// The panel's end of the bus and of the keypad against the emulator's, in one process: the platform layer's
// blocking calls run on a thread of their own.
#include "apipc.h"
#include "emulator/bus/device.h"
#include "emulator/device/keypad.h"
#include "fpd_hostlink.h"
#include "keypaddevice.h"
#include "tests/testprogram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtEndian>
#include <atomic>
#include <fcntl.h>
#include <thread>

namespace
{
constexpr quint32 panelTask = 0x010A3900;
constexpr quint32 deviceTask = 0x01070300;

int queueMessage(__apsess_st *, void *argument, void *message, unsigned int length)
{
    void *copy = message;
    return apipc_enq(&copy, argument, message, length);
}
} // namespace

class TestDeviceBus : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("FPD_STATE", m_folder.path().toLocal8Bit());
        QDir(m_folder.path()).mkdir("run");
        QDir(m_folder.path()).mkdir("fault");
        QCOMPARE(apipc_init(panelTask, 0), 0);
        std::thread([] {
            for (;;)
                apipc_loop_wait(nullptr, queueMessage);
        }).detach();
    }

    void init()
    {
        if (m_device)
            return;
        m_device = std::make_unique<Device>(m_folder.path());
        QCOMPARE(m_device->flash().install(), QString());
        m_device->setReporting(false);
    }

    void sendFailsWhileTheBusIsDown()
    {
        QElapsedTimer passed;
        passed.start();
        QVERIFY(!sendFrame(wire::Frame()));
        QVERIFY(passed.elapsed() < 100);
        void *message = nullptr;
        QVERIFY(apipc_deq(&message) < 0);
        QVERIFY(m_device->setBusUp(true));
        QVERIFY(waitJoined());
    }

    void writesAreKeptAndAnswered()
    {
        m_device->clearWrites();
        QVERIFY(write(0x13000001, QByteArray::fromHex("01")));
        QVERIFY(write(0x02000001, QByteArray::fromHex("80"), 1));
        QCOMPARE(m_device->writes().size(), 2);
        QCOMPARE(m_device->writes()[0].address, 0x13000001u);
        QCOMPARE(m_device->writes()[1].deviceType, quint8(1));
        QCOMPARE(m_device->writes()[1].bytes, QByteArray::fromHex("80"));
        for (quint32 address : {0x13000001u, 0x02000001u}) {
            const auto reply = wire::decodeFrame(receive());
            QVERIFY(reply && reply->isReply);
            QCOMPARE(reply->operation, quint8(wire::Write));
            QCOMPARE(reply->address, address);
        }
    }

    void readsAnswerWhatWasWritten()
    {
        QVERIFY(write(0x02810016, QByteArray::fromHex("0404")));
        receive();
        wire::Frame request;
        request.serial = 77;
        request.address = 0x02810015;
        request.length = 4;
        QVERIFY(sendFrame(request));
        const auto reply = wire::decodeFrame(receive());
        QVERIFY(reply);
        QCOMPARE(reply->serial, quint8(77));
        QCOMPARE(reply->data, QByteArray::fromHex("00040401"));
    }

    void aReportTakesTheOlderOnesPlace()
    {
        constexpr quint32 displayMode = 0x13000004, nextWritten = 0x02000074;
        const QByteArray freeze("\4"), black("\5"), lowLatency("\x78");
        QStringList answers;
        const auto connection =
            connect(m_device.get(), &Device::reported, [&](const Report &report, bool isAnswer) {
                if (isAnswer)
                    answers.append(QString::number(report.address, 16));
            });
        m_device->setReporting(true);
        QVERIFY(write(displayMode, freeze));
        QVERIFY(m_device->reportAndAdopt({displayMode, black}));
        QVERIFY(write(nextWritten, lowLatency));
        QVERIFY(QTest::qWaitFor([&] { return !answers.isEmpty(); }));
        QCOMPARE(answers, QStringList{QString::number(nextWritten, 16)});
        disconnect(connection);
        m_device->setReporting(false);
        constexpr int answersAndReports = 4;
        for (int i = 0; i < answersAndReports; ++i)
            QVERIFY(!receive().isEmpty());
    }

    /// More than the socket holds: what does not fit waits for its turn.
    void floodArrivesWholeAndInOrder()
    {
        constexpr int reports =
            4000; // more than a socket holds, less than the panel's end of the bus keeps unread
        QVERIFY(waitJoined());
        const auto counted = [](int n) { return QByteArray(1, char(n)) + char(n >> 8); };
        for (int n = 0; n < reports; ++n)
            QVERIFY(m_device->pushRead(0x13040003, counted(n), 0, 0));
        for (int n = 0; n < reports; ++n) {
            const auto report = wire::decodeFrame(receive());
            QVERIFY(report);
            QCOMPARE(report->data, counted(n));
        }
    }

    void busComesBack()
    {
        m_device->setBusUp(false);
        QVERIFY(QTest::qWaitFor([this] { return !sendFrame(wire::Frame()); }));
        QVERIFY(m_device->setBusUp(true));
        QVERIFY(waitJoined());
        QVERIFY(QTest::qWaitFor([this] { return sendFrame(wire::Frame()); }));
        QFile fault(m_folder.path() + hostlink::busFaultFile);
        QVERIFY(fault.open(QIODevice::WriteOnly));
        fault.write("2");
        fault.close();
        QVERIFY(!sendFrame(wire::Frame()));
        QVERIFY(!sendFrame(wire::Frame()));
        QVERIFY(sendFrame(wire::Frame()));
    }

    void ledCommands()
    {
        Keypad keypad(m_folder.path());
        QVERIFY(keypad.setPresent(true));
        const auto command = [](quint32 length, quint32 action, quint16 mask) {
            QByteArray block(hostlink::ledBlockSize, 0);
            const auto put = [&block](int offset, quint32 value) {
                qToLittleEndian(value, block.data() + offset);
            };
            put(0, length);
            put(4, 6);
            put(24, mask & 0xff);
            put(28, mask >> 8);
            put(40, action);
            const int descriptor = keypad_open("/dev/keypad0", O_RDWR);
            const int result = keypad_ioctl(descriptor, hostlink::ledRequest, block.data());
            keypad_close(descriptor);
            return result;
        };
        const auto run = [&](quint32 length, quint32 action, quint16 mask) {
            std::atomic<int> result{-2};
            std::thread caller([&] { result = command(length, action, mask); });
            const bool answered = QTest::qWaitFor([&] { return result != -2; });
            caller.join();
            return answered ? result.load() : -2;
        };
        QCOMPARE(run(76, 6, 0x8101), 0);
        QCOMPARE(keypad.ledText(), QString("1000000010000001"));
        QCOMPARE(run(76, 7, 0x0100), 0);
        QCOMPARE(keypad.ledText(), QString("1000000000000001"));
        QCOMPARE(run(75, 6, 0xffff), -1);
        QCOMPARE(run(76, 5, 0xffff), -1);
        QCOMPARE(keypad.ledText(), QString("1000000000000001"));
    }

private:
    bool waitJoined()
    {
        return QTest::qWaitFor([this] { return m_device->isJoined(); });
    }

    bool sendFrame(const wire::Frame &frame)
    {
        wire::Message message;
        message.source = panelTask;
        message.payload = wire::encode(frame);
        const QByteArray bytes = wire::encode(message);
        return apipc_send(deviceTask, bytes.constData(), unsigned(bytes.size())) == 0;
    }

    bool write(quint32 address, const QByteArray &bytes, quint8 deviceType = 0)
    {
        wire::Frame frame;
        frame.operation = wire::Write;
        frame.deviceType = deviceType;
        frame.address = address;
        frame.length = quint16(bytes.size());
        frame.data = bytes;
        const int before = m_device->writes().size();
        return sendFrame(frame) && QTest::qWaitFor([&] { return m_device->writes().size() > before; });
    }

    /// The next message for the panel, its payload.
    QByteArray receive()
    {
        void *message = nullptr;
        if (!QTest::qWaitFor([&message] { return apipc_deq(&message) >= 0; }))
            return QByteArray();
        const char *bytes = static_cast<char *>(apipc_que_attach(message));
        const quint32 size = qFromLittleEndian<quint32>(bytes + 8);
        const auto decoded = wire::decodeMessage(QByteArray(bytes, int(size)));
        apipc_que_detach(message, const_cast<char *>(bytes));
        return decoded ? decoded->payload : QByteArray();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<Device> m_device;
};

FPD_TEST_GUILESS(TestDeviceBus)
#include "tst_devicebus.moc"
