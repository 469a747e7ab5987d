// The centre of the link to the device: brings changed values down through the send path, sorts what comes up
// and passes reports to their reader's thread, and watches the host session and the cables. Lives on the GUI
// thread; slot_ValueChanged and the two insert operations may be called from the report thread, too.
#pragma once

#include "framework/productiontest/productiontest.h"
#include "framework/protocol/bus/datagram.h"
#include "framework/protocol/link/hostsession.h"
#include "framework/protocol/link/linksupervision.h"
#include "framework/protocol/link/protocolinterface.h"
#include "framework/protocol/link/requestlist.h"
#include "framework/protocol/packet/notifystruct.h"
#include "framework/thread/tickgate.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QMutex>
#include <QTimer>
#include <deque>
#include <memory>

namespace VASK
{
class PackageHandler;
class PackageRequestProto3rd;
class PackageRequestReadData3rd;
class PackageRequestWriteData;
class ParaProcess;

class Proto3rd : public ProtocolInterface
{
    Q_OBJECT
public:
    explicit Proto3rd(ENUM_ObjectIndex index);
    ~Proto3rd() override;
    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 1; }

    /// Starts the drain, the reader's thread and the timers, and connects the home screen. Called once, at
    /// the end of the start-up. Returns 1.
    int initialize();
    /// Restarts the send timer for a value that is held back. GUI thread.
    void ResetTimer();
    /// Only the list of cabinet files can be asked for: its names, joined with "+". Returns 1.
    int GetValueByIndexSYN(ENUM_MenuIndex index, QString *value) override;
    int waiting() const override;

    /// A request that waits for an answer. Returns 1.
    /// @{
    int InsertPackToRequestList(std::unique_ptr<PackageRequestWriteData> package);
    int InsertReadPackToRequestList(std::unique_ptr<PackageRequestReadData3rd> package);
    /// @}
    /// Place of the first request with that serial number, -1 for none.
    int matchRequest(unsigned short serialNumber) const { return m_requests.matchRequest(serialNumber); }

public slots:
    void slot_ValueChanged(QString strValue, ENUM_MenuIndex enMenuIndex) override;
    void slot_ReceivePackHandle(QByteArray datagram) override;
    /// Works off what has arrived.
    void slot_notifyThreadFun(bool finishing);
    /// Sends the package that is held back, if there is one.
    void slot_SendData();

signals:
    /// False: a host is active or the device changed on its own, the panel leaves any menu. True: no host
    /// holds the panel any more.
    void signal_return_main(bool mode);
    void signal_update_menuitem(en_inout_test_index index, en_item_state state);
    void signal_soft_calibrate(quint8 state);

private:
    /// Of the work mode: a fiber converter has no host sessions. Unknown while there is no engine.
    enum class HostMode { Unknown, Allowed, Fiber };
    static HostMode hostMode(const ParaProcess *engine);
    /// Lets the panel return home (true) or makes it (false), where the work mode has host sessions.
    void returnMain(bool mode);

    void connectSupervision();
    void connectHomeScreen();
    void showConnection(ENUM_MainWindowConnectState state);
    void passInOutTest(en_inout_test_index index, int state);
    void heartbeatArrived();
    void queueNotify(const QByteArray &packet);
    void handleNotify(const NotifyStruct &notify);
    void handlePushedWrite(const QByteArray &packet);
    void handleReply(std::unique_ptr<PackageRequestProto3rd> reply);

    std::atomic<bool> m_exit{false};
    std::unique_ptr<MsgThread> m_notifyThread;
    TickGate m_notifyGate;
    std::unique_ptr<PackageHandler> m_pMessageHandler;
    RequestList m_requests;
    QMutex m_notifyMutex; ///< guards the list; taken before the lock of the requests
    std::deque<NotifyStruct> m_notifyList;
    std::atomic<int> m_waiting{0}; ///< length of the list, for the ticker's thread
    QTimer m_sendTimer;
    LinkSupervision m_link;
    HostSession m_session;
    ParaProcess *m_pParaProcess = nullptr;
};
} // namespace VASK
