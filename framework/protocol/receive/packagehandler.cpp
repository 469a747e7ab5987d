#include "framework/protocol/receive/packagehandler.h"

#include "framework/protocol/packet/registeraddress.h"

#include <algorithm>

namespace VASK
{
namespace
{
/// Records of the inputs: their order says which inputs there are.
constexpr unsigned short inputRecordsHigh = REG_InputRecord >> 16;

/// Pictures come in pieces through the first registers of each row.
bool isPicturePiece(const PackageRequestProto3rd &report)
{
    constexpr unsigned short picturesHigh = REG_MovingPictures >> 16;
    constexpr int pieceRegisters = 7;
    return report.getHighAddr() == picturesHigh && (report.getLowAddr() & 0xF) < pieceRegisters;
}

bool sameRegister(const PackageRequestProto3rd &one, const PackageRequestProto3rd &other)
{
    return one.getAddress() == other.getAddress() && one.getReplyDataLength() == other.getReplyDataLength();
}
} // namespace

PackageHandler::PackageHandler(Reader reader, QObject *parent) : QThread(parent), m_reader(std::move(reader))
{
    setObjectName("reports");
}

PackageHandler::~PackageHandler()
{
    setExit(true);
    wait();
}

void PackageHandler::foldOlder(const PackageRequestProto3rd &newest)
{
    if (newest.getHighAddr() == inputRecordsHigh || isPicturePiece(newest))
        return;
    const auto folded =
        std::remove_if(m_listMessage.begin(), m_listMessage.end(),
                       [&newest](const ThirdProtoInfo &old) { return sameRegister(*old.package, newest); });
    m_listMessage.erase(folded, m_listMessage.end());
}

/// Others than packages of the third generation say nothing.
int PackageHandler::AddMessage(std::unique_ptr<PackageBase> package, bool flag)
{
    auto *report = dynamic_cast<PackageRequestProto3rd *>(package.get());
    if (!report)
        return 0;
    package.release();
    ThirdProtoInfo entry{std::unique_ptr<PackageRequestProto3rd>(report), flag};
    QMutexLocker lock(&m_MessageMutex);
    foldOlder(*report);
    m_listMessage.push_back(std::move(entry));
    m_added.wakeOne();
    return 0;
}

int PackageHandler::waiting() const
{
    QMutexLocker lock(&m_MessageMutex);
    return int(m_listMessage.size());
}

void PackageHandler::setExit(bool exit)
{
    QMutexLocker lock(&m_MessageMutex);
    m_exit = exit;
    m_added.wakeAll();
}

void PackageHandler::run()
{
    ThirdProtoInfo entry;
    while (takeOldest(entry)) {
        // A refused report says nothing about the register.
        if (entry.package->getAckCode() == ACK_Success && m_reader)
            m_reader(*entry.package, entry.flag);
    }
}

/// Asleep until a report comes, rather than looking every few milliseconds. False when the thread shall end.
bool PackageHandler::takeOldest(ThirdProtoInfo &entry)
{
    QMutexLocker lock(&m_MessageMutex);
    while (m_listMessage.empty() && !m_exit)
        m_added.wait(&m_MessageMutex);
    if (m_exit)
        return false;
    entry = std::move(m_listMessage.front());
    m_listMessage.pop_front();
    return true;
}
} // namespace VASK
