#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <QVector>

namespace ovra {
namespace Lab {

// Guesses at a token: an address with ten failed attempts within a minute is refused (429)
// until the oldest of them is a minute old. Time is given by the caller, in ms.
class FailureLimiter
{
public:
    static constexpr int maxFailures = 10;
    static constexpr qint64 windowMs = 60 * 1000;

    bool Blocked(const QString &address, qint64 nowMs);
    void Fail(const QString &address, qint64 nowMs);

private:
    void Prune(QVector<qint64> *times, qint64 nowMs);

    QMutex m_mutex;
    QHash<QString, QVector<qint64>> m_failures;
};

} // namespace Lab
} // namespace ovra
