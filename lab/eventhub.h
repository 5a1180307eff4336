#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>

namespace ovra {
namespace Lab {

// The event stream's fan-out: the broker's side publishes, each open stream waits on its own
// cursor in a web server thread. Holds the last few hundred events only: a stream that falls
// further behind skips ahead. Open streams are bounded so they never take every server thread.
class EventHub
{
public:
    explicit EventHub(int maxStreams) : m_maxStreams(maxStreams) {}

    // `name` and `data` as server-sent event fields; data is one line of JSON.
    void Publish(const std::string &name, const std::string &data);
    std::uint64_t Head() const;
    // Waits up to `timeout` for events after *cursor and appends them, as the stream sends them,
    // to *out. False once the hub is closed (shutdown).
    bool Wait(std::uint64_t *cursor, std::string *out, std::chrono::milliseconds timeout);
    void Close();
    bool IsClosed() const;

    // False when as many streams as allowed are open.
    bool OpenStream();
    void CloseStream();

private:
    static constexpr std::size_t kept = 512;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::string> m_events; // the last `kept`, m_head the number of the newest
    std::uint64_t m_head = 0;
    bool m_closed = false;
    int m_streams = 0;
    const int m_maxStreams;
};

} // namespace Lab
} // namespace ovra
