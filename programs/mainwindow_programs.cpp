// The program list and filter pages, favourites, deletion and the change of a program.
#include "app/captions.h"
#include "app/mainwindow.h"
#include "communication/messagehandler.h"
#include "communication/requests.h"
#include "popups/popup.h"
#include "popups/popupdeleteprogram.h"
#include "process/chart.h"
#include "programs/newprogram.h"
#include "programs/programhandler.h"
#include "programs/programlists.h"
#include "ui_mainwindow.h"
#include "widgets/button.h"

#include <QScroller>

namespace ovra {
namespace Mainwindow {

using GlobalElements::Button;
using GlobalElements::Program;
using GlobalElements::ProgramButton;
using ProgramHandler::ProgramHandler;

void MainWindow::ConnectPrograms()
{
    using Communication::MessageHandler;
    GlobalElements::NewProgram *editor = ui->widget_newProg;
    connect(editor, &GlobalElements::NewProgram::SignalSaveNewProg, m_programHandler,
            &ProgramHandler::Slot_AddProgramToList);
    connect(m_programHandler, &ProgramHandler::SignalSendProgToHX3, m_messageHandler, &MessageHandler::SetRequest);
    connect(m_programHandler, &ProgramHandler::SignalSendProgToHX3, this, &MainWindow::CheckChangeInProcess);
    connect(m_programHandler, &ProgramHandler::SignalAddToRequest, m_messageHandler, &MessageHandler::SetRequest);
    connect(m_programHandler, &ProgramHandler::SignalShowProg, this,
            [this](Program *program) { Slot_ShowChoosenProgram(program, Page::PlayProg); });
    connect(m_messageHandler, &MessageHandler::SignalMaxRate, editor, &GlobalElements::NewProgram::SetMaxHeatRate);
    connect(m_messageHandler, &MessageHandler::SignalHeatfileReceived, m_programHandler,
            &ProgramHandler::Slot_AddReceivedProgram);
    connect(m_messageHandler, &MessageHandler::SignalSetProgToFav, this, &MainWindow::SlotSetProgToFav);
    m_programLists = new GlobalElements::ProgramLists(m_programHandler, this);
    connect(m_programLists, &GlobalElements::ProgramLists::SignalProgramChosen, this,
            [this](Program *p) { Slot_ShowChoosenProgram(p, Page::PlayProg); });
    connect(m_programLists, &GlobalElements::ProgramLists::SignalSetProgToFav, this, &MainWindow::SlotSetProgToFav);
    connect(m_messageHandler, &MessageHandler::SignalHeatfileCount, this, &MainWindow::SlotCheckHeatfileCount);

    connect(m_popupMaterial, &Popups::Popup::SignalPopupButton, this, &MainWindow::Slot_MaterialSelected);
    // A new program starts as a zirconia program without asking: the material preset first,
    // then the editor is told a new program is under way.
    for (Button *newButton : {ui->widget_ProgsButtonNew, ui->widget_myProgsNew}) {
        connect(newButton, &Button::SignalButtonClicked, m_popupMaterial,
                &Popups::Popup::on_pushButton_ZirkonPopup_clicked);
        connect(newButton, &Button::SignalButtonClicked, editor, &GlobalElements::NewProgram::SlotSetNewProgram);
    }
    connect(ui->widget_playProgChange, &Button::SignalButtonClicked, this, &MainWindow::SlotChangeProg);
    connect(m_popupDeleteProgram, &Popups::PopupDeleteProgram::SignalDeleteProgram, this, &MainWindow::SlotDeleteProg);
    connect(editor, &GlobalElements::NewProgram::SignalExitNewProg, this, &MainWindow::SlotExitButtonClicked);
    connect(editor, &GlobalElements::NewProgram::SignalBackToProgs, this, &MainWindow::SlotBackButtonClicked);

    // Long lists scroll with a finger, with momentum.
    for (QScrollArea *area : ListAreas())
        QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
}

const QList<GlobalElements::ProgramButton *> &MainWindow::GetProgramButtons() const
{
    return m_programLists->Buttons();
}

QList<QScrollArea *> MainWindow::ListAreas() const
{
    return {ui->scrollArea_Hitlist,      ui->scrollArea_MyProgs,      ui->scrollArea_FixProgs,
            ui->scrollArea_ServiceProgs, ui->scrollArea_Manufacturer, ui->scrollArea_Material};
}

void MainWindow::ReleaseListScrolling()
{
    // Leaves no flick gesture registered for a widget that is going away.
    for (QScrollArea *area : ListAreas())
        QScroller::ungrabGesture(area->viewport());
}

void MainWindow::PreparePageMyHitlist()
{
    m_programLists->Fill(ui->verticalLayout_listHitlist, m_programHandler->GetFavoriteProgramList());
}

void MainWindow::PreparePageMyPrograms()
{
    QList<Program *> *programs = m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer);
    m_programLists->CheckForFilterOption(*programs);
    m_programLists->Fill(ui->verticalLayout_listMyProgs, programs);
}

void MainWindow::PreparePageFixPrograms()
{
    m_programLists->Fill(ui->verticalLayout_listFixProgs, m_programHandler->GetFixProgramList());
}

void MainWindow::PreparePageServicePrograms()
{
    m_programLists->Fill(ui->verticalLayout_listServiceProgs,
                         m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::serviceManufacturer));
}

