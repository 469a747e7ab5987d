// Messages between the bus thread that receives them and the thread that works on them. The taker is let wait
// a little, so that a program that asks again and again does not burn the processor.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

namespace host
{
using ApipcMessage = std::vector<char>;

class ApipcQueue
{
public:
    /// Waits while the queue is full: what follows stays in the socket, where the sender sees it.
    void put(const char *message, unsigned int length)
    {
        std::unique_lock<std::mutex> guard(m_lock);
        m_taken.wait(guard, [this] { return m_messages.size() < maximalMessages; });
        m_messages.push_back(std::make_unique<ApipcMessage>(message, message + length));
        m_filled.notify_one();
    }

    /// The oldest message, which is now the caller's; null if none came for a while.
    ApipcMessage *take()
    {
        std::unique_lock<std::mutex> guard(m_lock);
        if (!m_filled.wait_for(guard, longestWait, [this] { return !m_messages.empty(); }))
            return nullptr;
        ApipcMessage *message = m_messages.front().release();
        m_messages.pop_front();
        m_taken.notify_one();
        return message;
    }

private:
    static constexpr size_t maximalMessages = 4096;
    static constexpr std::chrono::milliseconds longestWait{3000};

    std::mutex m_lock;
    std::condition_variable m_filled, m_taken;
    std::deque<std::unique_ptr<ApipcMessage>> m_messages;
};
} // namespace host
