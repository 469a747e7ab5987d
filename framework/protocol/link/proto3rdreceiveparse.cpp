#include "framework/protocol/link/proto3rdreceiveparse.h"

#include "framework/engine/paraprocess.h"
#include "framework/store/menuanalysis.h"
#include "framework/ui/page.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QDebug>

namespace VASK
{
std::atomic<Proto3rdReceiveParse *> Proto3rdReceiveParse::m_pInstance{nullptr};
QMutex Proto3rdReceiveParse::m_lock;

Proto3rdReceiveParse *Proto3rdReceiveParse::getInstance()
{
    if (!m_pInstance) {
        QMutexLocker lock(&m_lock);
        if (!m_pInstance) {
            auto *instance = new Proto3rdReceiveParse(ENUM_PROTO3RD_RECEIVE);
            instance->CreateObjectToPool(ENUM_PROTO3RD_RECEIVE, instance);
            m_pInstance = instance;
        }
    }
    return m_pInstance;
}

void Proto3rdReceiveParse::deleteInstance()
{
    QMutexLocker lock(&m_lock);
    Proto3rdReceiveParse *instance = m_pInstance.exchange(nullptr);
    if (instance && !ObjectPool::getInstance()->DeleteObject(ENUM_PROTO3RD_RECEIVE))
        delete instance;
}

Proto3rdReceiveParse::Proto3rdReceiveParse(ENUM_ObjectIndex index) : VaskObject(index)
{
    if (!findPeers())
        return;
#define FPD_FAMILY(name) m_mapMenuIndexAndHander.add(name##Reports());
#include "framework/protocol/receive/families.def"
#undef FPD_FAMILY
}

bool Proto3rdReceiveParse::findPeers()
{
    pParaProcess = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    if (!pParaProcess) {
        qDebug() << "Get ENUM_PARAPROCESS obj is null";
        return false;
    }
    pMenu = dynamic_cast<MenuAnalysis *>(GetObjectFromPool(ENUM_MENUANALYSIS));
    if (!pMenu) {
        qDebug() << "Get ENUM_MENUANALYSIS obj is null";
        return false;
    }
    pMenuDir = dynamic_cast<Page *>(GetObjectFromPool(ENUM_MAIN_MENU));
    if (!pMenuDir) {
        qDebug() << "Get ENUM_MAIN_MENU obj is null";
        return false;
    }
    return true;
}

int Proto3rdReceiveParse::Parse3rdToDisplay(const stMessageHandle *message)
{
    qDebug().noquote() << QString::asprintf("Proto3rd addr:[%#x], len:[%lu]", message->address,
                                            static_cast<unsigned long>(message->length));
    const auto found = m_mapMenuIndexAndHander.find(RegisterAddress(message->address));
    if (!found.row) {
        qDebug() << "No Hander! enMenuIndex:" << message->address;
        return 1;
    }
    if (message->data.size() < found.row->bytesNeeded) {
        qDebug() << "Report too short, addr:" << message->address << "bytes:" << message->data.size();
        return 2;
    }
    return found.row->handle(Report{*message, *this, found.member});
}

int Proto3rdReceiveParse::ReportMsgToParaProcess(ENUM_MenuIndex index, const QString &value)
{
    qDebug() << "ReportMsgToParaProcess" << index << value;
    pParaProcess->SetParaToXml(value, index, SET_XML_DEVICE);
    return 1;
}
} // namespace VASK
