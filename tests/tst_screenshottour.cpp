// The screenshot tour renders every page and popup; each picture is 800x480 and not blank.
#include "app/mainwindow.h"
#include "tools/screenshots/screenshottour.h"

#include <QDialog>
#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}
} // namespace

class TestScreenshotTour : public QObject
{
    Q_OBJECT

private slots:
    void everyPageAndPopupIsRendered();
};

void TestScreenshotTour::everyPageAndPopupIsRendered()
{
    Q_INIT_RESOURCE(resources);
    qInstallMessageHandler(quiet);
    QTemporaryDir home;
    QVERIFY(
        ovra::Tools::ScreenshotTour::InstallTranslations(QStringLiteral(OVRA_BINARY_DIR "/translations"), home.path()));
    ovra::Mainwindow::MainWindow window(ovra::GlobalElements::PanelOptions::Sandbox(home.path()));

    // Kept in the build folder so that a person can look at them after the run.
    const QString folder = QStringLiteral(OVRA_BINARY_DIR "/screenshots");
    const QStringList files = ovra::Tools::ScreenshotTour(&window, folder).Run();
    // Splash, 26 pages, 14 further views of programs and firings, the stick menu, two
    // full-screen notices, every popup of the window, the main pages and the firing history in
    // each of the tour's languages, and a firing with its result in each unit and language of
    // the process page.
    const int popups = window.findChildren<QDialog *>().size();
    const int languages =
        ovra::Tools::ScreenshotTour::TourLanguages().size() *
        (ovra::Tools::ScreenshotTour::TourPages().size() + ovra::Tools::ScreenshotTour::historyPictures);
    const int processPages = ovra::Tools::ScreenshotTour::ProcessLanguages().size() * 2 * 2;
    QCOMPARE(files.size(), 1 + 26 + 14 + 1 + 2 + popups + languages + processPages);
    // The main menu in Spanish is not the German one, nor Japanese the Chinese one.
    auto picture = [&files](const QString &suffix) {
        for (const QString &file : files) {
            if (file.endsWith(suffix))
                return QImage(file);
        }
        return QImage();
    };
    QVERIFY(picture(QStringLiteral("_deutsch_mainmenu.png")) != picture(QStringLiteral("_spanisch_mainmenu.png")));
    QVERIFY(picture(QStringLiteral("_japanisch_settings.png")) != picture(QStringLiteral("_chinesishc_settings.png")));
    for (const QString &file : files) {
        const QImage image(file);
        QCOMPARE(image.size(), QSize(800, 480));
        // A real page has more than a handful of colours.
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 7)
            for (int x = 0; x < image.width(); x += 7)
                colours.insert(image.pixel(x, y));
        QVERIFY2(colours.size() > 8, qPrintable(file));
    }
}

QTEST_MAIN(TestScreenshotTour)
#include "tst_screenshottour.moc"