void MainWindow::PreparePageDisplayManufacturer()
{
    m_programLists->AddFilterButtons(ui->verticalLayout_listManufacturer, true);
}

void MainWindow::PreparePageDisplayMaterial()
{
    m_programLists->AddFilterButtons(ui->verticalLayout_listMaterial, false);
}

void MainWindow::SlotSetProgToFav(bool on, Program *program)
{
    if (program == nullptr)
        return;
    if (on)
        m_programHandler->Slot_SetProgramToFav(program);
    else
        m_programHandler->Slot_DeleteProgramFromFavoriteList(program);
    m_messageHandler->SetRequest(Communication::Requests::Favourite(program->GetName(), on));
}

void MainWindow::SlotDeleteProg()
{
    const QString name = m_title;
    m_programHandler->Slot_DeleteProgramFromList(name);
    m_programLists->Remove(name);
    // Back to the list the program was chosen from, now without it.
    SlotBackButtonClicked();
}

void MainWindow::SlotChangeProg()
{
    Statemachine(Page::ChangeProg);
}

void MainWindow::PreparePageChangeProgram(const QString &name)
{
    m_programHandler->SetChangeActive();
    QList<Program *> *own = m_programHandler->GetProgramListSortedByManufacturer(ProgramHandler::userManufacturer);
    Program *found = nullptr;
    for (Program *program : qAsConst(*own)) {
        if (program->GetName() == name)
            found = program;
    }
    delete own;
    ui->widget_newProg->SetSelectedMaterial(ui->widget_materialPlay->GetText());
    if (found != nullptr)
        ui->widget_newProg->ChangeProgram(found, m_saveAtOnce);
}

void MainWindow::CheckChangeInProcess(const QString &message)
{
    // Whatever program carried it, the change of the running program has gone out: the next
    // program opened for a change is saved the usual way, and progress reports count again.
    if (message.contains(QLatin1String("hpchange"))) {
        m_saveAtOnce = false;
        m_changeInProcess = false;
    }
}

void MainWindow::SlotCheckHeatfileCount(int count)
{
    if (ProgramHandler::ProgramHandler::NeedsResend(count, m_programHandler->GetProgramList()->size(),
                                                    m_hfresendCount)) {
        m_messageHandler->SetRequest(Communication::Requests::ResendHeatfiles());
        ++m_hfresendCount;
    }
}

void MainWindow::Slot_MaterialSelected(const QString &material)
{
    ui->widget_newProg->SetSelectedMaterial(material);
    Statemachine(Page::NewProg);
}

} // namespace Mainwindow
} // namespace ovra
