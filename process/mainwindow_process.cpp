// The program and process pages, the oven temperature and the door.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "faults/errorhandler.h"
#include "popups/popupargonfailure.h"
#include "popups/popupstop.h"
#include "popups/popuptempwarning.h"
#include "popups/timerpopup.h"
#include "process/autostartnoteview.h"
#include "process/chart.h"
#include "process/firingrules.h"
#include "process/jobcodebadge.h"
#include "process/processtime.h"
#include "process/temperaturetext.h"
#include "programs/heatfiletext.h"
#include "programs/program.h"
#include "programs/programhandler.h"
#include "records/firingreport.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QTimer>

namespace ovra {
namespace Mainwindow {

using GlobalElements::Pageinterface;
namespace Requests = Communication::Requests;

void MainWindow::ConnectProcessLink()
{
    using Communication::MessageHandler;
    using GlobalElements::FurnaceState;
    using GlobalElements::Iconbutton;
    connect(&m_furnace, &FurnaceState::TemperatureChanged, this, &MainWindow::SlotTempReceived);
    connect(&m_furnace, &FurnaceState::DoorChanged, this, &MainWindow::SlotDoor);
    // A new firing's fill and hold clock start afresh; the controller's repeated page
    // reports during a firing leave them running.
    connect(&m_furnace, &FurnaceState::FiringStarted, ui->widget_chart_process, &GlobalElements::Chart::ClearProgress);
    connect(&m_furnace, &FurnaceState::FiringProgress, this, &MainWindow::SlotHeatfileInProgress);
    connect(&m_furnace, &FurnaceState::FiringOver, this, &MainWindow::SlotHeatfileInProgress);
    connect(&m_furnace, &FurnaceState::FiringEnded, this, &MainWindow::SlotSetHeatProcessResult);
    m_firingSummary.Observe(m_furnace);
    ui->widget_processSummary->Follow(&m_firingSummary, [this] { return m_furnace.IsFahrenheit(); });
    ui->widget_processGlance->Follow(&m_furnace, [this](const QString &name) {
        GlobalElements::Program *program = m_programHandler->GetProgramByName(name);
        return program != nullptr ? program->GetMatrix() : nullptr;
    });
    m_firingRecorder.Observe(
        m_furnace,
        [this](const QString &name) {
            return Records::DescribeProgram(name, m_programHandler->GetProgramByName(name));
        },
        [](const GlobalElements::DeviceInfo &device) {
            return Records::FiringReport::DeviceLines(Settings::DeviceReport::From(device));
        });
    ui->widget_jobPlay->Attach(&m_jobCode, ui->stackedWidget_main);
    ui->horizontalLayout_header->insertWidget(1, new Process::JobCodeBadge(m_furnace));
    connect(m_messageHandler, &MessageHandler::SignalArgon, this, &MainWindow::SlotSetArgonOven);
    connect(m_messageHandler, &MessageHandler::SignalMaterialChanged, this, &MainWindow::SlotMaterialChanged);
    connect(m_messageHandler, &MessageHandler::SignalInsulationMissing, this, &MainWindow::SlotInsulationMissing);
    connect(m_timerPopup, &Popups::TimerPopup::SignalAutoStartTimerSet, this, &MainWindow::UpdateProcessTime);
    // Leaving the popup without a time leaves no delayed start behind.
    connect(m_timerPopup, &QDialog::rejected, this, [this] {
        if (m_timerPopup->GetRequestedTimer().isEmpty())
            ui->widget_timerPlayProg->SetChecked(false);
    });
    connect(m_popupStop, &Popups::PopupStop::SignalPopupStopButton, this, &MainWindow::SlotReqStopHeatfile);
    connect(ui->widget_chart_process, &GlobalElements::Chart::SignalChartClicked, this, &MainWindow::SlotChartClicked);
    connect(ui->widget_timerPreDry, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotIncPreDryTime);
    connect(ui->widget_timerPlayProg, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::Slot_ShowTimerPopup);
    connect(ui->widget_playNewProg, &Iconbutton::Signal_ButtonClicked, this, &MainWindow::SlotGenerateProgRequest);
    connect(ui->widget_acceptMaterialChanged, &Iconbutton::Signal_ButtonClicked, this,
            &MainWindow::SlotMaterialChangedReaction);
    connect(ui->widget_rejectMaterialChanged, &Iconbutton::Signal_ButtonClicked, this,
            &MainWindow::SlotMaterialChangedReaction);
    connect(ui->widget_doorIsolation_accept, &Iconbutton::Signal_ButtonClicked, this,
            &MainWindow::SlotDoorIsolationInsert);
}

void MainWindow::Slot_ShowChoosenProgram(GlobalElements::Program *program, Pageinterface::en_pages page)
{
    if (program == nullptr)
        return;
    FillProgramPage(program, page == Page::PlayProg);
    SetTitle(program->GetName(), false);
    m_programPageFilled = true;
    Statemachine(page);
    m_programPageFilled = false;
}

void MainWindow::FillProgramPage(GlobalElements::Program *program, bool play)
{
    GlobalElements::Chart *chart = play ? ui->widget_chart_play : ui->widget_chart_process;
    GlobalElements::DisplayElementIcon *material = play ? ui->widget_materialPlay : ui->widget_materialProcess;
    m_shownProgramName = program->GetName();

    // A maker's program is shown only in outline.
    const bool userProgram = ProgramHandler::ProgramHandler::IsUserProgram(program);
    chart->CreateChart(program->GetMatrix(), !userProgram, m_furnace.IsFahrenheit());

    material->SetText(program->GetMaterial());
    material->SetIcon(Process::IsArgon(program->GetMaterial()) ? QStringLiteral(":/Play/Gas.png") : QString());
    if (!play)
        return;
    // A program is shown without pre-dry and without a delayed start, nor the note of one.
    RemoveAutostartNote();
    ui->widget_timerPreDry->SetChecked(false);
    ui->widget_timerPreDry->SetIcon(QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));
    ui->widget_timerPlayProg->SetChecked(false);
    m_timerPopup->ResetRequest();
    m_preDryMinutes = 0;
    CalculateProcessTime(program, 0, m_timerPopup->GetRequestedTimer());
    ui->widget_playProgChange->setVisible(userProgram);
    ui->widget_playProgDelete->setVisible(userProgram);
}

void MainWindow::PreparePagePlay(int from)
{
    if (from != Page::ProcessProg)
        ui->widget_chart_play->ClearProgress();
    ui->widget_playNewProg->SetChecked(false);
    ui->widget_timerPlayProg->SetChecked(false);
    ui->widget_timerPreDry->SetChecked(false);
    // Entered by back or by the controller, the page is rebuilt from the store: the program
    // may have been changed since, and a delayed start's note must not outlive its request.
    if (!m_programPageFilled && !m_shownProgramName.isEmpty()) {
        if (GlobalElements::Program *program = m_programHandler->GetProgramByName(m_shownProgramName))
            FillProgramPage(program, true);
        else
            qDebug() << "program page: program no longer stored:" << m_shownProgramName;
        SetTitle(m_shownProgramName, false);
    }
    ui->horizontalLayout_playButtons->setSpacing(6);
    CaptionTiles(Page::PlayProg);
    SetPlayButtonCaptions();
    ui->widget_backPlayNewProg->setVisible(true);
    ui->widget_doorPlayNewProg->setVisible(true);
    ui->widget_timerPreDry->SetIcon(QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));
    if (PageTables::RemembersPlayOrigin(from))
        m_origins.playOrigin = static_cast<Page>(from);
}

