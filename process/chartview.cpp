#include "process/chartview.h"

#include <QMouseEvent>

namespace ovra {
namespace GlobalElements {

ChartView::ChartView(QWidget *parent) : QtCharts::QChartView(parent) {}

void ChartView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit SignalChartClicked();
    QtCharts::QChartView::mouseReleaseEvent(event);
}

} // namespace GlobalElements
} // namespace ovra
