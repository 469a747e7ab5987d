// The LEDs at the far end of the keypad driver: takes the panel's LED commands on the keypad's socket and
// remembers which LEDs are lit. A thread of its own answers; lit may be asked once a command has returned.
#pragma once

#include "fpd_hostlink.h"
#include "fpd_hostsocket.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <poll.h>
#include <thread>

namespace VASK
{
class LedPanel
{
public:
    explicit LedPanel(const std::string &stateFolder)
    {
        m_listener = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        const int listener = m_listener;
        hostlink::withSocketAddress(
            stateFolder + hostlink::keypadSocket,
            [listener](const sockaddr *address, socklen_t size) { return bind(listener, address, size); });
        listen(m_listener, 16);
        m_thread = std::thread([this] { serve(); });
    }
    ~LedPanel()
    {
        m_ended = true;
        m_thread.join();
        close(m_listener);
    }

    bool lit(int led) const { return m_lit >> led & 1; }

private:
    static constexpr int lowMask = 24;  ///< LEDs 0 to 7
    static constexpr int highMask = 28; ///< LEDs 8 to 15
    static constexpr int command = 40;
    static constexpr uint32_t switchOn = 6;

    void serve()
    {
        while (!m_ended) {
            pollfd entry{m_listener, POLLIN, 0};
            if (poll(&entry, 1, 20) != 1)
                continue;
            const int connection = accept(m_listener, nullptr, nullptr);
            char mode = 0;
            if (recv(connection, &mode, 1, 0) == 1 && mode == 'w')
                takeCommands(connection);
            close(connection);
        }
    }
    void takeCommands(int connection)
    {
        char packet[sizeof(uint32_t) + hostlink::ledBlockSize];
        while (recv(connection, packet, sizeof packet, 0) == ssize_t(sizeof packet)) {
            const char *block = packet + sizeof(uint32_t);
            uint32_t low = 0;
            uint32_t high = 0;
            uint32_t what = 0;
            memcpy(&low, block + lowMask, sizeof low);
            memcpy(&high, block + highMask, sizeof high);
            memcpy(&what, block + command, sizeof what);
            const uint32_t mask = low | high << 8;
            if (what == switchOn)
                m_lit |= mask;
            else
                m_lit &= ~mask;
            const int32_t done = 0;
            send(connection, &done, sizeof done, MSG_NOSIGNAL);
        }
    }

    int m_listener = -1;
    std::atomic<bool> m_ended{false};
    std::atomic<uint32_t> m_lit{0};
    std::thread m_thread;
};
} // namespace VASK
