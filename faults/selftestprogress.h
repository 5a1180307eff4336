#pragma once

#include <QString>

namespace ovra {
namespace GlobalElements {

// The self-test bar: door, heater and cooling each add 25 the first time their result comes
// after the page was entered, whatever the result; a second result of a row adds nothing.
class SelftestProgress
{
public:
    enum class Row { Door, Heater, Cooling };

    void Reset() { m_counted[0] = m_counted[1] = m_counted[2] = false; }
    // The amount the bar moves for this result (25 or 0).
    int Count(Row row);

    // The rows counted so far, the bar's value for them, and what the bar says about them.
    int Done() const;
    int Value() const { return Done() * step; }
    QString Text() const;

    static constexpr int step = 25;
    static constexpr int rows = 3;
    static constexpr int maximum = rows * step;

private:
    bool m_counted[3] = {false, false, false};
};

} // namespace GlobalElements
} // namespace ovra
