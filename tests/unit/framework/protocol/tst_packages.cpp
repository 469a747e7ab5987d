// Packets to the byte: what the builders make, what is read from a reply, and what a damaged frame does.

#include "framework/protocol/bus/datagram.h"
#include "framework/protocol/packet/packagerequestproto3rd.h"
#include "framework/protocol/packet/tgprotocolparser3rd.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

#include <memory>

using namespace VASK;

namespace
{
constexpr int timeOut = 10;

std::unique_ptr<PackageRequestWriteData> screenEffect(const QByteArray &data)
{
    return std::unique_ptr<PackageRequestWriteData>(
        TGProtocolParser3rd::Set_ScreenEffectData("@local", 0, 255, 0xFFFF, timeOut, false, "1019", data));
}
} // namespace

class TestPackages : public QObject
{
    Q_OBJECT
private slots:
    void write()
    {
        PackageBase::serialNum = 0x12;
        const auto package = screenEffect(QByteArray(1, 1));
        QCOMPARE(package->ParseSendRequest(),
                 QByteArray::fromHex("55AA0012FE0000FFFFFF0100010000130100017959"));
        QCOMPARE(package->getDataProto().size(), 21);
        QCOMPARE(package->getTag(), QString("1019"));

        // What the device would read from it.
        PackageRequestProto3rd received;
        QVERIFY(received.unPackageReply(package->getDataProto()));
        QCOMPARE(received.getAddress(), 0x13000001u);
        QCOMPARE(received.getProtoType(), PROTO_Write);
        QCOMPARE(received.getSerialNum(), uchar(0x12));
        QCOMPARE(received.data(), QByteArray(1, 1));
    }

    void readAndReply()
    {
        PackageBase::serialNum = 0x13;
        const std::unique_ptr<PackageRequestReadData3rd> request(
            TGProtocolParser3rd::Get_ScannerParam(0x02000001, 1, 0));
        QCOMPARE(request->ParseSendRequest(),
                 QByteArray::fromHex("55AA0013FE00010000000000010000020100 6B56"));

        PackageRequestProto3rd reply;
        QVERIFY(reply.unPackageReply(QByteArray::fromHex("AA55001300FE01000000000001000002010080EB56")));
        QCOMPARE(reply.getDeviceType(), uchar(TARGET_Scanner));
        QCOMPARE(reply.getSerialNum(), uchar(0x13));
        QCOMPARE(reply.getHighAddr(), ushort(0x0200));
        QCOMPARE(reply.getLowAddr(), ushort(1));
        QCOMPARE(reply.data(), QByteArray(1, '\x80'));
        QVERIFY(reply.isPackageSuccess());
    }

    void serialNumberWraps()
    {
        PackageBase::serialNum = 254;
        for (int expected : {254, 255, 0, 1})
            QCOMPARE(int(screenEffect("x")->getSerialNum()), expected);
        const PackageRequestProto3rd reply; // takes none
        QCOMPARE(int(screenEffect("x")->getSerialNum()), 2);
        QCOMPARE(int(reply.getSerialNum()), 0);
    }

    void frameSizes()
    {
        const std::unique_ptr<PackageRequestReadData3rd> read(
            TGProtocolParser3rd::Get_CommonRead(0x13010001, 256));
        const QByteArray request = read->ParseSendRequest();
        QCOMPARE(request.size(), 20);
        QCOMPARE(request.mid(16, 2), QByteArray::fromHex("0001"));

        const std::unique_ptr<PackageRequestWriteData> empty(
            TGProtocolParser3rd::Set_CommonWrite(QByteArray(), 0x13000001, "x"));
        const QByteArray frame = empty->ParseSendRequest();
        QCOMPARE(frame.size(), 20);
        QCOMPARE(frames::withChecksum(frame.left(18)), frame);
    }

    /// As long as the register, longer, and none at all.
    void writeData()
    {
        const QByteArray given[] = {"\x07", "\x07\x08", ""};
        for (const QByteArray &data : given) {
            const auto package = screenEffect(data);
            frames::Fields f;
            f.serial = package->getSerialNum();
            f.address = 0x13000001;
            f.payload = data.isEmpty() ? QByteArray(1, '\0') : QByteArray("\x07");
            QCOMPARE(package->data(), f.payload);
            QCOMPARE(package->ParseSendRequest(), frames::frame(f));
        }
    }

