#include "process/chart.h"
#include "process/chartcolors.h"

#include "process/chartview.h"
#include "ui_chart.h"

#include <QFontDatabase>
#include <QGraphicsLayout>
#include <QLinearGradient>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>

namespace ovra {
namespace GlobalElements {

using namespace QtCharts;

namespace {

const QColor &fillColor = ChartColors::fill;
const QColor &axisColor = ChartColors::axis;
const QColor &profileColor = ChartColors::profile;
const QColor &gridColor = ChartColors::grid;
const QColor &plotColor = ChartColors::plot;

constexpr int xLabelPoints = 12;
constexpr int yLabelPixels = 15;

// The panel's font is not always installed; DejaVu Sans is on every Debian system.
QString LabelFamily()
{
    const QString wanted = QStringLiteral("Source Sans Pro");
    static const QString family = QFontDatabase().families().contains(wanted) ? wanted : QStringLiteral("DejaVu Sans");
    return family;
}

void RemoveAllCategories(QCategoryAxis *axis)
{
    const QStringList labels = axis->categoriesLabels();
    for (const QString &label : labels)
        axis->remove(label);
}

void StyleAxis(QCategoryAxis *axis, const QFont &font)
{
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    axis->setLabelsFont(font);
    axis->setLabelsColor(axisColor);
    axis->setLinePen(QPen(axisColor, 2));
    axis->setGridLinePen(QPen(gridColor, 1));
    axis->setShadesColor(axisColor);
}

} // namespace

Chart::Chart(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui_Chart>())
{
    m_ui->setupUi(this);

    m_view = new ChartView(this);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setBackgroundBrush(Qt::white);
    m_ui->verticalLayout_chart->addWidget(m_view);

    m_chart = new QChart;
    m_chart->legend()->hide();
    m_chart->setMargins(QMargins());
    // Room for half of the last x label and for the axis line's top end; the chart's own
    // margins stay 0.
    m_chart->layout()->setContentsMargins(0, 8, 14, 2);
    m_chart->setBackgroundRoundness(0);
    m_chart->setBackgroundBrush(Qt::white);
    m_chart->setPlotAreaBackgroundBrush(plotColor);
    m_chart->setPlotAreaBackgroundVisible(true);

    m_profileSeries = new QLineSeries;
    m_progressSeries = new QLineSeries(this); // only ever the area's lower line
    m_areaSeries = new QAreaSeries(m_profileSeries, m_progressSeries);

    QLinearGradient gradient(QPointF(0, 0), QPointF(0, 1));
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, fillColor);
    gradient.setColorAt(1.0, fillColor);
    m_areaSeries->setBrush(gradient);
    m_areaSeries->setPen(QPen(QBrush(gradient), 1));
    m_areaSeries->setVisible(false);

    // The area is added last so the fill lies over the profile line.
    m_chart->addSeries(m_profileSeries);
    m_chart->addSeries(m_areaSeries);

    QFont xFont(LabelFamily());
    xFont.setPointSize(xLabelPoints);
    QFont yFont(LabelFamily());
    yFont.setPixelSize(yLabelPixels);

    m_axisX = new QCategoryAxis;
    StyleAxis(m_axisX, xFont);
    m_axisY = new QCategoryAxis;
    StyleAxis(m_axisY, yFont);
    m_chart->addAxis(m_axisX, Qt::AlignBottom);
    m_chart->addAxis(m_axisY, Qt::AlignLeft);
    m_areaSeries->attachAxis(m_axisX);
    m_areaSeries->attachAxis(m_axisY);
    m_profileSeries->attachAxis(m_axisX);
    m_profileSeries->attachAxis(m_axisY);

    // The view made a chart of its own and hands it back on replacement.
    QChart *placeholder = m_view->chart();
    m_view->setChart(m_chart);
    delete placeholder;

    ShowIdleProfile();
    ApplyXAxis();
    ApplyYAxis();
}

Chart::~Chart() = default;

void Chart::CreateChart(QList<QList<unsigned int>> *matrix, bool summary, bool fahrenheit)
{
    connect(m_view, &ChartView::SignalChartClicked, this, &Chart::SlotChartClicked, Qt::UniqueConnection);
    if (summary) // a manufacturer's program cannot be opened from its chart
        disconnect(m_view, &ChartView::SignalChartClicked, this, &Chart::SlotChartClicked);

    m_profile = ChartGeometry::BuildProfile(matrix ? *matrix : ChartGeometry::Matrix(), summary, fahrenheit);
    m_profileSeries->replace(m_profile.points);
    ShowIdleProfile();

    m_chart->setMargins(QMargins());
    m_chart->legend()->hide();
    ApplyXAxis();
    ApplyYAxis();
}

void Chart::UpdateChart(unsigned int stage, const QString &text, unsigned int temperature)
{
    const ChartProgress::Result result = m_progress.Update(m_profile, stage, text, temperature);
    if (result.lower.isEmpty())
        return;

    m_progressSeries->replace(result.lower);
    m_profileSeries->setPen(QPen(fillColor, 2));
    m_axisX->setLinePen(QPen(axisColor, 2));
    m_areaSeries->setVisible(true);

    m_chart->setMargins(QMargins());
    const ChartGeometry::AxisRange y = ChartGeometry::YRange(m_profile.fahrenheit);
    m_axisY->setRange(y.min, y.max);
}

double Chart::CalculateLatestY(double x, QLineSeries *series, const QString &text, unsigned int temperature)
{
    return ChartGeometry::FrontY(x, series ? series->pointsVector() : ChartGeometry::Points(), text, temperature);
}

void Chart::DeleteChart()
{
    m_profile = ChartGeometry::Profile();
    m_profileSeries->clear();
    ShowIdleProfile();
    ApplyXAxis();
    ApplyYAxis();
}

void Chart::ClearProgress()
{
    m_progress.Reset();
    ShowIdleProfile();
}

void Chart::SetHoldClock(std::unique_ptr<HoldClock> clock)
{
    m_progress.SetClock(std::move(clock));
}

void Chart::SlotChartClicked()
{
    emit SignalChartClicked();
}

void Chart::ApplyXAxis()
{
    RemoveAllCategories(m_axisX);
    m_axisX->setStartValue(0);
    const QList<ChartGeometry::AxisLabel> labels = ChartGeometry::XLabels(m_profile.segmentCount);
    for (const ChartGeometry::AxisLabel &label : labels)
        m_axisX->append(label.text, label.value);
    // An axis without categories draws neither its line nor its label row; a blank one keeps
    // an empty program's chart the same shape as any other.
    if (labels.isEmpty())
        m_axisX->append(QStringLiteral(" "), ChartGeometry::XRange(0).max);
    const ChartGeometry::AxisRange range = ChartGeometry::XRange(m_profile.segmentCount);
    m_axisX->setRange(range.min, range.max);
}

void Chart::ApplyYAxis()
{
    RemoveAllCategories(m_axisY);
    const ChartGeometry::AxisRange range = ChartGeometry::YRange(m_profile.fahrenheit);
    m_axisY->setStartValue(range.min);
    for (const ChartGeometry::AxisLabel &label : ChartGeometry::YLabels(m_profile.fahrenheit))
        m_axisY->append(label.text, label.value);
    m_axisY->setRange(range.min, range.max);
}

void Chart::ShowIdleProfile()
{
    m_progressSeries->clear();
    m_areaSeries->setVisible(false);
    QPen pen(profileColor, 3);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::RoundCap);
    m_profileSeries->setPen(pen);
}

} // namespace GlobalElements
} // namespace ovra
