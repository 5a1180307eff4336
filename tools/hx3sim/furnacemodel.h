#pragma once

#include "heatfile.h"

#include <QList>
#include <QtGlobal>

#include <functional>

// The chamber of the furnace: it follows a running program segment by segment, and cools
// towards the room when nothing runs. Time comes from a clock handed in, scaled by the speed,
// so that a whole firing can be walked through in a test without waiting for it; the model
// never reads the system time itself.
class FurnaceModel
{
public:
    // Real milliseconds, only ever compared with earlier readings of the same clock.
    using Clock = std::function<qint64()>;

    // What a firing does at the moment. Ramps down are "heat" as well: the panel knows no other
    // word for a moving set point.
    enum class Phase { Heat, Hold };

    // Stage 0 is the pre-dry stage; the program's segments count from 1.
    struct Position
    {
        int stage = 0;
        Phase phase = Phase::Heat;

        bool operator==(const Position &other) const { return stage == other.stage && phase == other.phase; }
    };

    // A stage or phase the firing entered, or its end, in the order they happened. Phases that
    // take no time at all (a ramp to where the chamber already is, a hold of 0 minutes) are
    // passed over without one.
    struct Event
    {
        enum class Kind { Entered, Finished };
        Kind kind = Kind::Entered;
        Position position;
    };

    static constexpr double kRoomCelsius = 22.0;
    static constexpr double kPreDryCelsius = 130.0;
    static constexpr double kPreDryRate = 10.0;

    // speed: furnace seconds per real second.
    explicit FurnaceModel(Clock clock, double speed = 1.0, double roomCelsius = kRoomCelsius);

    // Runs the furnace on to the clock's present reading.
    void update();

    // Furnace milliseconds gone by since construction, up to the last update().
    double furnaceMs() const { return m_furnaceMs; }

    // Starts at the chamber's present temperature, after update(). A pre-dry of more than 0
    // minutes comes first: up to 130 °C at 10 °C/min when colder, then held that long.
    void start(const QList<heatfile::Segment> &segments, int preDryMinutes);
    // The heating stops; the chamber cools from where it is.
    void stop();

    bool isFiring() const { return m_firing; }
    Position position() const;
    // Furnace seconds until the end: the rest of the present phase and everything after it,
    // every later ramp timed from where the one before ends.
    double remainingSeconds() const;
    // Whole minutes, rounded up, so that 0 means the firing is over.
    int remainingMinutes() const;

    QList<Event> takeEvents();

    double chamberCelsius() const { return m_chamberCelsius; }
    // The line carries whole Kelvin.
    int chamberKelvin() const;
    // An operator's override: a firing goes on from this temperature.
    void setChamberCelsius(double celsius);

    // The open door lets the heat out faster; it changes nothing while heating.
    void setDoorOpen(bool open) { m_doorOpen = open; }
    bool isDoorOpen() const { return m_doorOpen; }

private:
    struct Step
    {
        int stage = 0;
        double targetCelsius = 0.0;
        double rate = 0.0; // °C per minute
        double holdSeconds = 0.0;
        bool heatOnly = false; // the pre-dry never cools a hot chamber down to 130 °C
    };

    void advance(double seconds);
    void passEmptyPhases();
    void enterStep(int index);
    void finish();
    double phaseSecondsLeft() const;
    void cool(double seconds);
    static double rampSeconds(const Step &step, double fromCelsius);
    static double rampEnd(const Step &step, double fromCelsius);

    Clock m_clock;
    double m_speed;
    double m_roomCelsius;
    qint64 m_lastClockMs;
    double m_furnaceMs = 0.0;
    double m_chamberCelsius;
    bool m_doorOpen = false;

    bool m_firing = false;
    QList<Step> m_steps;
    int m_stepIndex = 0;
    bool m_holding = false;
    double m_holdLeftSeconds = 0.0;
    bool m_phaseReported = false;
    QList<Event> m_events;
};
