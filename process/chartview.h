#pragma once

#include <QtCharts/QChartView>

namespace ovra {
namespace GlobalElements {

// A chart view that reports a tap: a release of the left button emits SignalChartClicked.
class ChartView : public QtCharts::QChartView
{
    Q_OBJECT

public:
    explicit ChartView(QWidget *parent = nullptr);

signals:
    void SignalChartClicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};

} // namespace GlobalElements
} // namespace ovra
