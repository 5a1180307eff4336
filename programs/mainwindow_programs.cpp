// The program list and filter pages. They are filled from the program store as it grows;
// until then they show their empty lists.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "ui_mainwindow.h"

namespace ovra {
namespace Mainwindow {

void MainWindow::PreparePageMyHitlist() {}
void MainWindow::PreparePageMyPrograms()
{
    ui->widget_myProgsNew->SetText(Caption(Captions::NeuesProgramm));
}
void MainWindow::PreparePageFixPrograms() {}
void MainWindow::PreparePageServicePrograms() {}
void MainWindow::PreparePageChangeProgram(const QString &) {}

void MainWindow::PreparePageDisplayOptions()
{
    ui->widget_DisplayButtonManufacturer->SetText(Caption(Captions::Hersteller));
    ui->widget_DisplayButtonManufacturer->SetNextPageIndex(Page::DisplayManufacturer);
    ui->widget_DisplayButtonMaterial->SetText(Caption(Captions::Material));
    ui->widget_DisplayButtonMaterial->SetNextPageIndex(Page::DisplayMaterial);
}

void MainWindow::PreparePageDisplayManufacturer() {}
void MainWindow::PreparePageDisplayMaterial() {}

} // namespace Mainwindow
} // namespace ovra
