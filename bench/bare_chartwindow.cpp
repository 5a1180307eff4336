// The yardstick for the panel's start-up: the least a Qt program with a chart costs to show
// one window and reach its event loop on the same machine, started the same way.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QMainWindow window;
    auto *series = new QtCharts::QLineSeries;
    series->append(0, 20);
    series->append(1, 1000);
    auto *chart = new QtCharts::QChart;
    chart->addSeries(series);
    chart->createDefaultAxes();
    window.setCentralWidget(new QtCharts::QChartView(chart));
    window.resize(800, 480);
    window.show();
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
