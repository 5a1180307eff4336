#include "process/firingsummary.h"

#include "app/captions.h"
#include "app/furnacestate.h"
#include "faults/failureseverity.h"
#include "process/temperaturetext.h"
#include "records/firingchart.h"

#include <QtNumeric>

namespace ovra {
namespace Process {

namespace {
QString Caption(const char *source)
{
    return QCoreApplication::translate(Mainwindow::Captions::context, source);
}
} // namespace

void FiringSummary::Observe(const GlobalElements::FurnaceState &furnace)
{
    using GlobalElements::FurnaceState;
    const FurnaceState *f = &furnace;
    connect(f, &FurnaceState::FiringStarted, this, [this, f] {
        Begin(f->ClockDateTime(), f->CelsiusText().isEmpty() ? qQNaN() : f->CelsiusText().toDouble());
    });
    connect(f, &FurnaceState::TemperatureChanged, this, [this, f] {
        if (f->IsFiring())
            Temperature(f->CelsiusText().toDouble()); // signed: a reading below 0 °C is no highest
    });
    connect(f, &FurnaceState::FailureAdded, this,
            [this](const GlobalElements::FailureEntry &failure) { Failure(failure.code); });
    connect(f, &FurnaceState::FiringEnded, this, [this, f](Result result) { End(result, f->ClockDateTime()); });
}

void FiringSummary::Begin(const QDateTime &clock, double celsius)
{
    const bool wasShown = m_shown;
    m_shown = false;
    m_begun = true;
    m_result = Result::None;
    m_start = clock;
    m_end = QDateTime();
    m_hasHighest = !qIsNaN(celsius);
    m_highest = m_hasHighest ? celsius : 0.0;
    m_failures.clear();
    if (wasShown)
        emit Changed();
}

void FiringSummary::Temperature(double celsius)
{
    if (!m_begun || m_result != Result::None)
        return;
    if (!m_hasHighest || celsius > m_highest)
        m_highest = celsius;
    m_hasHighest = true;
}

void FiringSummary::Failure(const QString &code)
{
    if (!m_begun)
        return;
    m_failures.prepend(code);
    if (m_shown)
        emit Changed();
}

void FiringSummary::End(Result result, const QDateTime &clock)
{
    m_result = result;
    m_end = clock;
    m_shown = true;
    emit Changed();
}

void FiringSummary::Dismiss()
{
    if (!m_shown)
        return;
    m_shown = false;
    emit Changed();
}

SummaryText FiringSummary::Text(bool fahrenheit) const
{
    SummaryText text;
    if (!m_shown)
        return text;
    text.result = Caption(m_result == Result::Success ? Mainwindow::Captions::ProgrammBeendet
                                                      : Mainwindow::Captions::ProgrammAbgebrochen);
    if (m_begun && m_start.isValid() && m_end.isValid() && m_start <= m_end)
        text.rows.append({tr("Dauer"), Records::FiringChart::DurationText(int(m_start.secsTo(m_end)))});
    if (m_end.isValid())
        text.rows.append({tr("Ende"), m_end.toString(QStringLiteral("hh:mm"))});
    if (m_begun && m_hasHighest) {
        // Shown in the unit set now, as the controller's whole degrees.
        const QString celsius = QString::number(static_cast<qint64>(m_highest));
        text.rows.append({tr("Höchste Temperatur"), TemperatureText::FromCelsiusText(celsius, fahrenheit).text});
    }
    for (const QString &code : m_failures)
        text.failures << GlobalElements::FailureSeverity::Line(code);
    return text;
}

} // namespace Process
} // namespace ovra