void MainWindow::PreparePageProcess(int from)
{
    // The controller repeats its page report during a firing: the fill and the hold clock
    // carry on, and only a new firing starts them afresh.
    if (!m_furnace.IsFiring())
        ui->widget_chart_process->ClearProgress();
    // Entered anew, the page shows no result of an earlier firing; repeated, it keeps its own.
    if (from != Page::ProcessProg)
        m_firingSummary.Dismiss();
    ui->widget_processErrorInfo->setEnabled(false);
    ui->widget_processErrorInfo->setVisible(false);
    ui->widget_processError->setStyleSheet(QStringLiteral("background: transparent;"));
    ui->widget_exitProcessProg->setVisible(false);
    ui->widget_backProcessProg->setVisible(false);
    ui->widget_doorProcessProg->setVisible(false);
    ui->widget_stopProcessProg->setVisible(true);
    ui->widget_stopProcessProg->SetText(Caption(Captions::Stopp));
    ui->widget_processPreDryInfo->setVisible(false);
    ui->widget_processPreDryInfo->SetChecked(false);
    ui->widget_processPreDryInfo->setAttribute(Qt::WA_TransparentForMouseEvents, true);
}

void MainWindow::SlotGenerateProgRequest()
{
    m_errorHandler->DeleteProcessErrorList();
    // Neither a start nor a door movement may be sent twice within a second.
    ui->widget_playNewProg->setEnabled(false);
    ui->widget_doorPlayNewProg->setEnabled(false);
    m_playEnableTimer->start();

    if (ui->widget_playNewProg->IsChecked()) {
        const QString name = m_title;
        const bool delayed = ui->widget_timerPlayProg->IsChecked();
        const QString timer = m_timerPopup->GetRequestedTimer();
        const QString request =
            delayed ? Requests::DelayedStart(timer, name, m_preDryMinutes) : Requests::Start(name, m_preDryMinutes);
        m_furnace.RequestFiring(name, static_cast<int>(m_preDryMinutes), delayed ? timer : QString(), m_jobCode.Take());
        m_preDryMinutes = 0;
        m_messageHandler->SetRequest(request);
        ui->widget_timerPlayProg->setVisible(false);
        ui->widget_doorPlayNewProg->setVisible(false);
    } else {
        // Pressed again: the start, or the delayed start, is called off.
        SlotReqStopHeatfile(true);
        m_messageHandler->SetRequest(Requests::CancelDelayedStart());
        ui->widget_timerPlayProg->setVisible(true);
        ui->widget_doorPlayNewProg->setVisible(true);
    }
}

