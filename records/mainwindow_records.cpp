// The firing history on the panel: screens over the window, not a page. The controller keeps
// seeing the settings page it knows, and a page it selects closes the history.
#include "app/mainwindow.h"

#include "records/firinghistoryscreens.h"
#include "ui_mainwindow.h"

namespace ovra {
namespace Mainwindow {

void MainWindow::ConnectRecords()
{
    // Over the outer stack: they cover the header too, and go dark with the display key.
    m_firingHistory = new Records::FiringHistoryScreens(
        ui->stackedWidget_main, m_firingRecorder, m_paths.Home(), [this] { return m_furnace.IsFahrenheit(); }, this);
    connect(ui->widget_SettingsButtonFiringHistory, &GlobalElements::Button::SignalButtonClicked, m_firingHistory,
            &Records::FiringHistoryScreens::ShowHistory);
    connect(m_firingHistory, &Records::FiringHistoryScreens::SignalHome, this, &MainWindow::SlotExitButtonClicked);
    for (QStackedWidget *stack : {ui->stackedWidget, ui->stackedWidget_main})
        connect(stack, &QStackedWidget::currentChanged, m_firingHistory, &Records::FiringHistoryScreens::Close);
}

} // namespace Mainwindow
} // namespace ovra
