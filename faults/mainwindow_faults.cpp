// Failures reported by the controller and the self-test page.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "faults/errorhandler.h"
#include "faults/failureseverity.h"
#include "faults/popupfailure.h"
#include "ui_mainwindow.h"
#include "widgets/iconcache.h"

namespace ovra {
namespace Mainwindow {

void MainWindow::Slot_StartSelftest()
{
    // Never during a firing.
    if (m_furnace.CurrentPage() == Page::ProcessProg)
        return;
    Statemachine(Page::Selftest);
    m_messageHandler->SetRequest(Communication::Requests::SelfTest());
}

void MainWindow::SlotServiceSelftest()
{
    m_messageHandler->SetRequest(Communication::Requests::SelfTest());
}

void MainWindow::PreparePageSelftest()
{
    for (GlobalElements::TestDisplayElement *row :
         {ui->widget_testDoor, ui->widget_testHeatsystem, ui->widget_testCooling})
        row->SetIconResult(QStringLiteral("delete"));
    m_selftestProgress.Reset();
    ui->widget_redoSelftest->setVisible(false);
    ui->widget_exitSelftest->setVisible(false);
    ui->widget_backSelftest->setVisible(false);
    SetSelftestCaptions();
}

void MainWindow::SetSelftestCaptions()
{
    ui->widget_redoSelftest->SetText(Caption(Captions::SystemtestWiederholen));
    ui->widget_testDoor->SetText(Caption(Captions::Tuermechanik));
    ui->widget_testHeatsystem->SetText(Caption(Captions::Heizsystem));
    ui->widget_testCooling->SetText(Caption(Captions::Kuehlsystem));
    ui->progressBar_selftest->setValue(m_selftestProgress.Value());
    ui->progressBar_selftest->setFormat(m_selftestProgress.Text());
}

void MainWindow::SlotIncreaseSelftestProgress(const QString &)
{
    using Row = GlobalElements::SelftestProgress::Row;
    const QObject *row = sender();
    if (row == ui->widget_testHeatsystem)
        m_selftestProgress.Count(Row::Heater);
    else if (row == ui->widget_testCooling)
        m_selftestProgress.Count(Row::Cooling);
    else if (row == ui->widget_testDoor)
        m_selftestProgress.Count(Row::Door);
    SetSelftestCaptions();
}

void MainWindow::SlotSelftestResult(const QString &result)
{
    if (result != m_selftestPassWord) {
        ui->widget_redoSelftest->setVisible(true);
        ui->widget_exitSelftest->setVisible(true);
        return;
    }
    if (m_origins.selftestOrigin == Page::Service) {
        ui->widget_backSelftest->setVisible(true);
        ui->widget_redoSelftest->setVisible(true);
        ui->widget_exitSelftest->setVisible(true);
        ui->widget_exitSelftest->setEnabled(true);
        return;
    }
    Statemachine(m_furnace.IsCommissioning() ? Page::LangSelect : Page::MainMenu);
}

void MainWindow::SlotErrorHandling(const QString &codes)
{
    // The model has taken the codes already, each with the controller's clock.
    for (const QString &code : codes.split(QLatin1Char(','), Qt::KeepEmptyParts))
        m_errorHandler->AddError(code);
    // The whole history is laid out anew each time: only for the page that shows it, or a
    // controller repeating its failures makes every report cost more than the one before.
    if (m_furnace.CurrentPage() == Page::FailureList)
        ShowFailureHistory();
}

void MainWindow::ShowFailureHistory()
{
    ui->textEdit_FailureList->setPlainText(GlobalElements::FailureSeverity::History(m_furnace.FailureLog()));
}

void MainWindow::SlotResetError(const QString &codes)
{
    for (const QString &code : codes.split(QLatin1Char(','), Qt::KeepEmptyParts))
        m_errorHandler->ResetError(code);
}

void MainWindow::ErrorHandling()
{
    const QString list = m_errorHandler->GetErrorList();
    const bool any = !list.isEmpty();
    for (QWidget *w : std::initializer_list<QWidget *>{ui->pushButton_info, ui->textEdit_test, ui->textEdit_mainMenu,
                                                       ui->pushButton_infoMainMenu})
        w->setVisible(any);

    const QString icon =
        any ? GlobalElements::FailureSeverity::WorstIcon(list.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) : QString();
    ui->widget_processErrorInfo->setEnabled(any);
    ui->widget_processErrorInfo->setVisible(any);
    ui->pushButton_info->setIcon(GlobalElements::IconCache::Get(icon));
    ui->pushButton_infoMainMenu->setIcon(GlobalElements::IconCache::Get(icon));
    ui->widget_processError->setStyleSheet(icon.isEmpty() ? QString()
                                                          : QStringLiteral("background-image: url(%1);").arg(icon));
    // The menus' small boxes keep the codes alone: their symbol says the worst severity.
    ui->textEdit_test->setPlainText(list);
    ui->textEdit_mainMenu->setPlainText(list); // the failure popup follows the list by itself
}

void MainWindow::SlotDeleteFailure()
{
    m_furnace.ClearFailures();
    ui->textEdit_FailureList->clear();
    ui->textEdit_test->clear();
    ui->textEdit_test->setVisible(false);
    ui->textEdit_mainMenu->clear();
    ui->textEdit_mainMenu->setVisible(false);
    ui->widget_processErrorInfo->setEnabled(false);
    m_popupFailure->SetFailurePopupText(QString());
    m_errorHandler->DeleteErrorListByService();
    ui->pushButton_info->setVisible(false);
    ui->pushButton_infoMainMenu->setVisible(false);
    m_messageHandler->SetRequest(Communication::Requests::DeleteFailureList());
}

} // namespace Mainwindow
} // namespace ovra
