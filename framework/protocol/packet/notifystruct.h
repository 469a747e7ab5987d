// Carries one datagram from the transport to the protocol object's drain. One owner at a time; it owns
// neither the reply nor the package.
#pragma once

#include "framework/protocol/packet/packagebase.h"

#include <QUuid>

namespace VASK
{
class NotifyStruct : public QObject
{
public:
    NotifyStruct() : m_id(QUuid::createUuid().toString()) {}

    const QString &getId() const { return m_id; }
    void setId(const QString &id) { m_id = id; }
    void *reply() const { return m_reply; }
    void setReply(void *reply) { m_reply = reply; }
    const QByteArray &getByteArrayInfo() const { return m_byteArrayInfo; }
    void setByteArrayInfo(const QByteArray &datagram) { m_byteArrayInfo = datagram; }
    int wndHandle() const { return m_wndHandle; }
    void setWndHandle(int handle) { m_wndHandle = handle; }
    CommResults getCommResults() const { return m_commResults; }
    void setCommResults(CommResults results) { m_commResults = results; }
    PackageBase *packe() const { return m_packe; }
    void setPacke(PackageBase *package) { m_packe = package; }

private:
    QString m_id;
    void *m_reply = nullptr;
    QByteArray m_byteArrayInfo;
    int m_wndHandle = 0;
    CommResults m_commResults = COMM_Success;
    PackageBase *m_packe = nullptr;
};
} // namespace VASK
