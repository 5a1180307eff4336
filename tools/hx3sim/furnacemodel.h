#pragma once

// Temperature the controller reports for the chamber. For now the furnace only sits idle at
// room temperature with a slow wander, so the panel's display is seen to move; heating along a
// program is meant to grow in here, driven by the same advance() calls.
class FurnaceModel
{
public:
    explicit FurnaceModel(double ambientCelsius = 22.0);

    void advance(double seconds);

    double chamberCelsius() const { return m_chamberCelsius; }
    // The line carries whole Kelvin.
    int chamberKelvin() const;

private:
    double m_ambientCelsius;
    double m_elapsedSeconds = 0.0;
    double m_chamberCelsius;
};
