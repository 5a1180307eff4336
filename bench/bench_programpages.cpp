// Start-up with many programs: the controller's heatfiles arriving, and the largest list page
// being built and painted. Prints milliseconds for each step (median of the runs): the tap
// answered (build_list), its first frame (first_paint), and every row of a long list in
// (all_rows, from the tap).
#include "app/mainwindow.h"
#include "communication/frame.h"
#include "communication/messagehandler.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

QByteArray heatfileFrame(int i)
{
    QByteArray body = "heatfile==[metainfo];name=Programm " + QByteArray::number(i) +
                      ";manufacturer=user;material=Zirkon;favorite=" + (i % 5 == 0 ? "true" : "false") + ";";
    for (int s = 1; s <= 1 + i % 10; ++s)
        body += "[" + QByteArray::number(s) + "];rate=" + QByteArray::number(5 + s) +
                ";temp=" + QByteArray::number(773 + 80 * s) + ";hold=" + QByteArray::number(60 * s) + ";";
    return ovra::Communication::Frame::Build(body);
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
    const int programs = argc > 1 ? std::max(1, atoi(argv[1])) : 200;

    std::vector<double> receive, build, paint, allRows;
    for (int run = 0; run < 5; ++run) {
        QTemporaryDir home;
        ovra::Mainwindow::MainWindow window(ovra::GlobalElements::PanelOptions::Sandbox(home.path()));
        window.show();
        QApplication::processEvents();

        QList<QString> frames;
        for (int i = 0; i < programs; ++i)
            frames << QString::fromLatin1(heatfileFrame(i));
        QElapsedTimer timer;
        timer.start();
        for (const QString &frame : frames)
            window.GetMessageHandler()->HandleMessage(frame);
        receive.push_back(double(timer.nsecsElapsed()) / 1e6);

        QElapsedTimer fromTap;
        fromTap.start();
        timer.restart();
        window.Statemachine(ovra::Mainwindow::Page::MyProgs);
        build.push_back(double(timer.nsecsElapsed()) / 1e6);

        timer.restart();
        window.grab(); // lays out and paints the page once, as the first frame on screen
        paint.push_back(double(timer.nsecsElapsed()) / 1e6);
        while (window.GetProgramButtons().size() < programs)
            QApplication::processEvents();
        allRows.push_back(double(fromTap.nsecsElapsed()) / 1e6);
    }
    std::printf("programs=%d receive_ms=%.1f build_list_ms=%.1f first_paint_ms=%.1f all_rows_ms=%.1f total_ms=%.1f\n",
                programs, median(receive), median(build), median(paint), median(allRows),
                median(receive) + median(build) + median(paint));
    return 0;
}
