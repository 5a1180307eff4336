#include "furnacemodel.h"

#include <cmath>

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kKelvinOffset = 273.0;

// Two slow waves instead of noise: the run is the same every time, which keeps logs comparable.
double roomWander(double seconds)
{
    return 0.6 * std::sin(2.0 * kPi * seconds / 300.0) + 0.25 * std::sin(2.0 * kPi * seconds / 47.0);
}
}  // namespace

FurnaceModel::FurnaceModel(double ambientCelsius)
    : m_ambientCelsius(ambientCelsius)
    , m_chamberCelsius(ambientCelsius)
{
}

void FurnaceModel::advance(double seconds)
{
    if (seconds <= 0.0)
        return;
    m_elapsedSeconds += seconds;
    m_chamberCelsius = m_ambientCelsius + roomWander(m_elapsedSeconds);
}

int FurnaceModel::chamberKelvin() const
{
    return static_cast<int>(std::lround(m_chamberCelsius + kKelvinOffset));
}