void MainWindow::SlotHeatfileInProgress()
{
    const GlobalElements::Firing &firing = m_furnace.CurrentFiring();
    if (!firing.running) {
        // The firing is over.
        ui->widget_timerPlayProg->setEnabled(true);
        ui->widget_playNewProg->setEnabled(true);
        ui->widget_exitProcessProg->setEnabled(true);
        ui->widget_backProcessProg->setEnabled(true);
        ui->widget_doorProcessProg->setVisible(true);
        ui->widget_processPreDryInfo->setVisible(false);
        ui->widget_processPreDryInfo->SetChecked(false);
        return;
    }
    if (m_furnace.CurrentPage() != Page::ProcessProg && !m_changeInProcess) {
        // A firing started elsewhere, or before the panel, brings the panel to it.
        if (GlobalElements::Program *program = m_programHandler->GetProgramByName(firing.program))
            Slot_ShowChoosenProgram(program, Page::ProcessProg);
    }
    if (m_furnace.CurrentPage() != Page::ProcessProg || m_changeInProcess)
        return;
    ui->widget_backProcessProg->setEnabled(false);
    ui->widget_exitProcessProg->setEnabled(false);
    ui->widget_doorProcessProg->setVisible(false);
    DisplayRemainingTime(firing.minutesLeft);
    const bool preDrying = firing.phase == GlobalElements::Firing::Phase::PreDry;
    ui->widget_processPreDryInfo->setVisible(preDrying);
    ui->widget_processPreDryInfo->SetChecked(preDrying);
    if (preDrying)
        ui->widget_processPreDryInfo->SetIcon(QStringLiteral(":/Vortrocknen/Dry_Up_Timer.png"));
    else
        ui->widget_chart_process->UpdateChart(firing.stage, firing.stageText, m_furnace.Shown().value);
}

void MainWindow::SlotSetHeatProcessResult(Communication::FiringResult result)
{
    using Communication::FiringResult;
    if (result == FiringResult::Success)
        ui->widget_chart_process->UpdateChart(99, QStringLiteral("done"), m_furnace.Shown().value);
    if (result != FiringResult::Stopped) // the stop draws its own end
        ShowProcessEndButtons();
}

void MainWindow::SlotReqStopHeatfile(bool confirmed)
{
    if (!confirmed)
        return;
    m_furnace.EndFiring(Communication::FiringResult::Stopped);
    m_messageHandler->SetRequest(Requests::Stop());
    ShowProcessEndButtons();
}

