#include "settings/pinguard.h"

#include <QDebug>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

namespace ovra {
namespace Settings {

namespace {
// 60 s times 2^10 is some 17 hours; doubling further only risks overflow.
constexpr int maxDoublings = 10;

qint64 SteadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
} // namespace

PinGuard::PinGuard(Clock clock) : m_clock(clock ? std::move(clock) : Clock(SteadyMs)) {}

bool PinGuard::Matches(const QString &typed, bool hasCode, unsigned int code)
{
    if (!hasCode || typed.isEmpty() || typed.size() > maxDigits)
        return false;
    quint64 value = 0;
    for (const QChar c : typed) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
        value = value * 10 + quint64(c.unicode() - '0');
    }
    return value <= std::numeric_limits<unsigned int>::max() && value == code;
}

PinGuard::Verdict PinGuard::Check(const QString &typed, bool hasCode, unsigned int code)
{
    if (IsLocked())
        return Verdict::Locked;
    if (Matches(typed, hasCode, code)) {
        m_wrongInARow = 0;
        m_locks = 0;
        return Verdict::Correct;
    }
    if (!hasCode)
        return Verdict::Wrong;
    if (++m_wrongInARow >= triesBeforeLock) {
        const qint64 lockMs = firstLockMs << std::min(m_locks, maxDoublings);
        m_lockedUntil = m_clock() + lockMs;
        m_wrongInARow = 0;
        ++m_locks;
        qDebug() << "service PIN:" << triesBeforeLock << "wrong entries, pad locked for" << lockMs / 1000 << "s";
    }
    return Verdict::Wrong;
}

bool PinGuard::IsLocked() const
{
    return m_lockedUntil >= 0 && m_clock() < m_lockedUntil;
}

int PinGuard::SecondsLeft() const
{
    if (!IsLocked())
        return 0;
    return int((m_lockedUntil - m_clock() + 999) / 1000);
}

} // namespace Settings
} // namespace ovra
