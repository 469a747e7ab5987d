#include "framework/protocol/link/proto3rd.h"

#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/cabinetnames.h"
#include "framework/protocol/link/proto3rdsend.h"
#include "framework/protocol/packet/packageframe.h"
#include "framework/protocol/packet/packagerequestreaddata3rd.h"
#include "framework/protocol/packet/packagerequestwritedata.h"
#include "framework/protocol/packet/registeraddress.h"
#include "framework/protocol/receive/packagehandler.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

namespace VASK
{
Proto3rd::Proto3rd(ENUM_ObjectIndex index) : ProtocolInterface(index)
{
    m_sendTimer.setObjectName("held value");
    connect(&m_sendTimer, &QTimer::timeout, this, &Proto3rd::slot_SendData);
    connectSupervision();
}

Proto3rd::~Proto3rd()
{
    m_exit = true;
    if (m_notifyThread) {
        m_notifyThread->setStop(true);
        m_notifyThread->wait();
    }
}

void Proto3rd::ResetTimer()
{
    constexpr int holdBackMs = 100;
    m_sendTimer.start(holdBackMs);
}

int Proto3rd::GetValueByIndexSYN(ENUM_MenuIndex index, QString *value)
{
    if (index != MENU_LoadCabFiles)
        qDebug() << "no handle this index to get:" << int(index);
    else if (value)
        *value += readFileGetNames();
    return 1;
}

int Proto3rd::waiting() const
{
    return m_waiting + (m_pMessageHandler ? m_pMessageHandler->waiting() : 0);
}

int Proto3rd::InsertPackToRequestList(std::unique_ptr<PackageRequestWriteData> package)
{
    m_requests.insert(std::move(package));
    return 1;
}

int Proto3rd::InsertReadPackToRequestList(std::unique_ptr<PackageRequestReadData3rd> package)
{
    m_requests.insert(std::move(package));
    return 1;
}

void Proto3rd::slot_ValueChanged(QString strValue, ENUM_MenuIndex enMenuIndex)
{
    qDebug() << "Proto3rd::slot_ValueChanged, strValue:" << strValue << "; enMenuIndex: " << int(enMenuIndex);
    if (Proto3rdSend::getInstance()->HandleMenuValueChanged(enMenuIndex, strValue) != 0)
        qDebug() << "HandleMenuValueChanged faild! strValue:" << strValue
                 << "; enMenuIndex: " << int(enMenuIndex);
}

void Proto3rd::slot_SendData()
{
    if (!Proto3rdSend::mSendFlg)
        return;
    Proto3rdSend::mSendFlg = false;
    if (Proto3rdSend::SendMsgFromCommunication(std::move(Proto3rdSend::mSendDate)) != 0)
        qDebug() << "SendMsg Faild!";
}

void Proto3rd::slot_ReceivePackHandle(QByteArray bytes)
{
    const Datagram datagram = sortDatagram(bytes);
    if (datagram.hasLabels)
        qDebug("LARGE LABEL:0x%x,SMALL LABEL:0x%x", static_cast<unsigned int>(datagram.largeLabel),
               static_cast<unsigned int>(datagram.smallLabel));
    switch (datagram.kind) {
    case DATAGRAM_Heartbeat:
        heartbeatArrived();
        break;
    case DATAGRAM_ReadRequest:
        qDebug() << "cant handle read request!";
        break;
    case DATAGRAM_WriteResponse:
        qDebug() << "cant handle write response!";
        break;
    case DATAGRAM_BadChecksum:
        qDebug() << "false";
        break;
    case DATAGRAM_Packet:
        queueNotify(datagram.packet);
        break;
    case DATAGRAM_Foreign:
        break;
    }
}

void Proto3rd::heartbeatArrived()
{
    const auto *engine = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    if (hostMode(engine) == HostMode::Fiber)
        return;
    emit signal_return_main(false);
    m_session.heartbeat();
}

void Proto3rd::queueNotify(const QByteArray &packet)
{
    {
        QMutexLocker lock(&m_notifyMutex);
        m_notifyList.emplace_back();
        m_notifyList.back().setByteArrayInfo(packet);
        m_waiting = int(m_notifyList.size());
    }
    m_notifyGate.wake();
}

void Proto3rd::slot_notifyThreadFun(bool)
{
    if (m_waiting == 0 || m_exit)
        return;
    QMutexLocker lock(&m_notifyMutex);
    while (!m_notifyList.empty() && !m_exit) {
        handleNotify(m_notifyList.front());
        m_notifyList.pop_front();
    }
    m_waiting = int(m_notifyList.size());
}

void Proto3rd::handleNotify(const NotifyStruct &notify)
{
    const QByteArray &packet = notify.getByteArrayInfo();
    if (packet.startsWith(requestHeader)) {
        handlePushedWrite(packet);
        return;
    }
    auto reply = std::make_unique<PackageRequestProto3rd>();
    if (reply->unPackageReply(packet))
        handleReply(std::move(reply));
}

/// A write that the device pushes is never applied: it only says that something changed without the panel.
void Proto3rd::handlePushedWrite(const QByteArray &packet)
{
    if (littleEndianAt(packet, FRAME_Address, 4) == SyncSilentAddr)
        return;
    qDebug() << "Handle Sync Data";
    returnMain(false);
}

void Proto3rd::handleReply(std::unique_ptr<PackageRequestProto3rd> reply)
{
    const int place = matchRequest(reply->getSerialNum());
    if (reply->getProtoType() == PROTO_Read) {
        if (m_pMessageHandler)
            m_pMessageHandler->AddMessage(std::move(reply), false);
    } else if (reply->getProtoType() == PROTO_Write && place >= 0 && m_pMessageHandler) {
        std::unique_ptr<PackageBase> request = m_requests.takePackage(place);
        request->setAckCode(reply->getAckCode());
        m_pMessageHandler->AddMessage(std::move(request));
    }
    if (place >= 0)
        m_requests.retire(place);
}
} // namespace VASK