void MainWindow::ShowProcessEndButtons()
{
    ui->widget_exitProcessProg->setVisible(true);
    ui->widget_backProcessProg->setVisible(true);
    ui->widget_stopProcessProg->setVisible(false);
    ui->widget_doorProcessProg->setVisible(true);
}

void MainWindow::SetPlayButtonCaptions()
{
    ui->widget_timerPreDry->SetText(Caption(Captions::Trocknen));
    ui->widget_timerPlayProg->SetText(Caption(Captions::Startzeit));
    ui->widget_doorPlayNewProg->SetText(Caption(Captions::Tuer));
    ui->widget_playNewProg->SetText(Caption(Captions::Start));
    ui->widget_stopProcessProg->SetText(Caption(Captions::Stopp));
}

void MainWindow::SlotChartClicked()
{
    // Only a running firing's program can be changed from its chart.
    if (!m_furnace.IsFiring())
        return;
    m_changeInProcess = true;
    m_saveAtOnce = true;
    m_editMode = true;
    m_programHandler->SetChangeInProcess();
    Statemachine(Page::ChangeProg);
}

void MainWindow::CalculateProcessTime(GlobalElements::Program *program, unsigned short preDry, const QString &timer)
{
    if (program == nullptr || program->GetMatrix()->isEmpty())
        return;
    using namespace Process::ProcessTime;
    // The estimate starts from the temperature as the page shows it, unit and all.
    const bool fahrenheit = m_furnace.IsFahrenheit();
    const int oven = OvenCelsiusFromDisplay(m_furnace.Shown().text, fahrenheit);
    const qint64 minutes = Minutes(*program->GetMatrix(), oven, preDry, fahrenheit);
    ui->widget_showPlayTime->SetText(
        Caption(Captions::EndeUm).arg(EndOfDay(StartClock(m_furnace.Time(), timer), minutes)));
}

void MainWindow::DisplayRemainingTime(qint64 minutes)
{
    ui->widget_showPlayTime->SetText(
        Caption(Captions::EndeUm).arg(Process::ProcessTime::EndOfDay(m_furnace.Time(), minutes)));
}

void MainWindow::UpdateProcessTime()
{
    GlobalElements::Program *program = m_programHandler->GetProgramByName(m_title);
    const QString timer = m_timerPopup->GetRequestedTimer();
    CalculateProcessTime(program, static_cast<unsigned short>(m_preDryMinutes), timer);

    const bool userProgram = ProgramHandler::ProgramHandler::IsUserProgram(program);
    if (m_autostartNote == nullptr && ui->widget_timerPlayProg->IsChecked()) {
        if (ui->horizontalLayout_playButtons->count() < 4) {
            m_autostartNote = new Process::AutostartNoteView(Process::AutostartNote(timer));
            ui->horizontalLayout_playButtons->insertWidget(0, m_autostartNote);
            ui->horizontalLayout_playButtons->setSpacing(0);
            ui->widget_playProgChange->setVisible(false);
            ui->widget_playProgDelete->setVisible(false);
        }
    } else if (m_autostartNote != nullptr && !ui->widget_timerPlayProg->IsChecked()) {
        RemoveAutostartNote();
        ui->widget_playProgChange->setVisible(userProgram);
        ui->widget_playProgDelete->setVisible(userProgram);
    }
}

void MainWindow::RemoveAutostartNote()
{
    if (m_autostartNote == nullptr)
        return;
    ui->horizontalLayout_playButtons->removeWidget(m_autostartNote);
    delete m_autostartNote;
    m_autostartNote = nullptr;
    ui->horizontalLayout_playButtons->setSpacing(6);
}

void MainWindow::SlotIncPreDryTime()
{
    const Process::PreDryStep step = Process::NextPreDryStep(m_preDryMinutes);
    m_preDryMinutes = step.minutes;
    ui->widget_timerPreDry->SetChecked(step.checked);
    ui->widget_timerPreDry->SetIcon(QString::fromLatin1(step.icon));
    CalculateProcessTime(m_programHandler->GetProgramByName(m_title), static_cast<unsigned short>(m_preDryMinutes),
                         m_timerPopup->GetRequestedTimer());
}

