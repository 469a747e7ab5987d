// The client of the device service on this machine: makes a request of a message of the protocol object. GUI
// thread.
#pragma once

#include "framework/communication/http/protocol4rdmsg.h"
#include "framework/protocol/link/communicationclientinterface.h"

namespace VASK
{
class httpadapter;

class httpService : public CommunicationClientInterface
{
    Q_OBJECT
public:
    using CommunicationClientInterface::CommunicationClientInterface;

    int BuildHandshake(const VaskObject *, QMap<QString, QString>) override { return 0; }
    /// The argument points at an ST_Protocol4rdMsg. 1, or 0 for a type that there is not.
    int SendMsg(void *msg) override;
    int SendMsg(const ST_Protocol4rdMsg &message);

    /// The service as the board has it, and the name of the connection to it.
    static constexpr const char *host = "127.0.0.1";
    static constexpr unsigned short port = 8001;
    static constexpr const char *connection = "lcd";

private:
    static int AdapterInterface(httpadapter &adapter, const ST_Protocol4rdMsg &message);
};
} // namespace VASK
