#pragma once

#include "app/commandline.h"
#include "app/pageinterface.h"

#include <QMainWindow>

namespace Ui {
class MainWindow;
}

namespace ovra {
namespace Communication {
class Communicator;
class MessageHandler;
} // namespace Communication

namespace Mainwindow {

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const GlobalElements::PanelOptions &options, QWidget *parent = nullptr);
    ~MainWindow() override;

    Communication::MessageHandler *GetMessageHandler() const { return m_messageHandler; }
    Communication::Communicator *GetCommunicator() const { return m_communicator; }

private:
    Ui::MainWindow *ui;
    GlobalElements::PanelOptions m_options;
    // Core objects live until the process ends; the window does not delete them.
    Communication::MessageHandler *m_messageHandler = nullptr;
    Communication::Communicator *m_communicator = nullptr;
};

} // namespace Mainwindow
} // namespace ovra
