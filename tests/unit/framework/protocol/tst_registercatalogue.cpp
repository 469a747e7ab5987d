// The register catalogue: a builder of each form to the byte, and what must hold of every row.

#include "framework/protocol/packet/tgprotocolparser3rd.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

#include <QMap>
#include <memory>

using namespace VASK;

class TestRegisterCatalogue : public QObject
{
    Q_OBJECT
private slots:
    void forms()
    {
        using P = TGProtocolParser3rd;
        frames::Fields f;
        // Values unlike the usual ones, so that a mixed-up argument shows.
        f.destination = 3;
        f.port = 5;
        f.board = 0x0708;
        const QByteArray data = QByteArray::fromHex("0102030405060708090a0b0c0d0e0f"); // more than fits
        const auto becomes = [&f, &data](const std::unique_ptr<PackageRequestProto3rd> &package,
                                         quint32 address, int bytes, int deviceType = 0, int protoType = 1) {
            f.serial = package->getSerialNum();
            f.deviceType = deviceType;
            f.protoType = protoType;
            f.address = address;
            f.length = bytes;
            f.payload = protoType == 1 ? data.left(bytes) : QByteArray();
            QCOMPARE(package->ParseSendRequest().toHex(' '), frames::frame(f).toHex(' '));
            QCOMPARE(package->getTag(), QString("3705"));
        };
        becomes(P::Set_ScreenSwitchTimeData("@local", 3, 5, 0x0708, 10, false, "3705", data), 0x13000002, 2);
        becomes(P::Set_3DSignalDelayTimeChanged("@local", 3, 5, 0x0708, 10, false, "3705", data), 0x02000002,
                3, TARGET_Stereo);
        for (unsigned char n : {0, 1, 255}) {
            becomes(P::SetAdvancedPostion("@local", 3, 5, 0x0708, 10, false, "3705", data, n),
                    0x02810016 + 64u * n, 8);
            becomes(P::Set_SenderInterception("@local", 3, 5, 0x0708, 10, false, "3705", data, n, 3),
                    0x13024014 + 132u * n + 48, 11);
        }
        becomes(P::Get_QualitySource("@local", 3, 5, 0x0708, 10, "3705"), 0x13050000, 160, TARGET_Sender, 0);
    }

    /// Two rows with one address are a part and its whole, or go to different devices; none reaches into the
    /// next of its kind.
    void rowsFitAndDiffer()
    {
        struct Row {
            const char *name;
            quint32 address;
            int stride, stride2, bytes, device;
        };
        constexpr int longest = 512; // as the longest table
        constexpr int asked = 255;   // instead of a device, for what is read
        constexpr int lengthOfData = 1;
        const Row catalogue[] = {
#define FPD_WRITE(name, address, bytes, device) {#name, address, 0, 0, bytes, device},
#define FPD_WRITE_EACH(name, address, stride, bytes, device) {#name, address, stride, 0, bytes, device},
#define FPD_WRITE_PAIR(name, address, stride, stride2, bytes, device)                                        \
    {#name, address, stride, stride2, bytes, device},
#define FPD_READ(name, address, bytes) {#name, address, 0, 0, bytes, asked},
#include "framework/protocol/packet/registercatalogue.def"
        };
        QMap<QString, QString> taken;
        for (const Row &row : catalogue) {
            QVERIFY2(row.bytes > 0 && row.bytes <= longest, row.name);
            for (int stride : {row.stride, row.stride2})
                QVERIFY2(stride == 0 || stride >= row.bytes, row.name);
            const QString place = QString("%1 %2 %3").arg(row.address, 8, 16).arg(row.bytes).arg(row.device);
            QVERIFY2(!taken.contains(place), qPrintable(taken[place] + " and " + row.name));
            taken[place] = row.name;
        }
    }

    /// The one register without a fixed width.
    void cloneTakesItsData()
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
};

FPD_TEST_APPLESS(TestRegisterCatalogue)
#include "tst_registercatalogue.moc"
