#include "framework/protocol/link/proto3rdsend.h"

#include "framework/engine/paraprocess.h"
#include "framework/input/knobturn.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/protocol/link/proto3rd.h"
#include "framework/protocol/send/sendrow.h"
#include "framework/ui/page.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QDebug>
#include <QThread>
#include <memory>

namespace VASK
{
std::atomic<Proto3rdSend *> Proto3rdSend::m_pInstance{nullptr};
QMutex Proto3rdSend::m_mutex;
bool Proto3rdSend::mSendFlg = false;
std::unique_ptr<PackageRequestWriteData> Proto3rdSend::mSendDate;
ENUM_MenuIndex Proto3rdSend::mSendIndexCur = MENU_OWN;
ENUM_MenuIndex Proto3rdSend::mSendIndexLast = MENU_OWN;
std::atomic<MosaicType> Proto3rdSend::m_enFlag{MOSAIC_Off};
std::atomic<unsigned short> Proto3rdSend::m_usNetPortIndex{1};
GammaSettings Proto3rdSend::m_gamma;

namespace
{
template <class Peer> Peer *peer(ENUM_ObjectIndex index, const char *complaint)
{
    auto *found = dynamic_cast<Peer *>(ObjectPool::getInstance()->GetObject(index));
    if (!found)
        qDebug() << complaint;
    return found;
}
} // namespace

Proto3rdSend *Proto3rdSend::getInstance()
{
    if (!m_pInstance) {
        QMutexLocker lock(&m_mutex);
        if (!m_pInstance)
            m_pInstance = new Proto3rdSend;
    }
    return m_pInstance;
}

void Proto3rdSend::deleteInstance()
{
    QMutexLocker lock(&m_mutex);
    delete m_pInstance.exchange(nullptr);
}

Proto3rdSend::Proto3rdSend() : VaskObject(ENUM_PROTO3RD_SEND), m_mapMenuIndexAndHander(sendFamilies())
{
    CreateObjectToPool(ENUM_PROTO3RD_SEND, this);
    lookForPeers();
}

Proto3rdSend::~Proto3rdSend()
{
    ObjectPool::getInstance()->RemoveByIndex(ENUM_PROTO3RD_SEND);
    mSendFlg = false;
    mSendDate.reset();
    mSendIndexCur = mSendIndexLast = MENU_OWN;
}

ParaProcess *Proto3rdSend::engine()
{
    return peer<ParaProcess>(ENUM_PARAPROCESS, "ParaProcess OBJ faild!");
}

CommunicationClientInterface *Proto3rdSend::communication()
{
    return peer<CommunicationClientInterface>(ENUM_COMMUNICATION_APIPC, "Proto3rdSend getApipc OBJ faild!");
}

Proto3rd *Proto3rdSend::protocol()
{
    return peer<Proto3rd>(ENUM_PROTOCOINTERFER_3RD, "Proto3rdSend Proto3rd OBJ faild!");
}

/// Says at the start already what the first value would miss.
void Proto3rdSend::lookForPeers()
{
    communication();
    protocol();
    peer<ProtocolInterface>(ENUM_PROTOCOINTERFER_3RD, "Inter OBJ faild!");
    engine();
    peer<Page>(ENUM_MAIN_MENU, "MenuDir OBJ faild!");
}

bool Proto3rdSend::onGuiThread()
{
    return QThread::currentThread() == getInstance()->thread();
}

int Proto3rdSend::HandleMenuValueChanged(ENUM_MenuIndex index, const QString &value)
{
    if (onGuiThread())
        mSendIndexCur = index;
    const TableEntry<SendRow> entry = m_mapMenuIndexAndHander.find(index);
    if (!entry.row) {
        qDebug() << "No Hander! enMenuIndex:" << int(index);
        return SEND_NoHandler;
    }
    if (!entry.row->handler)
        return SEND_Done;
    return entry.row->handler({index, value, *entry.row, entry.member, entry.place});
}

int Proto3rdSend::queueFrame(std::unique_ptr<PackageRequestProto3rd> package)
{
    CommunicationClientInterface *client = communication();
    if (!package || !client)
        return SEND_Failed;
    QByteArray frame = package->ParseSendRequest();
    if (client->SendMsg(&frame))
        return SEND_Done;
    qDebug() << "CommunicationClientInterface SendMsg fail";
    return SEND_Failed;
}

int Proto3rdSend::SendMsgFromCommunication(std::unique_ptr<PackageRequestWriteData> package)
{
    return queueFrame(std::move(package));
}

int Proto3rdSend::SendRequstMsgFromCommunication(std::unique_ptr<PackageRequestReadData3rd> package)
{
    return queueFrame(std::move(package));
}

int Proto3rdSend::SendHeldBack(const SendChange &change, std::unique_ptr<PackageRequestWriteData> package)
{
    // The knob turns on the GUI thread only. What the report thread sends leaves at once and lets a turn go
    // on undisturbed.
    if (!onGuiThread())
        return change.send(std::move(package));

    Proto3rd *timerOwner = protocol();
    if (timerOwner && KnobTurn::runs() && mSendIndexCur == mSendIndexLast) {
        qDebug() << "mSendFlg == " << mSendFlg;
        if (!mSendFlg) {
            mSendFlg = true;
            timerOwner->ResetTimer();
        }
        mSendDate = std::move(package);
    } else {
        if (change.send(std::move(package)) != SEND_Done)
            return SEND_Failed;
        if (timerOwner)
            timerOwner->slot_SendData();
    }
    mSendIndexLast = mSendIndexCur;
    return SEND_Done;
}
} // namespace VASK
