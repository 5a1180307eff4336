#pragma once

#include "process/chartgeometry.h"

// A hold clock the test moves by hand, counting how often a hold starts to be timed.
struct FakeHoldClock : ovra::GlobalElements::HoldClock
{
    void Restart() override
    {
        elapsedMs = 0;
        ++restarts;
    }
    qint64 ElapsedMs() const override { return elapsedMs; }
    qint64 elapsedMs = 0;
    int restarts = 0;
};
