// The queue of reports: what is folded, in which order reports are read; and the requests that wait.

#include "framework/protocol/link/requestlist.h"
#include "framework/protocol/receive/packagehandler.h"
#include "tests/testprogram.h"
#include "tests/unit/rig/frames.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <memory>
#include <vector>

using namespace VASK;

namespace
{
std::unique_ptr<PackageRequestProto3rd> report(quint32 address, const QByteArray &payload, int serial = 0)
{
    auto package = std::make_unique<PackageRequestProto3rd>();
    package->unPackageReply(frames::report(address, payload, 0, serial));
    return package;
}

/// A handler with a reader that notes what it is given.
class NotingHandler
{
public:
    NotingHandler() : handler([this](const PackageRequestProto3rd &r, bool) { read(r); }) {}

    /// Queues everything before the thread starts, then has it read.
    QStringList readAll(std::vector<std::unique_ptr<PackageRequestProto3rd>> reports)
    {
        for (auto &r : reports)
            handler.AddMessage(std::move(r));
        handler.start();
        handler.AddMessage(report(0x7FFFFFFF, "end"));
        done.tryAcquire(1, 5000);
        return seen;
    }

private:
    void read(const PackageRequestProto3rd &r)
    {
        if (r.getAddress() == 0x7FFFFFFF)
            done.release();
        else
            seen += QString("%1:%2").arg(r.getAddress(), 8, 16, QChar('0')).arg(QString(r.data()));
    }

    QSemaphore done;
    QStringList seen;
    PackageHandler handler;
};
} // namespace

class TestReports : public QObject
{
    Q_OBJECT
private slots:
    void folding_data()
    {
        addColumns<QString, QString>({"queued", "read"});
        addRow("newest value, newest place", "0200001f:a 13000001:b 0200001f:c 0200001f:d",
               "13000001:b 0200001f:d");
        addRow("another length is another report", "0200001f:a 0200001f:bc", "0200001f:a 0200001f:bc");
        const QString records = "13010001:a 13010021:b 13010001:c";
        addRow("input records all stay, in order", records, records);
        const QString pieces = "13400003:a 13400003:b 13400016:c 13400016:d";
        addRow("pieces of a picture all stay", pieces, pieces);
        addRow("their neighbours are folded", "13400008:a 13400008:b 13400007:c 13400007:d",
               "13400008:b 13400007:d");
    }
    void folding()
    {
        QFETCH(QString, queued);
        std::vector<std::unique_ptr<PackageRequestProto3rd>> reports;
        for (const QString &one : queued.split(' '))
            reports.push_back(
                report(one.section(':', 0, 0).toUInt(nullptr, 16), one.section(':', 1).toLatin1()));
        QTEST(NotingHandler().readAll(std::move(reports)).join(' '), "read");
    }

    void refusedReportIsNotRead()
    {
        std::vector<std::unique_ptr<PackageRequestProto3rd>> reports;
        for (const char *payload : {"a", "b", "c"})
            reports.push_back(report(quint32(0x13000001 + reports.size()), payload));
        reports[1]->setAckCode(AckResults(1));
        QCOMPARE(NotingHandler().readAll(std::move(reports)), QStringList({"13000001:a", "13000003:c"}));
    }

    void readerSeesTheFlag()
    {
        QList<bool> flags;
        QSemaphore read;
        PackageHandler handler([&](const PackageRequestProto3rd &, bool flag) {
            flags += flag;
            read.release();
        });
        handler.start();
        handler.AddMessage(report(1, "a"), true);
        QVERIFY(read.tryAcquire(1, 5000)); // also when the thread was asleep over an empty queue
        handler.AddMessage(report(2, "b"));
        QVERIFY(read.tryAcquire(1, 5000));
        QCOMPARE(flags, QList<bool>({true, false}));
    }

    /// Who adds reports does not wait for the one in hand, and what piles up behind it is folded.
    void slowReaderHoldsNobodyUp()
    {
        QStringList seen;
        QSemaphore entered;
        QSemaphore goOn;
        PackageHandler handler([&](const PackageRequestProto3rd &r, bool) {
            entered.release();
            goOn.tryAcquire(1, 5000);
            seen += QString(r.data());
        });
        handler.start();
        handler.AddMessage(report(0x0200001F, "a"));
        QVERIFY(entered.tryAcquire(1, 5000));
        QElapsedTimer clock;
        clock.start();
        for (const char *payload : {"b", "c", "d"})
            handler.AddMessage(report(0x0200001F, payload));
        QVERIFY2(clock.elapsed() < 2500, "the queue was locked while a report was read");
        goOn.release(2);
        QVERIFY(entered.tryAcquire(1, 5000));
        handler.setExit(true);
        handler.wait();
        QCOMPARE(seen, QStringList({"a", "d"}));
    }

    void answerRetiresOlderRequests()
    {
        RequestList requests;
        for (int serial : {7, 8, 9, 8})
            requests.insert(report(0x13000000, "x", serial));
        QCOMPARE(requests.matchRequest(10), -1);
        QCOMPARE(requests.matchRequest(8), 1);
        const auto answered = requests.takePackage(1);
        QCOMPARE(int(answered->getSerialNum()), 8);
        requests.retire(1);
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests.matchRequest(7), -1);
        QCOMPARE(requests.matchRequest(9), 0);
        QCOMPARE(requests.matchRequest(8), 1);
        requests.retire(5); // no such place: the whole list is older
        QCOMPARE(requests.size(), 0);
        QVERIFY(!requests.takePackage(0));
    }
};

FPD_TEST_GUILESS(TestReports)
#include "tst_reports.moc"
