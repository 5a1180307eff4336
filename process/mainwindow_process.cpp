// The program and process pages, the oven temperature and the door.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "popups/popuptempwarning.h"
#include "process/chart.h"
#include "process/temperaturetext.h"
#include "programs/program.h"
#include "programs/programhandler.h"
#include "ui_mainwindow.h"

namespace ovra {
namespace Mainwindow {

using GlobalElements::Pageinterface;

void MainWindow::ConnectProcessLink()
{
    connect(m_messageHandler, &Communication::MessageHandler::SignalTemperature, this, &MainWindow::SlotTempReceived);
    connect(m_messageHandler, &Communication::MessageHandler::SignalDoor, this, &MainWindow::SlotDoor);
}

void MainWindow::Slot_ShowChoosenProgram(GlobalElements::Program *program, Pageinterface::en_pages page)
{
    if (program == nullptr)
        return;
    const bool play = page == Page::PlayProg;
    GlobalElements::Chart *chart = play ? ui->widget_chart_play : ui->widget_chart_process;
    GlobalElements::DisplayElementIcon *material = play ? ui->widget_materialPlay : ui->widget_materialProcess;

    // A maker's program is shown only in outline.
    const bool userProgram = program->GetManufacturer() == ProgramHandler::ProgramHandler::userManufacturer;
    chart->CreateChart(program->GetMatrix(), !userProgram, m_fahrenheit);

    material->SetText(program->GetMaterial());
    QString materialText = program->GetMaterial();
    material->SetIcon(materialText.remove(QLatin1Char(' ')) == QLatin1String("Argon") ? QStringLiteral(":/Play/Gas.png")
                                                                                     : QString());
    if (play) {
        ui->widget_timerPlayProg->SetChecked(false);
        ui->widget_playProgChange->setVisible(userProgram);
        ui->widget_playProgDelete->setVisible(userProgram);
    }
    ui->label_Name->setText(program->GetName());
    Statemachine(page);
}

void MainWindow::PreparePagePlay(int from)
{
    if (from != Page::ProcessProg)
        ui->widget_chart_play->ClearProgress();
    ui->widget_playNewProg->SetChecked(false);
    ui->widget_timerPlayProg->SetChecked(false);
    ui->widget_timerPreDry->SetChecked(false);
    ui->horizontalLayout_playButtons->setSpacing(6);
    ui->widget_playProgChange->SetText(Caption(Captions::ProgrammAendern));
    ui->widget_playProgDelete->SetText(Caption(Captions::ProgrammLoeschen));
    ui->widget_backPlayNewProg->setVisible(true);
    ui->widget_doorPlayNewProg->setVisible(true);
    ui->widget_timerPreDry->SetIcon(QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));
    if (PageTables::RemembersPlayOrigin(from))
        m_origins.playOrigin = static_cast<Page>(from);
}

void MainWindow::PreparePageProcess()
{
    ui->widget_chart_process->ClearProgress();
    ui->widget_temp->setVisible(false);
    ui->widget_processErrorInfo->setEnabled(false);
    ui->widget_processErrorInfo->setVisible(false);
    ui->widget_processError->setStyleSheet(QStringLiteral("background: transparent;"));
    ui->widget_exitProcessProg->setVisible(false);
    ui->widget_backProcessProg->setVisible(false);
    ui->widget_doorProcessProg->setVisible(false);
    ui->widget_stopProcessProg->setVisible(true);
    ui->widget_processPreDryInfo->setVisible(false);
    ui->widget_processPreDryInfo->SetChecked(false);
    ui->widget_processPreDryInfo->setAttribute(Qt::WA_TransparentForMouseEvents, true);
}

void MainWindow::SlotTempReceived(const QString &temperature)
{
    const Process::TemperatureText shown = Process::TemperatureText::FromCelsiusText(temperature, m_fahrenheit);
    ui->widget_tempPlay->SetText(shown.text);
    ui->widget_tempProcess->SetText(shown.text);
    ui->widget_temp->SetText(shown.text);
    m_lastTemp = static_cast<float>(shown.value);
    CheckTempDoor();
}

void MainWindow::CheckTempDoor()
{
    // Strictly above the limit, and only "closed" counts as closed.
    const bool warn = m_lastTemp > static_cast<float>(m_doorTempLimit) && !m_doorClosed;
    if (warn && !m_popupTempWarning->isVisible())
        m_popupTempWarning->Show();
    else if (!warn && m_popupTempWarning->isVisible())
        m_popupTempWarning->Hide();
}

void MainWindow::SlotDoor(const QString &state)
{
    m_doorClosed = false;
    QString icon;
    if (state == QLatin1String("closing")) {
        icon = QStringLiteral(":/Door/Door_Down.png");
    } else if (state == QLatin1String("opening")) {
        icon = QStringLiteral(":/Door/Door_Up.png");
    } else if (state == QLatin1String("closed")) {
        m_doorClosed = true;
        icon = QStringLiteral(":/Door/Door_Down.png");
    }
    ui->widget_doorPlayNewProg->SetIcon(icon);
    ui->widget_doorProcessProg->SetIcon(icon);
    CheckTempDoor();
}

void MainWindow::SlotMoveDoor()
{
    // Neither a start nor a door movement may be sent twice within a second.
    if (sender() == ui->widget_doorPlayNewProg) {
        ui->widget_doorPlayNewProg->setEnabled(false);
        ui->widget_playNewProg->setEnabled(false);
        m_playEnableTimer->start();
    }
    m_messageHandler->SetRequest(QStringLiteral("movedoor"));
    if (m_userInteraction) {
        m_userInteraction = false;
        ui->widget_doorProcessProg->setVisible(false);
    }
}

void MainWindow::SlotRequestDoorClose()
{
    m_messageHandler->SetRequest(QStringLiteral("doorclose"));
}

} // namespace Mainwindow
} // namespace ovra
