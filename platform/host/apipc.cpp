#include "apipc.h"

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"
#include "platform/host/apipcqueue.h"
#include "platform/host/statefile.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <mutex>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

// This program's end of the bus. The thread in apipc_loop_wait makes the connection and is the only one to
// close it; senders use it under the lock, and fail while there is none.
namespace
{
constexpr auto reconnectPause = std::chrono::milliseconds(200);

struct Bus {
    std::mutex lock;
    int descriptor = -1;
    host::ApipcQueue queue;
};

/// Never destroyed: the program's bus threads run until the process ends.
Bus &bus()
{
    static Bus *theBus = new Bus;
    return *theBus;
}

int joinedDescriptor()
{
    const std::string file = host::stateFile(hostlink::busSocket).toStdString();
    int descriptor = hostlink::connectSocket(file, SOCK_SEQPACKET);
    while (descriptor < 0) {
        std::this_thread::sleep_for(reconnectPause);
        descriptor = hostlink::connectSocket(file, SOCK_SEQPACKET);
    }
    const std::lock_guard<std::mutex> guard(bus().lock);
    bus().descriptor = descriptor;
    return descriptor;
}

void leave(int descriptor)
{
    const std::lock_guard<std::mutex> guard(bus().lock);
    bus().descriptor = -1;
    close(descriptor);
}
} // namespace

int apipc_init(unsigned int, int)
{
    return 0;
}

int apipc_loop_wait(void *argument, apipc_callback callback)
{
    const int descriptor = joinedDescriptor();
    std::array<char, hostlink::longestBusMessage> message;
    for (;;) {
        const ssize_t length = recv(descriptor, message.data(), message.size(), 0);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        callback(nullptr, argument, message.data(), static_cast<unsigned int>(length));
    }
    leave(descriptor);
    return -1;
}

int apipc_enq(void **messageCopy, void *, void *, unsigned int length)
{
    if (!messageCopy || !*messageCopy)
        return -1;
    bus().queue.put(static_cast<const char *>(*messageCopy), length);
    return 0;
}

int apipc_deq(void **message)
{
    *message = bus().queue.take();
    return *message ? 0 : -1;
}

void *apipc_que_attach(void *message)
{
    return message ? static_cast<host::ApipcMessage *>(message)->data() : nullptr;
}

int apipc_que_detach(void *message, void *)
{
    delete static_cast<host::ApipcMessage *>(message);
    return 0;
}

int apipc_send(unsigned int, const void *message, unsigned int length)
{
    if (host::takeFault(hostlink::busFaultFile))
        return -1;
    const std::lock_guard<std::mutex> guard(bus().lock);
    if (bus().descriptor < 0)
        return -1;
    const ssize_t sent = send(bus().descriptor, message, length, MSG_DONTWAIT | MSG_NOSIGNAL);
    return sent == ssize_t(length) ? 0 : -1;
}
