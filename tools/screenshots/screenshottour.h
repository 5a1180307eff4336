#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QDialog;

namespace ovra {
namespace Mainwindow {
class MainWindow;
}

namespace Tools {

// Renders every page and popup of a main window to PNG files at 800x480, with the
// controller's start-up data fed in first so that the pages show what a user would see.
class ScreenshotTour
{
public:
    ScreenshotTour(Mainwindow::MainWindow *window, const QString &folder);

    // Returns the files written; an empty list when the folder cannot be written.
    QStringList Run();

    // Copies the built .qm files into <home>/Downloads/translations, where the panel loads them;
    // false when there are none.
    static bool InstallTranslations(const QString &builtFolder, const QString &home);
    // The languages the tour shows its main pages in, by the controller's keyword.
    static QStringList TourLanguages();
    // The pages shown in each of them, then the firing history and one firing in it.
    static QList<int> TourPages();
    static constexpr int historyPictures = 2;
    // The languages the process page is shown in, a firing and its result, in °C and °F.
    static QStringList ProcessLanguages();

    // Other languages than the tour's; with `everything` each of them also shows every popup,
    // the filter page and the firing history.
    void SetLanguages(const QStringList &keywords, bool everything);

private:
    void Feed(const QByteArray &fields);
    // Types a job code as a barcode scanner does: its keys, then Enter.
    void Scan(const QString &code);
    // The firing history over the settings page, and `firing` opened in it.
    void SaveHistory(const std::function<QString(const QString &)> &numbered, const QString &prefix, qint64 firing);
    void FeedPrograms();
    qint64 SeedFiringRecords();
    bool Save(const QString &name);
    bool SavePopup(const QString &name, QDialog *popup);
    void SaveLanguages(const std::function<QString(const QString &)> &numbered);
    void SaveProcessLanguages(const std::function<QString(const QString &)> &numbered);
    void SavePopups(const std::function<QString(const QString &)> &numbered, const QString &prefix);
    void SaveExtras(const std::function<QString(const QString &)> &numbered, const QString &prefix);

    Mainwindow::MainWindow *m_window;
    QString m_folder;
    QStringList m_written;
    QStringList m_languages = TourLanguages();
    bool m_everything = false;
    qint64 m_recorded = 0; // the seeded firing the history opens
};

} // namespace Tools
} // namespace ovra
