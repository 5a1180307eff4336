#pragma once

#include <QString>

#include <functional>

namespace ovra {
namespace Settings {

// Guards the service PIN against guessing: after five wrong entries in a row every entry is
// refused for a while, 60 s the first time and twice as long each time after, until a right
// entry starts the count afresh. Widget-free; the clock is injectable so that tests need not
// wait.
class PinGuard
{
public:
    enum class Verdict { Correct, Wrong, Locked };

    static constexpr int triesBeforeLock = 5;
    static constexpr qint64 firstLockMs = 60000;
    // The controller's PIN is an unsigned 32-bit number: up to 4294967295.
    static constexpr int maxDigits = 10;

    // Milliseconds from any fixed start; must never run backwards (not the wall clock, which
    // the controller sets).
    using Clock = std::function<qint64()>;
    // No clock: a monotonic one.
    explicit PinGuard(Clock clock = {});

    // typed is the controller's number: digits only, at most maxDigits, leading zeros read as
    // the number they pad ("0042" is 42). Nothing is right without a code from the controller.
    static bool Matches(const QString &typed, bool hasCode, unsigned int code);

    // One entry. While locked every entry is refused unread and counts for nothing. An entry
    // without a code from the controller is wrong but no guess either: it does not count.
    Verdict Check(const QString &typed, bool hasCode, unsigned int code);

    bool IsLocked() const;
    // Whole seconds the lock still runs, rounded up; 0 when not locked.
    int SecondsLeft() const;

private:
    Clock m_clock;
    int m_wrongInARow = 0;
    int m_locks = 0; // since the last right entry
    qint64 m_lockedUntil = -1;
};

} // namespace Settings
} // namespace ovra
