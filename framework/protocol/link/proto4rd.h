// The second way to the device: turns a change of an item into one request to the device service, and fetches
// the list of cabinet files. Which items come here the routing table says. GUI thread; a change from another
// thread is brought there.
#pragma once

#include "framework/protocol/link/proto4rdrequests.h"
#include "framework/protocol/link/protocolinterface.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QMap>

namespace VASK
{
class CommunicationClientInterface;
class ParaProcess;

class Proto4rd : public ProtocolInterface
{
    Q_OBJECT
public:
    explicit Proto4rd(ENUM_ObjectIndex index);
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }

    /// Finds client and engine. 0 without a client.
    int initialize();
    /// Makes the request of an item's change. 1, also for an item that has none; 0 if the value makes no
    /// request or there is no client.
    int HandleMenuValueChanged(ENUM_MenuIndex index, const QString &strValue);
    /// Asks for the list of cabinet files, the one item that can be asked for. The answer comes later, on
    /// this thread: the names are appended to the string, joined with "+". The string must be there until
    /// then. 1, or 0 for another item.
    int GetValueByIndexSYN(ENUM_MenuIndex index, QString *strValue) override;
    int conditionCheckTaskId(short) { return 0; }

public slots:
    void slot_ValueChanged(QString strValue, ENUM_MenuIndex enMenuIndex) override;
    void slot_ReceivePackHandle(QByteArray) override {}

private:
    int sendShownPattern();
    void cabFilesArrived(const PResultSet &answer);

    CommunicationClientInterface *m_pHttp = nullptr;
    ParaProcess *m_pParaProcess = nullptr;
    QString *m_pstrCabFile = nullptr; ///< where the answer of the read goes
    const QMap<int, ST_TestPattern> m_testPattern;
};
} // namespace VASK
