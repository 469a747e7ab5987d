#include "framework/protocol/bus/apipcsocket.h"

#include "apipc.h"
#include "framework/protocol/bus/ipcheaderinfo.h"
#include "framework/protocol/packet/packageframe.h"

#include <QDebug>
#include <unistd.h>

namespace VASK
{
namespace
{
constexpr int dealFailed = 3;
constexpr useconds_t queuePauseUs = 100;
constexpr useconds_t roundPauseUs = 5000;

/// The slot number of the card stands in the top byte of a task identifier.
unsigned int taskIdentifier(unsigned int task)
{
    return apcard_bit_self() << 24 | task;
}
unsigned int panelTask()
{
    return taskIdentifier(0x000A3900);
}
unsigned int deviceServiceTask()
{
    return taskIdentifier(0x00070300);
}

/// Called by the library on the waiting thread. Only here is the length of a message known, so a message that
/// is shorter than it says ends here.
int ipc_event_deal(__apsess_st *, void *argument, void *message, unsigned int length)
{
    if (!message) {
        qDebug("=== ipc_event_deal ===Apipc, the data is null, return.");
        return dealFailed;
    }
    if (!isWholeIpcMessage(message, length)) {
        qDebug("=== ipc_event_deal ===Apipc, the message is cut, length: %u, return.", length);
        return dealFailed;
    }
    void *copy = message;
    const int result = apipc_enq(&copy, argument, message, length);
    if (result < 0) {
        qDebug("=== ipc_event_deal ===Apipc, Data into queue invalid, return.");
        return dealFailed;
    }
    return result;
}
} // namespace

bool ApipcSocket::Initialize()
{
    qDebug("APIPC Init before!");
    qDebug("APIPC Init before1!");
    const unsigned int task = panelTask();
    qDebug("APIPC Init after1!");
    const int joined = apipc_init(task, 0);
    if (joined != 0) {
        qDebug("APIPC Init failed(%d)!", joined);
        return false;
    }
    qDebug("APIPC Init success!");
    const int started = CreateThread();
    if (started != 0) {
        qDebug("APIPC CreateThread failed(%d)!", started);
        return false;
    }
    return true;
}

int ApipcSocket::CreateThread()
{
    if (pthread_create(&m_waitThread, nullptr, ApipcThreadProc, this) != 0)
        return -1;
    pthread_setname_np(m_waitThread, "bus wait");
    pthread_detach(m_waitThread);
    if (pthread_create(&m_receiveThread, nullptr, RecvThreadProc, this) != 0)
        return -1;
    pthread_setname_np(m_receiveThread, "bus receive");
    pthread_detach(m_receiveThread);
    return 0;
}

void *ApipcSocket::ApipcThreadProc(void *socket)
{
    static_cast<ApipcSocket *>(socket)->ApipcMsg();
    return nullptr;
}

void *ApipcSocket::RecvThreadProc(void *socket)
{
    static_cast<ApipcSocket *>(socket)->RecvMsg();
    return nullptr;
}

void ApipcSocket::ApipcMsg()
{
    qDebug("ApipcMsg process thread begin:");
    while (!m_stopWait) {
        qDebug("Apipc: begin wait message...");
        apipc_loop_wait(this, ipc_event_deal);
        qDebug("Apipc: finish wait message.");
    }
    qDebug("ApipcMsg process thread exit.");
}

void ApipcSocket::RecvMsg()
{
    qDebug("RecvMeg process thread begin:");
    while (!m_stopReceive) {
        ipc_event_deal_th();
        usleep(roundPauseUs);
    }
    qDebug("RecvMeg process thread exit.");
}

int ApipcSocket::ipc_event_deal_th()
{
    qDebug("Apipc ipc_event_deal_th begin...");
    for (;;) {
        void *message = nullptr;
        if (apipc_deq(&message) < 0) {
            usleep(queuePauseUs);
            continue;
        }
        if (!message) {
            qDebug("=== ipc_event_deal_th ===Recv, msg is invalid, return.");
            return dealFailed;
        }
        void *body = apipc_que_attach(message);
        if (!body) {
            qDebug("=== ipc_event_deal_th ===Recv, boday is invalid, return.");
            return dealFailed;
        }
        dispatch(QByteArray::fromRawData(static_cast<const char *>(body), ipcMessageLength(body)));
        apipc_que_detach(message, body);
    }
}

/// What is done about a message with these labels; any other is ignored.
struct ApipcSocket::Label {
    short large;
    short small;
    void (*act)(ApipcSocket &socket, const QByteArray &payload);
};

namespace
{
void takePacket(ApipcSocket &socket, const QByteArray &payload)
{
    socket.SetReceiveSucessFlag(true);
    socket.AddMessage(payload.constData(), payload.size());
}

void logUsbDiskType(const QByteArray &payload)
{
    qDebug() << "================= label udisk type =================" << littleEndianAt(payload, 0, 1);
}
} // namespace

const ApipcSocket::Label ApipcSocket::labels[] = {
    {LABEL_Packet, LABEL_PacketAnswered, takePacket},
    {LABEL_Packet, LABEL_PacketSent, takePacket},
    {LABEL_UsbDisk, LABEL_UsbDiskBackup,
     [](ApipcSocket &, const QByteArray &payload) {
         qDebug("================= label udisk UBACK_CREAT =================");
         logUsbDiskType(payload);
     }},
    {LABEL_UsbDisk, LABEL_UsbDiskNet,
     [](ApipcSocket &, const QByteArray &payload) {
         qDebug("================= label udisk LABEL_MSG_NET =================");
         logUsbDiskType(payload);
     }},
    {LABEL_Progress, LABEL_ProgressCount,
     [](ApipcSocket &socket, const QByteArray &payload) {
         const auto count = static_cast<quint16>(littleEndianAt(payload, 0, 2));
         qDebug("SMALL_LABEL(lab) == 0x04");
         qDebug() << "cnt == " << count;
         socket.reportUpdate(0, count);
     }},
    {LABEL_Progress, LABEL_ProgressDone,
     [](ApipcSocket &socket, const QByteArray &) {
         qDebug("SMALL_LABEL(lab) == 0x05");
         socket.reportUpdate(1, 0);
     }},
};

void ApipcSocket::dispatch(const QByteArray &message)
{
    const IpcMessage parsed = parseIpcMessage(message);
    for (const Label &label : labels) {
        if (label.large == parsed.largeLabel && label.small == parsed.smallLabel)
            label.act(*this, parsed.payload);
    }
}

bool ApipcSocket::SendData(QByteArray packet)
{
    constexpr quint32 constant = 1;
    IpcHeaderInfo header(&packet, static_cast<quint32>(packet.size()), panelTask(), constant, 0, 0,
                         LABEL_PacketSent, LABEL_Packet);
    QByteArray message;
    const bool assembled = header.AssembleMessage(message);
    if (packet.isEmpty())
        qDebug("msgLength is 0");
    if (!assembled)
        return false;
    if (apipc_send(deviceServiceTask(), message.constData(), static_cast<unsigned int>(message.size())) !=
        0) {
        qDebug("APIPC Send Failed(APTID_IMD_DOWN)!");
        return false;
    }
    return true;
}

int ApipcSocket::AddMessage(const char *packet, int length)
{
    const QByteArray bytes(packet, length);
    qDebug() << "AddMessage, iLen: " << length << ",data:" << bytes.toHex();
    m_arrivals.post([this, bytes] { emit receivedInfos(bytes); });
    return 0;
}

void ApipcSocket::reportUpdate(quint8 mode, quint16 count)
{
    m_arrivals.post([=] { emit signal_update(mode, count); });
}

void ApipcSocket::SetReceiveSucessFlag(bool success)
{
    QMutexLocker lock(&m_mutex);
    m_receiveSuccess = success;
}
} // namespace VASK
