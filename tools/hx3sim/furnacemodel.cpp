#include "furnacemodel.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double kKelvinOffset = 273.0;
constexpr double kSecondsPerMinute = 60.0;
// Share of the gap to the room lost per minute: the insulated chamber keeps its heat for
// hours, an open door lets it out within the quarter hour the door-temperature warning is for.
constexpr double kCoolingPerMinuteClosed = 1.0 / 60.0;
constexpr double kCoolingPerMinuteOpen = 1.0 / 15.0;
// Less than this is rounding left over from the ramp arithmetic, not time still to run.
constexpr double kEpsilonSeconds = 1e-6;
} // namespace

FurnaceModel::FurnaceModel(Clock clock, double speed, double roomCelsius)
    : m_clock(std::move(clock)), m_speed(speed), m_roomCelsius(roomCelsius), m_lastClockMs(m_clock()),
      m_chamberCelsius(roomCelsius)
{
}

void FurnaceModel::update()
{
    const qint64 now = m_clock();
    const qint64 realMs = now - m_lastClockMs;
    m_lastClockMs = now;
    if (realMs <= 0)
        return;
    const double furnaceMs = static_cast<double>(realMs) * m_speed;
    m_furnaceMs += furnaceMs;
    advance(furnaceMs / 1000.0);
}

void FurnaceModel::start(const QList<heatfile::Segment> &segments, int preDryMinutes)
{
    m_steps.clear();
    if (preDryMinutes > 0)
        m_steps.append({0, kPreDryCelsius, kPreDryRate, preDryMinutes * kSecondsPerMinute, true});
    for (int i = 0; i < segments.size(); ++i) {
        const heatfile::Segment &segment = segments.at(i);
        m_steps.append({i + 1, static_cast<double>(segment.tempCelsius), static_cast<double>(segment.rate),
                        segment.holdMinutes * kSecondsPerMinute, false});
    }
    m_events.clear();
    m_firing = true;
    enterStep(0);
    passEmptyPhases();
}

void FurnaceModel::stop()
{
    m_firing = false;
    m_steps.clear();
}

FurnaceModel::Position FurnaceModel::position() const
{
    if (!m_firing)
        return {};
    return {m_steps.at(m_stepIndex).stage, m_holding ? Phase::Hold : Phase::Heat};
}

double FurnaceModel::remainingSeconds() const
{
    if (!m_firing)
        return 0.0;
    const Step &current = m_steps.at(m_stepIndex);
    double total = phaseSecondsLeft();
    // A hold keeps the chamber where it is; a ramp ends at its target.
    double cursor = m_holding ? m_chamberCelsius : rampEnd(current, m_chamberCelsius);
    if (!m_holding)
        total += current.holdSeconds;
    for (int i = m_stepIndex + 1; i < m_steps.size(); ++i) {
        const Step &step = m_steps.at(i);
        total += rampSeconds(step, cursor) + step.holdSeconds;
        cursor = rampEnd(step, cursor);
    }
    return total;
}

int FurnaceModel::remainingMinutes() const
{
    const double seconds = remainingSeconds();
    if (seconds <= kEpsilonSeconds)
        return 0;
    return static_cast<int>(std::ceil(seconds / kSecondsPerMinute - kEpsilonSeconds));
}

QList<FurnaceModel::Event> FurnaceModel::takeEvents()
{
    QList<Event> taken;
    taken.swap(m_events);
    return taken;
}

int FurnaceModel::chamberKelvin() const
{
    return static_cast<int>(std::lround(m_chamberCelsius + kKelvinOffset));
}

void FurnaceModel::setChamberCelsius(double celsius)
{
    m_chamberCelsius = celsius;
    // A ramp whose target the chamber now stands at is over.
    passEmptyPhases();
}

void FurnaceModel::advance(double seconds)
{
    while (m_firing && seconds > 0.0) {
        const double left = phaseSecondsLeft();
        const double used = std::min(left, seconds);
        if (m_holding) {
            m_holdLeftSeconds -= used;
        } else {
            const Step &step = m_steps.at(m_stepIndex);
            if (used >= left) {
                m_chamberCelsius = step.targetCelsius;
            } else {
                const double move = step.rate * used / kSecondsPerMinute;
                m_chamberCelsius += step.targetCelsius > m_chamberCelsius ? move : -move;
            }
        }
        seconds -= used;
        passEmptyPhases();
    }
    if (!m_firing && seconds > 0.0)
        cool(seconds);
}

void FurnaceModel::passEmptyPhases()
{
    while (m_firing && phaseSecondsLeft() <= kEpsilonSeconds) {
        if (!m_holding) {
            // Also where a rate of 0, which no editor stores, would never get there.
            m_chamberCelsius = rampEnd(m_steps.at(m_stepIndex), m_chamberCelsius);
            m_holding = true;
            m_holdLeftSeconds = m_steps.at(m_stepIndex).holdSeconds;
            m_phaseReported = false;
        } else if (m_stepIndex + 1 < m_steps.size()) {
            enterStep(m_stepIndex + 1);
        } else {
            finish();
            return;
        }
    }
    if (m_firing && !m_phaseReported) {
        m_phaseReported = true;
        m_events.append({Event::Kind::Entered, position()});
    }
}

void FurnaceModel::enterStep(int index)
{
    m_stepIndex = index;
    m_holding = false;
    m_holdLeftSeconds = 0.0;
    m_phaseReported = false;
}

void FurnaceModel::finish()
{
    const Position last = position();
    stop();
    m_events.append({Event::Kind::Finished, last});
}

double FurnaceModel::phaseSecondsLeft() const
{
    if (!m_firing)
        return 0.0;
    if (m_holding)
        return std::max(0.0, m_holdLeftSeconds);
    return rampSeconds(m_steps.at(m_stepIndex), m_chamberCelsius);
}

void FurnaceModel::cool(double seconds)
{
    const double perMinute = m_doorOpen ? kCoolingPerMinuteOpen : kCoolingPerMinuteClosed;
    m_chamberCelsius =
        m_roomCelsius + (m_chamberCelsius - m_roomCelsius) * std::exp(-perMinute * seconds / kSecondsPerMinute);
}

double FurnaceModel::rampSeconds(const Step &step, double fromCelsius)
{
    const double distance = step.targetCelsius - fromCelsius;
    if (step.rate <= 0.0 || (step.heatOnly && distance <= 0.0))
        return 0.0;
    return std::fabs(distance) / step.rate * kSecondsPerMinute;
}

double FurnaceModel::rampEnd(const Step &step, double fromCelsius)
{
    if (step.heatOnly && fromCelsius >= step.targetCelsius)
        return fromCelsius;
    return step.targetCelsius;
}
