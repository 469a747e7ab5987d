// The device's reading of the wire format.
#include "emulator/bus/wire.h"
#include "tests/testprogram.h"

using namespace wire;

namespace
{
QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

const char *writeFrame = "55AA0012FE0000FFFFFF0100010000130100017959";
} // namespace

class TestWire : public QObject
{
    Q_OBJECT
private slots:
    void frames_data()
    {
        const DataRows<QByteArray, bool, int, uint, int, QByteArray> row{"bytes",   "isReply", "operation",
                                                                         "address", "length",  "data"};
        row("write", hex(writeFrame), false, Write, 0x13000001u, 1, hex("01"));
        row("read request",
            hex("55AA0013FE0001000000000001000002"
                "01006B56"),
            false, Read, 0x02000001u, 1, {});
        row("read reply",
            hex("AA55001300FE010000000000010000020100"
                "80EB56"),
            true, Read, 0x02000001u, 1, hex("80"));
    }
    void frames()
    {
        QFETCH(QByteArray, bytes);
        const auto frame = decodeFrame(bytes);
        QVERIFY(frame);
        QTEST(frame->isReply, "isReply");
        QTEST(int(frame->operation), "operation");
        QTEST(uint(frame->address), "address");
        QTEST(int(frame->length), "length");
        QTEST(frame->data, "data");
        QCOMPARE(encode(*frame), bytes);
    }

    void damagedFramesAreRefused()
    {
        const QByteArray whole = hex(writeFrame);
        for (int i = 0; i < whole.size(); ++i) {
            QByteArray flipped = whole;
            flipped[i] = char(flipped[i] ^ 0x40);
            QVERIFY2(!decodeFrame(flipped), qPrintable(QString("byte %1 flipped").arg(i)));
            QVERIFY2(!decodeFrame(whole.left(i)), qPrintable(QString("cut to %1").arg(i)));
        }
        QVERIFY(!decodeFrame(whole + '\0'));
    }

    void messages()
    {
        Message message;
        message.source = 0x010A3900;
        message.payload = hex(writeFrame);
        const QByteArray bytes = encode(message);
        QCOMPARE(bytes.left(28), hex("00390A0101000000310000000000000000000000"
                                     "01001C0015000000"));
        const auto decoded = decodeMessage(bytes);
        QVERIFY(decoded);
        QCOMPARE(decoded->source, message.source);
        QCOMPARE(decoded->largeLabel, qint16(28));
        QCOMPARE(decoded->payload, message.payload);
    }

    void damagedMessagesAreRefused()
    {
        Message message;
        message.payload = hex(writeFrame);
        const QByteArray whole = encode(message);
        for (int size = 0; size < whole.size(); ++size)
            QVERIFY(!decodeMessage(whole.left(size)));
        QVERIFY(!decodeMessage(whole + 'x'));
    }
};

FPD_TEST_APPLESS(TestWire)
#include "tst_wire.moc"
