#pragma once

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

    static constexpr int maximum = 75;

private:
    bool m_counted[3] = {false, false, false};
};

} // namespace GlobalElements
} // namespace ovra
