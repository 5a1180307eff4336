#include "lab/eventhub.h"

namespace ovra {
namespace Lab {

void EventHub::Publish(const std::string &name, const std::string &data)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_events.push_back("event: " + name + "\ndata: " + data + "\n\n");
        if (m_events.size() > kept)
            m_events.pop_front();
        ++m_head;
    }
    m_changed.notify_all();
}

std::uint64_t EventHub::Head() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_head;
}

bool EventHub::Wait(std::uint64_t *cursor, std::string *out, std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, timeout, [&] { return m_closed || m_head > *cursor; });
    if (m_closed)
        return false;
    const std::uint64_t oldest = m_head - m_events.size() + 1;
    if (*cursor + 1 < oldest)
        *cursor = oldest - 1;
    for (std::uint64_t n = *cursor + 1; n <= m_head; ++n)
        *out += m_events[static_cast<std::size_t>(n - oldest)];
    *cursor = m_head;
    return true;
}

void EventHub::Close()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_closed = true;
    }
    m_changed.notify_all();
}

bool EventHub::IsClosed() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_closed;
}

bool EventHub::OpenStream()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_closed || m_streams >= m_maxStreams)
        return false;
    ++m_streams;
    return true;
}

void EventHub::CloseStream()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_streams;
}

} // namespace Lab
} // namespace ovra
