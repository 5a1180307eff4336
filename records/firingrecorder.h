#pragma once

#include "records/firingstore.h"

#include <QElapsedTimer>
#include <functional>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
class Program;
struct DeviceInfo;
} // namespace GlobalElements

namespace Records {

// What the panel knows of a program when it is fired: its text as fired and its material;
// only the name for a program the store does not hold.
FiringStart DescribeProgram(const QString &name, const GlobalElements::Program *program);

// Turns the panel's firing events into records. A firing is recorded from its first progress
// report, so a delayed start counts from when it really begins and a firing the controller
// started on its own is recorded too (described by the caller, as the panel knows the program).
class FiringRecorder
{
public:
    explicit FiringRecorder(const QString &home);

    using Describe = std::function<FiringStart(const QString &program)>;
    using DeviceText = std::function<QString(const GlobalElements::DeviceInfo &)>;
    // Records whatever the furnace reports from now on: the panel's start, every progress
    // report with the temperature last reported, failures, the result and the device data.
    // `describe` tells what the panel knows of a program; the furnace must not outlive this.
    void Observe(const GlobalElements::FurnaceState &furnace, const Describe &describe, const DeviceText &deviceText);

    void Requested(const FiringStart &start); // the panel's start, kept until the firing begins
    void Temperature(double celsius) { m_celsius = celsius; }
    void Device(const QString &lines) { m_device = lines; } // kept with each firing from now on
    // date and time: the controller's, as last reported.
    void Progress(const QString &program, const QString &date, const QString &time,
                  const std::function<FiringStart()> &describe);
    void Failure(const QString &time, const QString &code);
    void Finished(Result result, const QString &date, const QString &time);
    void Over() { m_ended.clear(); } // the controller's empty report: its firing is done

    FiringStore &Store() { return m_store; }

private:
    FiringStore m_store;
    FiringStart m_requested;
    bool m_hasRequest = false;
    QString m_program;
    QString m_ended; // a firing ended by the panel whose last reports may still come
    double m_celsius = 0.0;
    QString m_device;
    QElapsedTimer m_clock;
};

} // namespace Records
} // namespace ovra
