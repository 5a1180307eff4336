#include "records/firingrecorder.h"

namespace ovra {
namespace Records {

FiringRecorder::FiringRecorder(const QString &home) : m_store(FiringStore::FileIn(home)) {}

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
