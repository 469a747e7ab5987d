#include "framework/protocol/link/proto3rd.h"

#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/cabinetnames.h"
#include "framework/protocol/link/proto3rdsend.h"
#include "framework/protocol/packet/notifystruct.h"
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
    qDeleteAll(m_notifyList);
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

int Proto3rd::InsertPackToRequestList(PackageRequestWriteData *package)
{
    m_requests.insert(package);
    return 1;
}

int Proto3rd::InsertReadPackToRequestList(PackageRequestReadData3rd *package)
{
    m_requests.insert(package);
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
    PackageRequestWriteData *held = Proto3rdSend::mSendDate;
    Proto3rdSend::mSendDate = nullptr;
    if (Proto3rdSend::SendMsgFromCommunication(held) != 0)
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
    auto *notify = new NotifyStruct;
    notify->setByteArrayInfo(packet);
    {
        QMutexLocker lock(&m_notifyMutex);
        m_notifyList.append(notify);
        m_waiting = m_notifyList.size();
    }
    m_notifyGate.wake();
}

void Proto3rd::slot_notifyThreadFun(bool)
{
    if (m_waiting == 0 || m_exit)
        return;
    QMutexLocker lock(&m_notifyMutex);
    while (!m_notifyList.isEmpty() && !m_exit) {
        const std::unique_ptr<NotifyStruct> notify(m_notifyList.takeFirst());
        handleNotify(*notify);
    }
    m_waiting = m_notifyList.size();
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
        handleReply(reply.release());
}

/// A write that the device pushes is never applied: it only says that something changed without the panel.
void Proto3rd::handlePushedWrite(const QByteArray &packet)
{
    if (littleEndianAt(packet, FRAME_Address, 4) == SyncSilentAddr)
        return;
    qDebug() << "Handle Sync Data";
    returnMain(false);
}

void Proto3rd::handleReply(PackageRequestProto3rd *reply)
{
    std::unique_ptr<PackageRequestProto3rd> owned(reply);
    const int place = matchRequest(reply->getSerialNum());
    if (reply->getProtoType() == PROTO_Read) {
        if (m_pMessageHandler)
            m_pMessageHandler->AddMessage(owned.release(), false);
    } else if (reply->getProtoType() == PROTO_Write && place >= 0 && m_pMessageHandler) {
        PackageBase *request = m_requests.takePackage(place);
        request->setAckCode(reply->getAckCode());
        m_pMessageHandler->AddMessage(request);
    }
    if (place >= 0)
        m_requests.retire(place);
}
} // namespace VASK
