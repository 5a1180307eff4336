#include "lab/failurelimiter.h"

#include <QMutexLocker>

namespace ovra {
namespace Lab {

void FailureLimiter::Prune(QVector<qint64> *times, qint64 nowMs)
{
    while (!times->isEmpty() && nowMs - times->first() >= windowMs)
        times->removeFirst();
}

bool FailureLimiter::Blocked(const QString &address, qint64 nowMs)
{
    QMutexLocker lock(&m_mutex);
    auto it = m_failures.find(address);
    if (it == m_failures.end())
        return false;
    Prune(&it.value(), nowMs);
    if (it.value().isEmpty()) {
        m_failures.erase(it);
        return false;
    }
    return it.value().size() >= maxFailures;
}

void FailureLimiter::Fail(const QString &address, qint64 nowMs)
{
    QMutexLocker lock(&m_mutex);
    // Addresses that stopped trying are forgotten, so scanning many addresses costs nothing lasting.
    if (m_failures.size() > 10000) {
        for (auto it = m_failures.begin(); it != m_failures.end();) {
            Prune(&it.value(), nowMs);
            it = it.value().isEmpty() ? m_failures.erase(it) : std::next(it);
        }
    }
    QVector<qint64> &times = m_failures[address];
    Prune(&times, nowMs);
    times.append(nowMs);
}

} // namespace Lab
} // namespace ovra
