// A long firing as the panel sees it: one progress report ("hpinfo" and "temp") a second for
// ten hours of furnace time, fed as fast as the panel takes them. Prints the CPU time per
// report (chart update and page refresh included) and the resident memory along the way.
#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"
#include "programs/programhandler.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

double cpuSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

double rssMegabytes()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
    const int reports = argc > 1 ? std::max(100, atoi(argv[1])) : 36000; // ten hours

    QTemporaryDir home;
    ovra::Mainwindow::MainWindow window(ovra::GlobalElements::PanelOptions::Sandbox(home.path()));
    window.show();
    auto feed = [&window](const QByteArray &fields) {
        window.GetMessageHandler()->HandleMessage(QString::fromLatin1(ovra::Communication::Frame::Build(fields)));
    };
    // Ten segments, ten hours: ramps and long holds.
    QByteArray program = "heatfile==[metainfo];name=Langzeit;manufacturer=user;material=Zirkon;favorite=false;";
    for (int i = 1; i <= 10; ++i)
        program += "[" + QByteArray::number(i) + "];rate=5;temp=" + QByteArray::number(573 + 120 * i) + ";hold=3000;";
    feed(program);
    feed("time==0800$$date==20261122$$temp==295$$hpinfo==Langzeit;600;1;heat");
    QApplication::processEvents();

    const double rssStart = rssMegabytes();
    double rssMid = 0;
    const double cpuStart = cpuSeconds();
    double worst = 0;
    for (int i = 0; i < reports; ++i) {
        const int minute = i / 60;
        const int stage = 1 + (minute / 60) % 10;
        const bool hold = (minute % 60) >= 24;
        const int celsius = 300 + 120 * stage - (hold ? 0 : 120 - (minute % 60) * 5);
        const double before = cpuSeconds();
        feed("temp==" + QByteArray::number(celsius + 273) + "$$hpinfo==Langzeit;" + QByteArray::number(600 - minute) +
             ";" + QByteArray::number(stage) + ";" + (hold ? "hold" : "heat"));
        QApplication::processEvents(); // the screen repaints after each report
        worst = std::max(worst, cpuSeconds() - before);
        if (i == reports / 2)
            rssMid = rssMegabytes();
    }
    QApplication::processEvents();
    const double perReport = (cpuSeconds() - cpuStart) / reports * 1000.0;
    std::printf("reports=%d cpu_ms_per_report=%.3f worst_ms=%.3f rss_start_mb=%.1f rss_mid_mb=%.1f rss_end_mb=%.1f\n",
                reports, perReport, worst * 1000.0, rssStart, rssMid, rssMegabytes());
    return 0;
}