    void commonBuilders()
    {
        using P = TGProtocolParser3rd;
        struct Expected {
            std::unique_ptr<PackageRequestProto3rd> package;
            int protoType, deviceType, port, board, length;
            QByteArray payload;
            QString tag;
        };
        const QByteArray three("\x01\x02\x03");
        const Expected all[] = {
            {P::Set_CommonWrite("@local", 0, 7, 9, timeOut, false, "a", three, 0x12345678), 1, 0, 7, 9, 3,
             three, "a"},
            {P::Set_CommonWrite(three, 0x12345678, "b"), 1, 0, 255, 0xFFFF, 3, three, "b"},
            {P::Get_CommonRead(0x12345678, 500), 0, 0, 255, 0xFFFF, 500, {}, {}},
            {P::Set_ScannerCommonWrite(three, 2, 0x12345678), 1, 1, 255, 0xFFFF, 2, three.left(2), "2800"},
            {P::Get_ScannerParam(0x12345678, 4, 3), 0, 1, 3, 0, 4, {}, {}},
            {P::Get_ScannerCommonRead(0x12345678, 4, 3), 0, 1, 3, 0, 4, {}, {}},
            {P::Set_ResetWrite(0x12345678, 3, three), 1, 0, 255, 0xFFFF, 3, three, "2800"},
        };
        for (const Expected &e : all) {
            frames::Fields f;
            f.serial = e.package->getSerialNum();
            f.protoType = e.protoType;
            f.deviceType = e.deviceType;
            f.port = e.port;
            f.board = e.board;
            f.address = 0x12345678;
            f.length = e.length;
            f.payload = e.payload;
            QCOMPARE(e.package->ParseSendRequest().toHex(' '), frames::frame(f).toHex(' '));
            QCOMPARE(e.package->getTag(), e.tag);
        }
    }

    void reply_data()
    {
        addColumns<QByteArray, int, QByteArray>({"frame", "length", "payload"});
        frames::Fields f;
        f.header = QByteArray::fromHex("aa55");
        f.protoType = 0;
        addRow("no data", frames::frame(f), 0, QByteArray());
        f.payload = "abc";
        addRow("all there", frames::frame(f), 3, QByteArray("abc"));
        f.length = 2;
        addRow("more than promised", frames::frame(f), 2, QByteArray("ab"));
        f.length = 9;
        addRow("less than promised", frames::frame(f), 9, QByteArray("abc"));
        f.length = 3;
        f.protoType = 2;
        addRow("neither read nor write", frames::frame(f), 3, QByteArray());
        addRow("too short for its fields", frames::withChecksum(QByteArray::fromHex("aa550005")), 0,
               QByteArray());
    }
    void reply()
    {
        const auto [frame, length, payload] =
            fetched<QByteArray, int, QByteArray>({"frame", "length", "payload"});
        PackageRequestProto3rd package;
        QVERIFY(package.unPackageReply(frame));
        QCOMPARE(int(package.getReplyDataLength()), length);
        QCOMPARE(package.data(), payload);
    }

    void damagedFrameIsRefused()
    {
        const QByteArray whole = QByteArray::fromHex("AA55001300FE01000000000001000002010080EB56");
        const auto refused = [](const QByteArray &frame) {
            PackageRequestProto3rd package;
            return !package.unPackageReply(frame) && package.getAddress() == 0 && package.data().isEmpty() &&
                   package.getSerialNum() == 0;
        };
        for (int size = 0; size < whole.size(); ++size)
            QVERIFY2(refused(whole.left(size)), qPrintable(QString("cut to %1").arg(size)));
        for (int extra = 1; extra < 8; ++extra) {
            QVERIFY2(refused(whole + QByteArray(extra, '\0')), "stretched at the end");
            QVERIFY2(refused(whole.left(18) + QByteArray(extra, '\x5A') + whole.mid(18)), "stretched inside");
        }
        for (int at = 0; at < whole.size(); ++at) {
            for (int bit = 0; bit < 8; ++bit) {
                QByteArray flipped = whole;
                flipped[at] = char(flipped[at] ^ (1 << bit));
                // The sum leaves the header out, so there the sorting of datagrams refuses it.
                const bool dropped =
                    at < 2 ? sortDatagram(flipped).kind == DATAGRAM_Foreign : refused(flipped);
                QVERIFY2(dropped, qPrintable(QString("byte %1 bit %2").arg(at).arg(bit)));
            }
        }
    }
};

FPD_TEST_APPLESS(TestPackages)
#include "tst_packages.moc"
