// The queue of reports between the protocol object and their reading. Reports come from the GUI thread and
// are handled one by one on this thread of its own. The queue is locked for one access only, so that the GUI
// thread never waits for a report that takes long, such as a self test that runs the board's tools; nothing
// that handles a report may wait for the GUI thread either.
#pragma once

#include "framework/protocol/packet/packagerequestproto3rd.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>

namespace VASK
{
/// One entry of the queue.
struct ThirdProtoInfo {
    std::unique_ptr<PackageRequestProto3rd> package;
    bool flag = false; ///< passed along as it came
};

class PackageHandler : public QThread
{
    Q_OBJECT
public:
    /// Reads one report; called on the handler's thread.
    using Reader = std::function<void(const PackageRequestProto3rd &report, bool flag)>;

    explicit PackageHandler(Reader reader, QObject *parent = nullptr);
    /// Ends the thread, without waiting for what is still in the queue.
    ~PackageHandler() override;

    /// Queues a package. Of the reports of one register only the newest waits, at the newest place; input
    /// records and the moving picture registers all stay. Returns 0.
    int AddMessage(std::unique_ptr<PackageBase> package, bool flag = false);
    /// Reports in the queue. Any thread.
    int waiting() const;
    /// With true the thread ends after the report in hand.
    void setExit(bool exit);

protected:
    void run() override;

private:
    void foldOlder(const PackageRequestProto3rd &newest);
    bool takeOldest(ThirdProtoInfo &entry);

    std::deque<ThirdProtoInfo> m_listMessage;
    mutable QMutex m_MessageMutex;
    QWaitCondition m_added;

    Reader m_reader;
    std::atomic<bool> m_exit{false};
};
} // namespace VASK
