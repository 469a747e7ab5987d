// What is taken and what is dropped of the datagrams that come up from the bus.

#include "framework/protocol/bus/datagram.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

using namespace VASK;
using frames::number;

namespace
{
const QByteArray requestHeader = QByteArray::fromHex("55aa");
const QByteArray replyHeader = QByteArray::fromHex("aa55");

QByteArray frame(const QByteArray &header, int type, quint32 address = 0x13000001)
{
    frames::Fields f;
    f.header = header;
    f.protoType = type;
    f.address = address;
    f.payload = "\x01";
    return frames::frame(f);
}

QByteArray message(int large, int small, const QByteArray &payload, int length)
{
    return number(0x010A3900, 4) + number(1, 4) + number(quint32(payload.size() + 28), 4) + number(0, 8) +
           number(quint32(small), 2) + number(quint32(large), 2) + number(quint32(length), 4) + payload;
}
} // namespace

class TestDatagram : public QObject
{
    Q_OBJECT
private slots:
    void kinds_data()
    {
        addColumns<QByteArray, int, QByteArray>({"bytes", "kind", "packet"});
        const auto dropped = [](const char *name, const QByteArray &bytes, DatagramKind kind) {
            addRow(name, bytes, kind, QByteArray());
        };
        const auto taken = [](const char *name, const QByteArray &bytes, const QByteArray &packet) {
            addRow(name, bytes, DATAGRAM_Packet, packet);
        };
        constexpr quint32 heartbeat = 0x13001004;
        dropped("heartbeat, written", frame(requestHeader, 1, heartbeat), DATAGRAM_Heartbeat);
        dropped("heartbeat, answered", frame(replyHeader, 0, heartbeat), DATAGRAM_Heartbeat);
        dropped("heartbeat of 16 bytes, unchecked", frame(requestHeader, 1, heartbeat).left(16),
                DATAGRAM_Heartbeat);
        dropped("heartbeat of 15 bytes", frame(requestHeader, 1, heartbeat).left(15), DATAGRAM_BadChecksum);
        dropped("neighbour of the heartbeat", frame(requestHeader, 0, heartbeat + 1), DATAGRAM_ReadRequest);

        dropped("read request", frame(requestHeader, 0), DATAGRAM_ReadRequest);
        dropped("request without a type", frame(requestHeader, 1).left(10), DATAGRAM_ReadRequest);
        dropped("request header alone", requestHeader, DATAGRAM_ReadRequest);
        dropped("write response", frame(replyHeader, 1), DATAGRAM_WriteResponse);
        dropped("response without a type", frame(replyHeader, 1).left(10), DATAGRAM_BadChecksum);
        taken("read response", frame(replyHeader, 0), frame(replyHeader, 0));
        taken("pushed write", frame(requestHeader, 1), frame(requestHeader, 1));
        taken("pushed with a type unknown here", frame(requestHeader, 7), frame(requestHeader, 7));
        dropped("read response, bad sum", frame(replyHeader, 0).replace(18, 1, "\x02"), DATAGRAM_BadChecksum);
        dropped("pushed write, bad sum", frame(requestHeader, 1).replace(18, 1, "\x02"),
                DATAGRAM_BadChecksum);

        const QByteArray inner = frame(replyHeader, 0);
        taken("in a message", message(28, 1, inner, inner.size()), inner);
        taken("in a message, with bytes behind it", message(28, 9, inner + "xyz", inner.size()), inner);
        dropped("in a message, cut by its length", message(28, 1, inner, inner.size() - 1),
                DATAGRAM_BadChecksum);
        dropped("in a message that promises too much", message(28, 1, inner.left(12), inner.size()),
                DATAGRAM_BadChecksum);
        dropped("in a message with a length out of range", message(28, 1, inner.left(12), -1),
                DATAGRAM_BadChecksum);
        dropped("message about something else", message(29, 4, inner, inner.size()), DATAGRAM_Foreign);
        dropped("nothing", QByteArray(), DATAGRAM_Foreign);
        dropped("one byte", QByteArray("\x55"), DATAGRAM_Foreign);
        dropped("noise", QByteArray(200, '\xEE'), DATAGRAM_Foreign);
    }
    void kinds()
    {
        const auto [bytes, kind, packet] = fetched<QByteArray, int, QByteArray>({"bytes", "kind", "packet"});
        const Datagram datagram = sortDatagram(bytes);
        QCOMPARE(int(datagram.kind), kind);
        QCOMPARE(datagram.packet, packet);
        QCOMPARE(datagram.hasLabels, !bytes.startsWith(requestHeader) && !bytes.startsWith(replyHeader));
    }
};

FPD_TEST_APPLESS(TestDatagram)
#include "tst_datagram.moc"
