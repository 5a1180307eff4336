#include "app/mainwindow.h"

#include "communication/communicator.h"
#include "communication/messagehandler.h"
#include "ui_mainwindow.h"

namespace ovra {
namespace Mainwindow {

MainWindow::MainWindow(const GlobalElements::PanelOptions &options, QWidget *parent)
    : QMainWindow(parent), ui(new Ui::MainWindow), m_options(options)
{
    ui->setupUi(this);

    m_messageHandler = new Communication::MessageHandler();
    m_communicator = new Communication::Communicator(m_messageHandler, nullptr, m_options.port);

    ui->label_splashVersion->setText(GlobalElements::Pageinterface::versionInfo);
    ui->stackedWidget_main->setCurrentIndex(1);
}

MainWindow::~MainWindow() = default;

} // namespace Mainwindow
} // namespace ovra