void MainWindow::Slot_ShowTimerPopup()
{
    if (ui->widget_timerPlayProg->IsChecked() && m_autostartNote == nullptr) {
        if (m_timerPopup->SetDateTime(m_furnace.Date(), m_furnace.Time()))
            m_timerPopup->open();
        else
            ui->widget_timerPlayProg->SetChecked(false);
        return;
    }
    m_timerPopup->ResetRequest();
    UpdateProcessTime();
}

void MainWindow::SlotMaterialChanged(const QString &material)
{
    const QString picture = material == QLatin1String("argon") ? QStringLiteral("url(:/Material/Argon.jpg);")
                                                               : QStringLiteral("url(:/Material/Zirkon.jpg);");
    // Scoped to the screen itself: its buttons keep their own look.
    ui->page_MatChange->setStyleSheet(QStringLiteral("QWidget#page_MatChange { background: ") + picture +
                                      QStringLiteral(" }"));
    ui->stackedWidget_main->setCurrentIndex(2);
}

void MainWindow::SlotMaterialChangedReaction()
{
    if (sender() == ui->widget_acceptMaterialChanged) {
        m_messageHandler->SetRequest(Requests::MaterialChange(true));
    } else if (sender() == ui->widget_rejectMaterialChanged) {
        m_messageHandler->SetRequest(Requests::MaterialChange(false));
        ui->widget_playNewProg->SetChecked(false);
        SlotGenerateProgRequest();
    }
    ui->stackedWidget_main->setCurrentIndex(0);
}

void MainWindow::SlotSetArgonOven(const QString &text)
{
    if (text == QLatin1String("True")) {
        // Connected once per report, as the controller expects.
        connect(m_messageHandler, &Communication::MessageHandler::SignalSelftestArgon, this,
                &MainWindow::SlotArgonPressureFailure);
    }
    ui->progressBar_selftest->setMaximum(GlobalElements::SelftestProgress::maximum);
}

void MainWindow::SlotArgonPressureFailure(const QString &result)
{
    if (result == m_selftestPassWord)
        return;
    m_popupArgonFailure->open();
    SlotReqStopHeatfile(true);
}

void MainWindow::SlotInsulationMissing()
{
    const QString picture = m_furnace.IsArgonOven()
                                ? QStringLiteral("background: url(:/Tuerisolation/TuerisoArgon.jpg);")
                                : QStringLiteral("background: url(:/Tuerisolation/TuerisoZirkon.jpg);");
    ui->page_DoorIso->setStyleSheet(QStringLiteral("QWidget#page_DoorIso { ") + picture + QStringLiteral(" }"));
    ui->stackedWidget_main->setCurrentIndex(3);
}

void MainWindow::SlotDoorIsolationInsert()
{
    m_messageHandler->SetRequest(Requests::InsulationInserted());
    ui->stackedWidget_main->setCurrentIndex(0);
    if (m_furnace.IsCommissioning())
        m_selftestStartTimer->start(m_options.selftestDelayMs);
}

void MainWindow::SlotTempReceived()
{
    for (GlobalElements::DisplayElementIcon *shown : {ui->widget_tempPlay, ui->widget_temp})
        shown->SetText(m_furnace.Shown().text);
    CheckTempDoor();
}

void MainWindow::CheckTempDoor()
{
    const bool warn = Process::Door::WarnHot(m_furnace.Shown().value, m_furnace.DoorTempLimit(), m_furnace.Door());
    if (warn != m_popupTempWarning->isVisible())
        warn ? m_popupTempWarning->Show() : m_popupTempWarning->Hide();
}

void MainWindow::SlotDoor(Communication::DoorState state)
{
    const QString icon = Process::Door::Icon(state);
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
    m_messageHandler->SetRequest(Requests::MoveDoor());
    if (m_furnace.IsAwaitingUser()) {
        m_furnace.SetAwaitingUser(false);
        ui->widget_doorProcessProg->setVisible(false);
    }
}

void MainWindow::SlotRequestDoorClose()
{
    m_messageHandler->SetRequest(Requests::CloseDoor());
}

} // namespace Mainwindow
} // namespace ovra
