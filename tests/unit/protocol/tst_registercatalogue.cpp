// Every builder of the register catalogue against the device's own list: address, width, device type,
// encoding.

#include "frames.h"
#include "registerrows.h"

#include <QSet>
#include <QtTest>
#include <memory>

using namespace VASK;

namespace
{
// Values unlike the usual ones, so that a mixed-up argument shows.
constexpr unsigned char destination = 3;
constexpr unsigned char port = 5;
constexpr unsigned short board = 0x0708;
const QString tag = "3705";

/// Builds the package of a row for the register number n, and m in the second direction.
PackageRequestProto3rd *build(const RegisterRow &row, const QByteArray &data, unsigned char n,
                              unsigned char m)
{
    struct Call {
        const QByteArray &data;
        unsigned char n, m;
        PackageRequestProto3rd *operator()(RegisterRow::Single b) const
        {
            return b("@local", destination, port, board, 10, false, tag, data);
        }
        PackageRequestProto3rd *operator()(RegisterRow::Each b) const
        {
            return b("@local", destination, port, board, 10, false, tag, data, n);
        }
        PackageRequestProto3rd *operator()(RegisterRow::Pair b) const
        {
            return b("@local", destination, port, board, 10, false, tag, data, n, m);
        }
        PackageRequestProto3rd *operator()(RegisterRow::Read b) const
        {
            return b("@local", destination, port, board, 10, tag);
        }
    };
    return std::visit(Call{data, n, m}, row.builder);
}
} // namespace

class TestRegisterCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void builder_data();
    void builder();
    void cloneTakesItsData();
    void nothingBesideTheList();
};

void TestRegisterCatalogue::builder_data()
{
    QTest::addColumn<int>("row");
    for (size_t row = 0; row < std::size(registerRows); ++row)
        QTest::newRow(registerRows[row].name) << int(row);
}

void TestRegisterCatalogue::builder()
{
    QFETCH(int, row);
    const RegisterRow &expected = registerRows[row];
    const bool reads = std::holds_alternative<RegisterRow::Read>(expected.builder);
    QByteArray data;
    for (int i = 0; i < expected.bytes + 3; ++i) // more than fits
        data += char(i + 1);
    for (unsigned char n : {0, 1, 2, 255}) {
        for (unsigned char m : {0, 3}) {
            const std::unique_ptr<PackageRequestProto3rd> package(build(expected, data, n, m));
            frames::Fields f;
            f.serial = package->getSerialNum();
            f.destination = destination;
            f.port = port;
            f.board = board;
            f.deviceType = expected.deviceType;
            f.protoType = reads ? 0 : 1;
            f.address = expected.address + expected.stride * n + expected.stride2 * m;
            f.length = expected.bytes;
            f.payload = reads ? QByteArray() : data.left(expected.bytes);
            QCOMPARE(package->ParseSendRequest().toHex(' '), frames::frame(f).toHex(' '));
            QCOMPARE(package->getTag(), tag);
        }
    }
}

/// The one register without a fixed width.
void TestRegisterCatalogue::cloneTakesItsData()
{
    for (int size : {0, 1, 8, 12}) {
        const QByteArray data(size, '\x11');
        const std::unique_ptr<PackageRequestWriteData> package(
            TGProtocolParser3rd::Set_CloneData("@local", 0, 255, 0xFFFF, 10, false, QString(), data));
        QCOMPARE(package->getAddress(), 0x13021000u);
        QCOMPARE(package->data(), data);
        QCOMPARE(int(package->getReplyDataLength()), size);
    }
}

void TestRegisterCatalogue::nothingBesideTheList()
{
    QSet<QByteArray> listed{"Set_CloneData"};
    for (const RegisterRow &row : registerRows)
        listed += row.name;
    const QByteArray catalogue[] = {
#define FPD_WRITE(name, address, bytes, device) #name,
#define FPD_WRITE_EACH(name, address, stride, bytes, device) #name,
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device) #name,
#define FPD_READ(name, address, bytes) #name,
#include "framework/protocol/registercatalogue.def"
#undef FPD_WRITE
#undef FPD_WRITE_EACH
#undef FPD_WRITE_PAIR
#undef FPD_READ
    };
    for (const QByteArray &name : catalogue)
        QVERIFY2(listed.contains(name), name.constData());
}

QTEST_APPLESS_MAIN(TestRegisterCatalogue)
#include "tst_registercatalogue.moc"
