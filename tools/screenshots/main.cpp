// Renders every page and popup of the panel to PNG:
//   ovra-screenshots <folder> [--languages KEYWORD,KEYWORD,...]
// With --languages the main pages, the filter page, the firing history and every popup are
// rendered in each of those languages (the controller's keywords) instead of the tour's own.
#include "app/commandline.h"
#include "app/mainwindow.h"
#include "tools/screenshots/screenshottour.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
    const QStringList args = QCoreApplication::arguments().mid(1);
    const bool languages = args.size() == 3 && args.at(1) == QLatin1String("--languages");
    if (args.size() != 1 && !languages) {
        std::fprintf(stderr, "usage: ovra-screenshots <folder> [--languages KEYWORD,KEYWORD,...]\n");
        return 2;
    }
    QTemporaryDir home;
    home.setAutoRemove(qEnvironmentVariableIsEmpty("OVRA_KEEP_HOME"));
    if (!home.autoRemove())
        std::fprintf(stderr, "%s\n", qPrintable(home.path()));
    // Without them the pages show German throughout.
    if (!ovra::Tools::ScreenshotTour::InstallTranslations(QStringLiteral(OVRA_TRANSLATIONS_DIR), home.path()))
        std::fprintf(stderr, "no translations in %s\n", OVRA_TRANSLATIONS_DIR);
    // A lab link to a loopback port where no broker listens: its popup shows the broker, the
    // state and the problem as a technician would see them. The lab view beside it is a
    // stand-in that always hands out the same token, so the pairing code is the same each time.
    const QString labView = home.path() + QStringLiteral("/ovra-lab");
    QFile stand(labView);
    if (stand.open(QIODevice::WriteOnly))
        stand.write("#!/bin/sh\necho kV3q_Rw8mT2xYc9LpN4bZ7sHdJ1fGa6uEoQiWt5nXy0\n");
    stand.close();
    stand.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QDir(home.path()).mkdir(QStringLiteral("lab"));
    QFile lablink(home.path() + QStringLiteral("/lablink.ini"));
    if (lablink.open(QIODevice::WriteOnly))
        lablink.write("[broker]\nhost=127.0.0.1\nport=1\n[furnace]\nid=ofen-1\n[view]\nprogram=" + labView.toUtf8() +
                      "\ndata=" + home.path().toUtf8() + "/lab\naddress=http://192.168.1.20:8080\n");
    lablink.close();
    ovra::Mainwindow::MainWindow window(ovra::GlobalElements::PanelOptions::Sandbox(home.path()));
    ovra::Tools::ScreenshotTour tour(&window, args.at(0));
    if (languages)
        tour.SetLanguages(args.at(2).split(QLatin1Char(','), Qt::SkipEmptyParts), true);
    const QStringList files = tour.Run();
    for (const QString &file : files)
        std::printf("%s\n", qPrintable(file));
    return files.isEmpty() ? 1 : 0;
}
