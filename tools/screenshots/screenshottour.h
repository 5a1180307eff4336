#pragma once

#include <QString>
#include <QStringList>

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

private:
    void Feed(const QByteArray &fields);
    void FeedPrograms();
    bool Save(const QString &name);
    bool SavePopup(const QString &name, QDialog *popup);

    Mainwindow::MainWindow *m_window;
    QString m_folder;
    QStringList m_written;
};

} // namespace Tools
} // namespace ovra
