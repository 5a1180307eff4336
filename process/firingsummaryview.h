#pragma once

#include <QFrame>

#include <functional>

class QGridLayout;
class QLabel;

namespace ovra {
namespace Process {
class FiringSummary;

// The card beside the chart when a firing is over: its result with the symbol, duration, end,
// highest temperature and its failures with their severity. Shown while the summary is.
class FiringSummaryView : public QFrame
{
    Q_OBJECT

public:
    explicit FiringSummaryView(QWidget *parent = nullptr);

    // Draws the summary from now on, in the unit `fahrenheit` tells; it must outlive this view.
    void Follow(const FiringSummary *summary, const std::function<bool()> &fahrenheit);

public slots:
    void Refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    const FiringSummary *m_summary = nullptr;
    std::function<bool()> m_fahrenheit;
    QLabel *m_symbol;
    QLabel *m_result;
    QGridLayout *m_rows;
    QLabel *m_failureCaption;
    QLabel *m_failures;
};

} // namespace Process
} // namespace ovra
