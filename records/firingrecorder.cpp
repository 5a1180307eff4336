#include "records/firingrecorder.h"

#include "app/furnacestate.h"
#include "programs/heatfiletext.h"
#include "programs/program.h"

namespace ovra {
namespace Records {

FiringStart DescribeProgram(const QString &name, const GlobalElements::Program *program)
{
    FiringStart start;
    start.program = name;
    if (program != nullptr) {
        start.heatfileText = GlobalElements::HeatfileText::Write(*program);
        start.material = program->GetMaterial();
    }
    return start;
}

FiringRecorder::FiringRecorder(const QString &home) : m_store(FiringStore::FileIn(home)) {}

void FiringRecorder::Observe(const GlobalElements::FurnaceState &furnace, const Describe &describe,
                             const DeviceText &deviceText)
{
    using GlobalElements::FurnaceState;
    const FurnaceState *f = &furnace;
    QObject::connect(f, &FurnaceState::FiringRequested, f, [this, f, describe](const QString &program) {
        FiringStart start = describe(program);
        start.program = program;
        start.preDryMinutes = f->RequestedFiring().preDryMinutes;
        start.delayedStart = f->RequestedFiring().delayedStart;
        start.job = f->RequestedFiring().job;
        Requested(start);
    });
    QObject::connect(f, &FurnaceState::FiringProgress, f, [this, f, describe] {
        const QString program = f->CurrentFiring().program;
        Progress(program, f->Date(), f->Time(), [&describe, &program] { return describe(program); });
    });
    QObject::connect(f, &FurnaceState::FiringEnded, f, [this, f](Communication::FiringResult result) {
        const Result recorded = result == Communication::FiringResult::Success   ? Result::Success
                                : result == Communication::FiringResult::Stopped ? Result::Stopped
                                                                                 : Result::Failed;
        Finished(recorded, f->Date(), f->Time());
    });
    QObject::connect(f, &FurnaceState::FiringOver, f, [this] { Over(); });
    QObject::connect(f, &FurnaceState::TemperatureChanged, f, [this, f] { Temperature(f->Celsius()); });
    QObject::connect(f, &FurnaceState::FailureAdded, f, [this](const GlobalElements::FailureEntry &failure) {
        Failure(failure.date + QLatin1Char(' ') + failure.time, failure.code);
    });
    QObject::connect(f, &FurnaceState::DeviceChanged, f, [this, f, deviceText] { Device(deviceText(f->Device())); });
}

void FiringRecorder::Requested(const FiringStart &start)
{
    m_requested = start;
    m_ended.clear();
    m_hasRequest = true;
}

void FiringRecorder::Progress(const QString &program, const QString &date, const QString &time,
                              const std::function<FiringStart()> &describe)
{
    if (!m_store.IsRecording() && program == m_ended)
        return;
    if (!m_store.IsRecording()) {
        FiringStart start = (m_hasRequest && m_requested.program == program) ? m_requested : describe();
        start.program = program;
        start.date = date;
        start.time = time;
        start.device = m_device;
        m_hasRequest = false;
        m_store.Begin(start);
        m_program = program;
        m_clock.start();
    }
    m_store.AddSample(static_cast<int>(m_clock.elapsed() / 1000), m_celsius);
}

void FiringRecorder::Failure(const QString &time, const QString &code)
{
    m_store.AddFailure(time, code);
}

void FiringRecorder::Finished(Result result, const QString &date, const QString &time)
{
    m_hasRequest = false;
    if (m_store.IsRecording())
        m_ended = m_program;
    m_store.End(result, date, time);
}

} // namespace Records
} // namespace ovra
