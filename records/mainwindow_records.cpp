// The firing history on the panel: a view over the window, not a page. The controller keeps
// seeing the settings page it knows, and a page it selects closes the history.
#include "app/mainwindow.h"

#include "communication/messagehandler.h"
#include "records/firingdetailview.h"
#include "records/firinghistory.h"
#include "records/firinghistoryview.h"
#include "records/firingreport.h"
#include "records/firingstore.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QElapsedTimer>

namespace ovra {
namespace Mainwindow {

void MainWindow::ConnectRecords()
{
    // Children of the outer stack: they cover the header too, and go dark with the display key.
    m_firingHistoryView = new Records::FiringHistoryView(ui->stackedWidget_main);
    m_firingDetailView = new Records::FiringDetailView(ui->stackedWidget_main);
    m_firingHistoryView->hide();
    m_firingDetailView->hide();
    connect(ui->widget_SettingsButtonFiringHistory, &GlobalElements::Button::SignalButtonClicked, this,
            &MainWindow::ShowFiringHistory);
    connect(m_firingHistoryView, &Records::FiringHistoryView::SignalOpen, this, &MainWindow::OpenFiringRecord);
    connect(m_firingHistoryView, &Records::FiringHistoryView::SignalClose, this, &MainWindow::CloseFiringHistory);
    connect(m_firingDetailView, &Records::FiringDetailView::SignalClose, m_firingDetailView, &QWidget::hide);
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &MainWindow::CloseFiringHistory);
    connect(ui->stackedWidget_main, &QStackedWidget::currentChanged, this, &MainWindow::CloseFiringHistory);
}

void MainWindow::ShowFiringHistory()
{
    m_firingRecorder.Store().Flush();
    m_firingHistoryView->SetFirings(Records::FiringHistory(Records::FiringStore::FileIn(m_paths.Home())).List());
    m_firingHistoryView->setGeometry(ui->stackedWidget_main->rect());
    m_firingHistoryView->show();
    m_firingHistoryView->raise();
}

void MainWindow::OpenFiringRecord(qint64 id)
{
    QElapsedTimer clock;
    clock.start();
    Records::FiringRecord record;
    m_firingRecorder.Store().Flush();
    if (!Records::FiringHistory(Records::FiringStore::FileIn(m_paths.Home())).Load(id, &record)) {
        qDebug() << "firing history: firing" << id << "is gone";
        return;
    }
    m_firingDetailView->SetRecord(record, m_furnace.IsFahrenheit());
    m_firingDetailView->setGeometry(ui->stackedWidget_main->rect());
    m_firingDetailView->show();
    m_firingDetailView->raise();
    qDebug() << "firing history: firing" << id << "with" << record.samples.size() << "samples opened in"
             << clock.elapsed() << "ms";
}

void MainWindow::CloseFiringHistory()
{
    m_firingDetailView->hide();
    m_firingHistoryView->hide();
}

Settings::DeviceReport::Data MainWindow::DeviceData() const
{
    Settings::DeviceReport::Data device;
    const GlobalElements::DeviceInfo &known = m_furnace.Device();
    device.model = known.type;
    device.serialNumber = known.serial;
    device.hardwareVersion = known.hardware;
    device.softwareVersion = known.software;
    device.operatingHours = known.hours;
    return device;
}

} // namespace Mainwindow
} // namespace ovra
