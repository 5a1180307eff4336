// Renders every page and popup of the panel to PNG: ovra-screenshots <folder>
#include "app/commandline.h"
#include "app/mainwindow.h"
#include "tools/screenshots/screenshottour.h"

#include <QApplication>
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
    if (argc != 2) {
        std::fprintf(stderr, "usage: ovra-screenshots <folder>\n");
        return 2;
    }
    QTemporaryDir home;
    home.setAutoRemove(qEnvironmentVariableIsEmpty("OVRA_KEEP_HOME"));
    if (!home.autoRemove())
        std::fprintf(stderr, "%s\n", qPrintable(home.path()));
    // Without them the pages show German throughout.
    if (!ovra::Tools::ScreenshotTour::InstallTranslations(QStringLiteral(OVRA_TRANSLATIONS_DIR), home.path()))
        std::fprintf(stderr, "no translations in %s\n", OVRA_TRANSLATIONS_DIR);
    ovra::Mainwindow::MainWindow window(ovra::GlobalElements::PanelOptions::Sandbox(home.path()));
    const QStringList files = ovra::Tools::ScreenshotTour(&window, QString::fromLocal8Bit(argv[1])).Run();
    for (const QString &file : files)
        std::printf("%s\n", qPrintable(file));
    return files.isEmpty() ? 1 : 0;
}
