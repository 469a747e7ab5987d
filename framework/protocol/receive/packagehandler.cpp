#include "framework/protocol/receive/packagehandler.h"

#include <memory>

namespace VASK
{
QList<ThirdProtoInfo> PackageHandler::m_listMessage;
QMutex PackageHandler::m_MessageMutex;
QWaitCondition PackageHandler::m_added;

namespace
{
/// Records of the inputs: their order says which inputs there are.
constexpr unsigned short inputRecordsHigh = 0x1301;

/// Pictures come in pieces through the first registers of each row.
bool isPicturePiece(const PackageRequestProto3rd &report)
{
    constexpr unsigned short picturesHigh = 0x1340;
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
    QMutexLocker lock(&m_MessageMutex);
    for (const ThirdProtoInfo &entry : qAsConst(m_listMessage))
        delete entry.package;
    m_listMessage.clear();
}

/// All that waits are packages of the third generation: AddMessage takes no others.
void PackageHandler::foldOlder(const PackageRequestProto3rd &newest)
{
    if (newest.getHighAddr() == inputRecordsHigh || isPicturePiece(newest))
        return;
    for (int i = m_listMessage.size() - 1; i >= 0; --i) {
        if (sameRegister(static_cast<const PackageRequestProto3rd &>(*m_listMessage[i].package), newest))
            delete m_listMessage.takeAt(i).package;
    }
}

int PackageHandler::AddMessage(PackageBase *package, bool flag)
{
    QMutexLocker lock(&m_MessageMutex);
    if (const auto *report = dynamic_cast<PackageRequestProto3rd *>(package)) {
        foldOlder(*report);
        m_listMessage.append({package, flag});
        m_added.wakeOne();
    } else {
        delete package;
    }
    return 0;
}

int PackageHandler::waiting() const
{
    QMutexLocker lock(&m_MessageMutex);
    return m_listMessage.size();
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
        const std::unique_ptr<PackageBase> package(entry.package);
        if (package->getAckCode() == ACK_Success && m_reader)
            m_reader(static_cast<const PackageRequestProto3rd &>(*package), entry.flag);
    }
}

/// Asleep until a report comes, rather than looking every few milliseconds. False when the thread shall end.
bool PackageHandler::takeOldest(ThirdProtoInfo &entry)
{
    QMutexLocker lock(&m_MessageMutex);
    while (m_listMessage.isEmpty() && !m_exit)
        m_added.wait(&m_MessageMutex);
    if (m_exit)
        return false;
    entry = m_listMessage.takeFirst();
    return true;
}
} // namespace VASK
