#pragma once

#include "communication/reports.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QObject>
#include <QPair>
#include <QStringList>

namespace ovra {
namespace GlobalElements {
class FurnaceState;
}

namespace Process {

// What the process page shows when a firing is over, every text as it stands on the page.
struct SummaryText
{
    QString result;                      // "Programm beendet", "Programm abgebrochen"
    QList<QPair<QString, QString>> rows; // caption and value: duration, end, highest temperature
    QStringList failures;                // "E201  Warnung", the newest first; empty: none
};

// The summary of the current or last firing. It is shown from the firing's result until the
// next firing begins or the page is left (Dismiss). Failures count from the firing's first
// report on, those that come after its result too (a firing that fails names its failure
// around its result, in either order).
class FiringSummary : public QObject
{
    Q_OBJECT

public:
    using Result = Communication::FiringResult;

    explicit FiringSummary(QObject *parent = nullptr) : QObject(parent) {}

    // Follows the furnace from now on; it must outlive this.
    void Observe(const GlobalElements::FurnaceState &furnace);

    // clock: the controller's, invalid when unknown; celsius: NaN when not reported yet.
    void Begin(const QDateTime &clock, double celsius);
    void Temperature(double celsius);
    void Failure(const QString &code);
    void End(Result result, const QDateTime &clock);
    void Dismiss();

    bool IsShown() const { return m_shown; }
    bool Succeeded() const { return m_result == Result::Success; }
    SummaryText Text(bool fahrenheit) const;

signals:
    void Changed();

private:
    bool m_shown = false;
    bool m_begun = false;
    Result m_result = Result::None;
    QDateTime m_start;
    QDateTime m_end;
    double m_highest = 0.0;
    bool m_hasHighest = false;
    QStringList m_failures; // newest first
};

} // namespace Process
} // namespace ovra
